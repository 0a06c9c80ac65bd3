#ifndef KELIFC_CORE_TEXT_REFERENCE_TEXT_H_
#define KELIFC_CORE_TEXT_REFERENCE_TEXT_H_

#include <cstddef>
#include <cstdint>

#include "kelifc/core/text/ascii.h"

namespace KelIFC {

/// Parses the number of an instance in its usual form: `#` and one to nine digits, with nothing
/// before or between them. Returns the position after it. Returns null for any other text, and then
/// `number` has no meaning. The text ends with a NUL.
inline const char* ReadPlainReference(const char* text, std::uint32_t& number) {
  constexpr std::size_t kMostDigits = 9;
  if (*text != '#') return nullptr;
  std::size_t length = 1;
  std::uint32_t value = 0;
  // Ten digits and more can exceed 32 bits, which is no error of unsigned numbers.
  for (; ascii::IsDigit(text[length]); ++length) {
    value = 10 * value + static_cast<std::uint32_t>(text[length] - '0');
  }
  number = value;
  return length > 1 && length <= kMostDigits + 1 ? text + length : nullptr;
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_REFERENCE_TEXT_H_
