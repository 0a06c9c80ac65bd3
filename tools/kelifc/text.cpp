#include "tools/kelifc/text.h"

namespace command {

std::string Utf8FromLatin1(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x80) out += static_cast<char>(0xC0 | code >> 6);
    out += static_cast<char>(code < 0x80 ? code : 0x80 | (code & 0x3F));
  }
  return out;
}

}  // namespace command
