// Letter case, and the one order in which the whole program sorts names.
//
// Names are bytes. Where they are valid UTF-8, case is Unicode's; where they are not, only ASCII
// letters have case and all other bytes stay as they are.
#pragma once

#include <string>
#include <string_view>

namespace zephyne {

std::string lower_case(std::string_view text);
std::string upper_case(std::string_view text);

// The first character in upper case, the rest in lower case.
std::string capitalised(std::string_view text);

// Equal but for the case of letters (Unicode default case folding).
bool equal_ignoring_case(std::string_view a, std::string_view b);
bool starts_with_ignoring_case(std::string_view text, std::string_view prefix);

// Byte order of these keys is the order of lists: without regard to case first, then by bytes, so
// that no two different texts are equal. Keys are meant to be made once per item and sort; KeySort
// takes them appended one behind the other.
std::string collation_key(std::string_view text);
void append_collation_key(std::string& key, std::string_view text);

// What the keys of all texts begin with that begin with this one, in whatever letter case.
std::string collation_prefix(std::string_view text);

}  // namespace zephyne
