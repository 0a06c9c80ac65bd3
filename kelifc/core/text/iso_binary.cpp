#include "kelifc/core/text/iso_binary.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "kelifc/core/text/hex.h"

namespace KelIFC {
namespace {

constexpr std::size_t kBitsPerDigit = 4;

}  // namespace

bool AppendBits(std::string& out, std::string_view digits) {
  const bool isHex =
      std::all_of(digits.begin(), digits.end(), [](char c) { return HexDigit(c) >= 0; });
  if (digits.empty() || !isHex) return false;
  const auto unused = static_cast<std::size_t>(HexDigit(digits.front()));
  digits.remove_prefix(1);
  if (unused >= kBitsPerDigit || (digits.empty() && unused != 0)) return false;
  const std::size_t begin = out.size();
  for (const char digit : digits) {
    for (std::size_t bit = kBitsPerDigit; bit > 0; --bit) {
      out += (HexDigit(digit) >> (bit - 1) & 1) != 0 ? '1' : '0';
    }
  }
  out.erase(begin, unused);
  return true;
}

bool AppendIsoBinary(std::string& out, std::string_view bits) {
  if (bits.find_first_not_of("01") != std::string_view::npos) return false;
  const std::size_t unused = (kBitsPerDigit - bits.size() % kBitsPerDigit) % kBitsPerDigit;
  AppendHex(out, static_cast<std::uint32_t>(unused), 1);
  std::uint32_t digit = 0;
  std::size_t count = unused;
  for (const char bit : bits) {
    digit = digit << 1 | static_cast<std::uint32_t>(bit - '0');
    if (++count % kBitsPerDigit != 0) continue;
    AppendHex(out, digit, 1);
    digit = 0;
  }
  return true;
}

}  // namespace KelIFC
