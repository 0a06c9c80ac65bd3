#include "kelifc/platform/com_text.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace KelIFC {

namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;

/// The two halves of a pair of surrogates each carry ten bits of a character above 0xFFFF.
constexpr std::uint32_t kHighSurrogate = 0xD800 >> 10;
constexpr std::uint32_t kLowSurrogate = 0xDC00 >> 10;

bool IsSurrogate(std::uint32_t code) { return code >= 0xD800 && code <= 0xDFFF; }

void AppendUtf8(std::string& out, std::uint32_t code) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
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

/// Appends a character. A surrogate, and a code above the last character, become U+FFFD.
void AppendCharacter(std::string& out, std::uint32_t code) {
  AppendUtf8(out, IsSurrogate(code) || code > 0x10FFFF ? kReplacement : code);
}

std::uint32_t CodeOf(wchar_t character) {
  return static_cast<std::make_unsigned_t<wchar_t>>(character);
}

}  // namespace

std::string NarrowText(BSTR text) {
  std::string narrow(SysStringLen(text), '?');
  for (std::size_t i = 0; i < narrow.size(); ++i) {
    if (static_cast<std::uint32_t>(text[i]) <= 0xFF) narrow[i] = static_cast<char>(text[i]);
  }
  return narrow;
}

std::string Utf8Text(std::wstring_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::uint32_t code = CodeOf(text[i]);
    const std::uint32_t next = i + 1 < text.size() ? CodeOf(text[i + 1]) : 0;
    if (code >> 10 == kHighSurrogate && next >> 10 == kLowSurrogate) {
      code = 0x10000 + ((code & 0x3FF) << 10 | (next & 0x3FF));
      ++i;
    }
    AppendCharacter(out, code);
  }
  return out;
}

HRESULT GiveText(std::string_view text, BSTR* out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  if (text.size() > std::numeric_limits<UINT>::max()) return E_OUTOFMEMORY;
  OLECHAR* const wide = SysAllocStringLen(nullptr, static_cast<UINT>(text.size()));
  if (wide == nullptr) return E_OUTOFMEMORY;
  for (std::size_t i = 0; i < text.size(); ++i) wide[i] = static_cast<unsigned char>(text[i]);
  *out = wide;
  return S_OK;
}

#ifdef _WIN32

std::string NarrowPath(std::wstring_view path) {
  const int length = static_cast<int>(path.size());
  const int size =
      WideCharToMultiByte(CP_ACP, 0, path.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, 0, path.data(), length, narrow.data(), size, nullptr, nullptr);
  return narrow;
}

std::wstring WidePath(std::string_view path) {
  const int length = static_cast<int>(path.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, path.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_ACP, 0, path.data(), length, wide.data(), size);
  return wide;
}

#else

namespace {

constexpr std::uint32_t kByteSurrogate = 0xDC00;  // plus a byte from 0x80 on

/// How many bytes a lead byte asks for, 0 if it is none.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

/// Takes one character off the head of `text`, or gives false and leaves it where it is no UTF-8.
bool TakeUtf8(std::string_view& text, std::uint32_t& code) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > text.size()) return false;
  code = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return false;
    code = code << 6 | (byte & 0x3F);
  }
  const bool isLongerThanNeeded = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  if (isLongerThanNeeded || IsSurrogate(code) || code > 0x10FFFF) return false;
  text.remove_prefix(length);
  return true;
}

}  // namespace

std::string NarrowPath(std::wstring_view path) {
  std::string narrow;
  narrow.reserve(path.size());
  for (const wchar_t character : path) {
    const std::uint32_t code = CodeOf(character);
    if (code >= kByteSurrogate + 0x80 && code <= kByteSurrogate + 0xFF) {
      narrow += static_cast<char>(code - kByteSurrogate);
    } else {
      AppendCharacter(narrow, code);
    }
  }
  return narrow;
}

std::wstring WidePath(std::string_view path) {
  std::wstring wide;
  wide.reserve(path.size());
  while (!path.empty()) {
    std::uint32_t code = 0;
    if (!TakeUtf8(path, code)) {
      code = kByteSurrogate + static_cast<unsigned char>(path.front());
      path.remove_prefix(1);
    }
    wide += static_cast<wchar_t>(code);
  }
  return wide;
}

#endif

}  // namespace KelIFC
