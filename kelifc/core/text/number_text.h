#ifndef KELIFC_CORE_TEXT_NUMBER_TEXT_H_
#define KELIFC_CORE_TEXT_NUMBER_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

// Numbers from and to text, always as in the classic locale and never from the heap.

namespace KelIFC {

/// Reads a number as strtod does: leading white space, a sign, decimal or hexadecimal digits, inf,
/// infinity, nan and nan(...). What is too large becomes infinity, what is too small 0. `end`
/// receives the position behind the number; if there is none it is `text`, and the result 0.
double ReadReal(const char* text, const char** end);

/// Reads a decimal number as strtol does, with 32 bits: what is out of range becomes the nearest
/// bound. `end` as above.
std::int32_t ReadInteger(const char* text, const char** end);

/// Room for every finite number with ten decimals: a sign, 309 digits, a point and the decimals.
constexpr std::size_t kRealTextSize = 328;

/// The text of a number in a record: ten decimals, correctly rounded, without the zeros at the end,
/// but always with a point. Infinity and nan are padded with blanks to ten characters and have a
/// point behind them. The result points into `buffer`.
std::string_view FormatReal(double value, char (&buffer)[kRealTextSize]);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_NUMBER_TEXT_H_
