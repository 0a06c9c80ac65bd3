#ifndef KELIFC_CORE_TEXT_HEX_H_
#define KELIFC_CORE_TEXT_HEX_H_

#include <cstdint>
#include <string>

namespace KelIFC {

/// The value of a hexadecimal digit in either case, -1 for any other character.
constexpr int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

/// Appends the lowest `count` hexadecimal digits of a number, in upper case.
inline void AppendHex(std::string& out, std::uint32_t number, int count) {
  for (int shift = 4 * (count - 1); shift >= 0; shift -= 4) {
    out += "0123456789ABCDEF"[(number >> shift) & 0xF];
  }
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_HEX_H_
