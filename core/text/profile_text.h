// Profile files: sections of "key=value" lines, as the platform's private profile calls read and
// write them. A file is a text in memory here; everything is bytes.
//
//     [TIP]
//     START=T
//     1=Click the clock to see the time remaining.
//
// Section and key are compared without regard to letter case, and blanks and tabs around them do
// not count. A line that begins with ";" is a comment; a line without "=" is nothing. Lines end
// with CR LF, LF or CR, and a UTF-8 byte-order mark at the very beginning is passed over.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace zephyne {

// The value of the first such key, without the blanks around it and then without the quotes, of
// either kind, around what is left. Nothing when section or key is missing.
std::optional<std::string_view> profile_value(std::string_view text, std::string_view section,
                                              std::string_view key);

// The text with this value, as it stands. The first such key keeps its place, the spelling of its
// name and its line end; a new one comes behind the last line of its section, a new section to the
// end, both with CR LF. All other bytes stay as they are. A section, key or value with a line end
// in it changes nothing.
std::string with_profile_value(std::string_view text, std::string_view section,
                               std::string_view key, std::string_view value);

}  // namespace zephyne
