#include "core/text/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace zephyne {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

double digits_of_base(std::string_view text, int base) {
    std::uint64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (result.ec == std::errc::result_out_of_range) return HUGE_VAL;
    return result.ec == std::errc() ? static_cast<double>(value) : 0;
}

// Whether a number that no double can hold lies too near to 0, rather than too far from it.
bool is_tiny(std::string_view number) {
    const auto exponent = number.find_first_of("eE");
    if (exponent != std::string_view::npos) return number[exponent + 1] == '-';
    return number.find_first_of("123456789") > number.find('.');
}

// How much of the text is sign, digits, point and digits, exponent. An "E" without digits behind
// it does not belong to the number.
std::size_t length_of_number(std::string_view text) {
    std::size_t at = 0;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    while (at < text.size() && is_digit(text[at])) ++at;
    if (at < text.size() && text[at] == '.') ++at;
    while (at < text.size() && is_digit(text[at])) ++at;

    std::size_t exponent = at;
    if (exponent < text.size() && (text[exponent] == 'e' || text[exponent] == 'E')) {
        ++exponent;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        if (exponent < text.size() && is_digit(text[exponent])) {
            while (exponent < text.size() && is_digit(text[exponent])) ++exponent;
            at = exponent;
        }
    }
    return at;
}

template <class Integer>
std::optional<Integer> to_integer(double value) {
    const double rounded = round_half_even(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max())) {
        return std::nullopt;
    }
    return static_cast<Integer>(rounded);
}

}  // namespace

double leading_number(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    if (text.size() >= 2 && text[0] == '&') {
        if (text[1] == 'H' || text[1] == 'h') return digits_of_base(text.substr(2), 16);
        if (text[1] == 'O' || text[1] == 'o') return digits_of_base(text.substr(2), 8);
    }
    text = text.substr(0, length_of_number(text));
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);

    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range && !is_tiny(text)) {
        return text.front() == '-' ? -HUGE_VAL : HUGE_VAL;
    }
    return result.ec == std::errc() ? value : 0;
}

double round_half_even(double value) {
    const double below = std::floor(value);
    const double fraction = value - below;
    if (fraction < 0.5) return below;
    if (fraction > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::optional<std::int16_t> to_int16(double value) {
    return to_integer<std::int16_t>(value);
}
std::optional<std::int32_t> to_int32(double value) {
    return to_integer<std::int32_t>(value);
}

std::string decimal(std::int64_t value) {
    return std::to_string(value);
}

std::string decimal(double value) {
    if (value == 0) return "0";  // also for -0
    const double size = std::abs(value);
    const auto format =
        size >= 1e-5 && size < 1e15 ? std::chars_format::fixed : std::chars_format::scientific;
    char digits[64];
    const auto shortest = std::to_chars(digits, digits + sizeof digits, value, format);
    std::string text(digits, shortest.ptr);
    if (text.size() > 17) {  // more digits than a number is ever typed with
        const auto rounded =
            std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 15);
        text.assign(digits, rounded.ptr);
    }
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    if (text.compare(sign, 2, "0.") == 0) text.erase(sign, 1);
    return text;
}

std::string two_digits(std::int64_t value) {
    std::string text = decimal(value);
    return text.size() < 2 ? "0" + text : text;
}

}  // namespace zephyne
