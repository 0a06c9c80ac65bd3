#ifndef KELIFC_CORE_TEXT_NUMBER_TEXT_H_
#define KELIFC_CORE_TEXT_NUMBER_TEXT_H_

#include <cstddef>
#include <cstdint>

// Conversions between numbers and text. They always use the classic locale and never allocate
// memory.

namespace KelIFC {

/// Parses a number as strtod does: leading white space, a sign, decimal or hexadecimal digits, inf,
/// infinity, nan and nan(...). A number that is too large becomes infinity, one that is too small
/// 0. Stores the position after the number in `end`. If there is no number, stores `text` and
/// returns 0.
double ReadReal(const char* text, const char** end);

/// Parses a decimal number as strtol does, with 32 bits: a number out of range becomes the nearest
/// bound. `end` is as above.
std::int32_t ReadInteger(const char* text, const char** end);

/// The space for every finite number with ten decimals: a sign, 309 digits, a point and the
/// decimals.
constexpr std::size_t kRealTextSize = 328;

/// Writes the text of a number in a record: ten decimals, correctly rounded, without trailing zeros
/// but always with a point. Infinity and NaN are padded with blanks to ten characters and followed
/// by a point. `text` has space for kRealTextSize characters. Returns the end of the text.
char* FormatReal(double value, char* text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_NUMBER_TEXT_H_
