#include "tools/kelifc/text.h"

#include <cstdint>

namespace command {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, std::uint32_t code) {
  const auto put = [&out](std::uint32_t byte) { out += static_cast<char>(byte); };
  const auto putTail = [&](int shift) { put(0x80 | ((code >> shift) & 0x3F)); };
  if (code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) code = kReplacement;
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | (code >> 6));
    putTail(0);
  } else if (code < 0x10000) {
    put(0xE0 | (code >> 12));
    putTail(6);
    putTail(0);
  } else {
    put(0xF0 | (code >> 18));
    putTail(12);
    putTail(6);
    putTail(0);
  }
}

}  // namespace

std::string Utf8FromLatin1(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) AppendUtf8(out, static_cast<unsigned char>(c));
  return out;
}

std::string Utf8FromWide(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (const wchar_t c : text) AppendUtf8(out, static_cast<std::uint32_t>(c));
  return out;
}

}  // namespace command
