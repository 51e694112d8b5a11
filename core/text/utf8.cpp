#include "core/text/utf8.h"

#include <utf8proc.h>

#include <algorithm>

namespace zephyne {
namespace {

// Windows-1252 from 0x80 to 0x9F; the rest of its upper half is Latin-1.
constexpr char32_t kWindows1252[32] = {
    0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

const utf8proc_uint8_t* bytes_of(std::string_view text) {
    return reinterpret_cast<const utf8proc_uint8_t*>(text.data());
}

}  // namespace

bool is_ascii(std::string_view text) {
    // Without a way out in the middle, several bytes are looked at in one go.
    unsigned bits = 0;
    for (const char c : text) bits |= static_cast<unsigned char>(c);
    return (bits & 0x80U) == 0;
}

bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        if ((text.front() & 0x80) == 0) {
            text.remove_prefix(1);
            continue;
        }
        utf8proc_int32_t character = 0;
        const auto length = utf8proc_iterate(
            bytes_of(text), static_cast<utf8proc_ssize_t>(text.size()), &character);
        if (length < 1) return false;
        text.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
}

char32_t take_character(std::string_view& text) {
    utf8proc_int32_t character = 0xFFFD;
    const auto length =
        utf8proc_iterate(bytes_of(text), static_cast<utf8proc_ssize_t>(text.size()), &character);
    text.remove_prefix(length < 1 ? 1 : static_cast<std::size_t>(length));
    return length < 1 ? 0xFFFD : static_cast<char32_t>(character);
}

void append_character(std::string& text, char32_t character) {
    utf8proc_uint8_t bytes[4];
    const auto length = utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes);
    text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

std::size_t character_count(std::string_view text) {
    if (!is_utf8(text)) return text.size();
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string to_utf8(std::string_view bytes) {
    if (is_utf8(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        append_character(text, byte >= 0x80 && byte < 0xA0 ? kWindows1252[byte - 0x80] : byte);
    }
    return text;
}

std::string_view take_line(std::string_view& text) {
    const auto end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
    return line;
}

std::string_view past_byte_order_mark(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    return text;
}

std::vector<std::string_view> text_lines(std::string_view text) {
    text = past_byte_order_mark(text);
    std::vector<std::string_view> lines;
    while (!text.empty()) lines.push_back(take_line(text));
    return lines;
}

}  // namespace zephyne
