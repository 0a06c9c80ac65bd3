#include "tools/kelifc/text.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace command {
namespace {

unsigned char ByteAt(std::string_view text, std::size_t i) {
  return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

/// How many bytes the character at the start of a text takes; 0 if it is a control character or
/// not UTF-8.
std::size_t VisibleLength(std::string_view text) {
  const unsigned char first = ByteAt(text, 0);
  if (first < 0x80) return first >= 0x20 && first != 0x7F ? 1 : 0;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((ByteAt(text, i) & 0xC0) != 0x80) return 0;
  }
  const bool isControl = first == 0xC2 && ByteAt(text, 1) < 0xA0;
  return isControl ? 0 : length;
}

}  // namespace

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

std::string Visible(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t length = VisibleLength(text);
    if (length == 0) {
      std::array<char, 8> escape = {};
      std::snprintf(escape.data(), escape.size(), "\\x%02X", ByteAt(text, 0));
      out += escape.data();
    }
    out += text.substr(0, length);
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return out;
}

}  // namespace command
