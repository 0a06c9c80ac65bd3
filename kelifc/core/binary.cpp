#include "kelifc/core/binary.h"

#include <algorithm>
#include <cstring>

namespace KelIFC::detail {

const char* ReadBits(const char* text, char* flags, std::size_t count) {
  std::fill_n(flags, count, '0');
  const char* open = text + std::strcspn(text, "\",");
  if (*open != '"') return text;
  const char* close = std::strchr(open + 1, '"');
  if (close == nullptr) return text;
  const std::size_t length = std::min(count, static_cast<std::size_t>(close - open - 1));
  for (std::size_t i = 0; i < length; ++i) {
    if (open[1 + i] == '1') flags[i] = '1';
  }
  return BehindNextComma(close + 1);
}

}  // namespace KelIFC::detail
