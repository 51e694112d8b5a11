// UTF-8, and the texts of the time before it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

bool is_ascii(std::string_view text);
bool is_utf8(std::string_view text);

// Removes the first character of a text that is_utf8() and not empty, and returns it.
char32_t take_character(std::string_view& text);
void append_character(std::string& text, char32_t character);

// Number of characters; bytes where the text is not UTF-8.
std::size_t character_count(std::string_view text);

// For showing and for old text files: the text itself when it is UTF-8, else its bytes read as
// Windows-1252 (the five undefined bytes become U+FFFD).
std::string to_utf8(std::string_view bytes);

// Removes the first line of a text that is not empty, with its line end (CR LF, LF or CR), and
// returns it without.
std::string_view take_line(std::string_view& text);

// The text of a file behind its UTF-8 byte-order mark, if it has one.
std::string_view past_byte_order_mark(std::string_view text);

// The lines of a text file with CR LF, LF or CR line ends, past a byte-order mark. A last line
// without a line end counts; an empty rest does not.
std::vector<std::string_view> text_lines(std::string_view text);

}  // namespace zephyne
