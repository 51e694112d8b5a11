// One song of a playlist as a line of text: name, "|", folder ending in a separator.
#pragma once

#include <string_view>
#include <utility>

namespace zephyne {

// Splits an entry line at the first "|" that a root follows ("/", "\", or a drive as in "C:"),
// else at its first "|", so that names with "|" keep it. The second part is empty when there is
// no "|".
std::pair<std::string_view, std::string_view> split_entry_line(std::string_view line);

}  // namespace zephyne
