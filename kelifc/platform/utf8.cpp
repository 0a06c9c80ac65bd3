#include "kelifc/platform/utf8.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace KelIFC {
namespace {

/// The number of bytes of the sequence that a lead byte begins; 0 for a byte that begins none.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

void AppendWide(std::wstring& out, char32_t code) {
  if (sizeof(wchar_t) == 2 && code > 0xFFFF) {
    out += static_cast<wchar_t>(0xD800 + ((code - 0x10000) >> 10));
    out += static_cast<wchar_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
  } else {
    out += static_cast<wchar_t>(code);
  }
}

char32_t CodeOf(wchar_t c) { return static_cast<std::make_unsigned_t<wchar_t>>(c); }

}  // namespace

void AppendUtf8(std::string& out, char32_t code) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (!IsScalarValue(code)) code = kReplacementCharacter;
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | code >> 6);
    tail(0);
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | code >> 12);
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0 | code >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

bool TakeUtf8(std::string_view& text, char32_t& code) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > text.size()) return false;
  char32_t read = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return false;
    read = read << 6 | (byte & 0x3F);
  }
  const bool isLongerThanNeeded = (length == 3 && read < 0x800) || (length == 4 && read < 0x10000);
  if (isLongerThanNeeded || !IsScalarValue(read)) return false;
  code = read;
  text.remove_prefix(length);
  return true;
}

bool IsValidUtf8(std::string_view text) {
  char32_t code = 0;
  while (!text.empty()) {
    if (IsAscii(text.front())) {
      text.remove_prefix(1);
    } else if (!TakeUtf8(text, code)) {
      return false;
    }
  }
  return true;
}

std::string ToUtf8(std::string_view text) {
  if (IsValidUtf8(text)) return std::string(text);
  std::string out;
  out.reserve(text.size() + text.size() / 2);
  for (const char c : text) AppendUtf8(out, static_cast<unsigned char>(c));
  return out;
}

std::wstring WideFromUtf8(std::string_view text) {
  std::wstring wide;
  wide.reserve(text.size());
  while (!text.empty()) {
    char32_t code = kReplacementCharacter;
    if (!TakeUtf8(text, code)) text.remove_prefix(1);
    AppendWide(wide, code);
  }
  return wide;
}

std::string Utf8FromWide(std::wstring_view text) {
  const auto other =
      std::find_if(text.begin(), text.end(), [](wchar_t c) { return CodeOf(c) >= 0x80; });
  std::string out(text.size(), '\0');
  std::transform(text.begin(), other, out.begin(), [](wchar_t c) { return static_cast<char>(c); });
  const auto plain = static_cast<std::size_t>(other - text.begin());
  out.resize(plain);
  for (std::size_t i = plain; i < text.size(); ++i) {
    char32_t code = CodeOf(text[i]);
    const bool isPair =
        IsHighSurrogate(code) && i + 1 < text.size() && IsLowSurrogate(CodeOf(text[i + 1]));
    if (isPair) code = 0x10000 + ((code - 0xD800) << 10) + (CodeOf(text[++i]) - 0xDC00);
    AppendUtf8(out, code);
  }
  return out;
}

}  // namespace KelIFC
