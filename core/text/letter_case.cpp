#include "core/text/letter_case.h"

#include "core/text/utf8.h"

#include <utf8proc.h>

namespace zephyne {
namespace {

enum class Case { lower, upper };

char ascii_lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}
char ascii_upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

std::string ascii_mapped(std::string_view text, Case to) {
    std::string result(text);
    if (to == Case::lower) {
        for (char& c : result) c = ascii_lower(c);
    } else {
        for (char& c : result) c = ascii_upper(c);
    }
    return result;
}

std::string mapped(std::string_view text, Case to) {
    if (is_ascii(text) || !is_utf8(text)) return ascii_mapped(text, to);
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        if ((text.front() & 0x80) == 0) {
            result += to == Case::lower ? ascii_lower(text.front()) : ascii_upper(text.front());
            text.remove_prefix(1);
            continue;
        }
        const auto code = static_cast<utf8proc_int32_t>(take_character(text));
        append_character(result, static_cast<char32_t>(to == Case::lower ? utf8proc_tolower(code)
                                                                         : utf8proc_toupper(code)));
    }
    return result;
}

void append_folded(std::string& result, std::string_view text) {
    if (is_ascii(text) || !is_utf8(text)) {
        const std::size_t begin = result.size();
        result += text;
        for (std::size_t i = begin; i < result.size(); ++i) result[i] = ascii_lower(result[i]);
        return;
    }
    while (!text.empty()) {
        if ((text.front() & 0x80) == 0) {
            result += ascii_lower(text.front());
            text.remove_prefix(1);
            continue;
        }
        constexpr int longest = 8;  // characters that one folds to; three at present
        utf8proc_int32_t characters[longest];
        int boundary = UTF8PROC_BOUNDCLASS_START;
        const auto count =
            utf8proc_decompose_char(static_cast<utf8proc_int32_t>(take_character(text)), characters,
                                    longest, UTF8PROC_CASEFOLD, &boundary);
        for (utf8proc_ssize_t i = 0; i < count && i < longest; ++i) {
            append_character(result, static_cast<char32_t>(characters[i]));
        }
    }
}

std::string folded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    append_folded(result, text);
    return result;
}

}  // namespace

std::string lower_case(std::string_view text) {
    return mapped(text, Case::lower);
}
std::string upper_case(std::string_view text) {
    return mapped(text, Case::upper);
}

std::string capitalised(std::string_view text) {
    if (text.empty()) return {};
    // The whole text decides whether Unicode applies, so that a name is never half one, half other.
    if (is_ascii(text) || !is_utf8(text)) {
        std::string result = ascii_mapped(text, Case::lower);
        result.front() = ascii_upper(text.front());
        return result;
    }
    std::string_view rest = text;
    take_character(rest);
    const std::size_t first = text.size() - rest.size();
    return upper_case(text.substr(0, first)) + lower_case(rest);
}

bool equal_ignoring_case(std::string_view a, std::string_view b) {
    return a == b || folded(a) == folded(b);
}

bool starts_with_ignoring_case(std::string_view text, std::string_view prefix) {
    return folded(text).starts_with(folded(prefix));
}

std::string collation_prefix(std::string_view text) {
    return folded(text);
}

void append_collation_key(std::string& key, std::string_view text) {
    append_folded(key, text);
    key += '\0';
    key += text;
}

std::string collation_key(std::string_view text) {
    std::string key;
    append_collation_key(key, text);
    return key;
}

}  // namespace zephyne
