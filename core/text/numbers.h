// Numbers in settings and volume files: written plainly, read leniently.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zephyne {

// The number that a text begins with: blanks are skipped, then the longest part that forms a
// decimal number (sign, digits, ".", exponent) counts and the rest is ignored. "&H" and "&O"
// introduce hexadecimal and octal digits. A text without a number is 0, and one that no double can
// hold is infinite. The decimal point is "." in every locale.
double leading_number(std::string_view text);

// The nearest whole number; a half goes to the even neighbour.
double round_half_even(double value);

// `value` rounded as above if it fits the integer type, else nothing.
std::optional<std::int16_t> to_int16(double value);
std::optional<std::int32_t> to_int32(double value);

// In decimal, without a leading blank; the shortest form that reads back as the same number, up to
// 15 digits; a fraction below 1 has no zero before its point (".5", "-.5"). Only from 1e15 on, and
// below 1e-5, with an exponent.
std::string decimal(double value);
std::string decimal(std::int64_t value);

// The same, padded on the left with "0" to two digits.
std::string two_digits(std::int64_t value);

}  // namespace zephyne
