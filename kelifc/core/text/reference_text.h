#ifndef KELIFC_CORE_TEXT_REFERENCE_TEXT_H_
#define KELIFC_CORE_TEXT_REFERENCE_TEXT_H_

#include <cstddef>
#include <cstdint>

namespace KelIFC {

/// Parses the number of an instance in its usual form: `#` and one to nine digits, with nothing
/// before or between them. Returns the position after it. Returns null for any other text, and then
/// `number` has no meaning. The text ends with a NUL.
inline const char* ReadPlainReference(const char* text, std::uint32_t& number) {
  constexpr std::ptrdiff_t kMostDigits = 9;
  const auto digitAt = [](const char* at) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(*at)) - '0';
  };
  if (*text != '#') return nullptr;
  const char* at = text + 1;
  number = 0;
  // Ten digits and more can exceed 32 bits, which is no error of unsigned numbers.
  for (std::uint32_t digit = digitAt(at); digit <= 9; digit = digitAt(++at)) {
    number = 10 * number + digit;
  }
  const std::ptrdiff_t digits = at - text - 1;
  return digits >= 1 && digits <= kMostDigits ? at : nullptr;
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_REFERENCE_TEXT_H_
