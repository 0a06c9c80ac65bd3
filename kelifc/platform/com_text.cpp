#include "kelifc/platform/com_text.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "kelifc/platform/utf8.h"

namespace KelIFC {

std::string NarrowText(BSTR text) {
  std::string narrow(SysStringLen(text), '?');
  for (std::size_t i = 0; i < narrow.size(); ++i) {
    if (static_cast<std::uint32_t>(text[i]) <= 0xFF) narrow[i] = static_cast<char>(text[i]);
  }
  return narrow;
}

std::string Utf8Text(std::wstring_view text) { return Utf8FromWide(text); }

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

HRESULT GiveUtf8Text(std::string_view text, BSTR* out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  const std::wstring wide = WideFromUtf8(ToUtf8(text));
  if (wide.size() > std::numeric_limits<UINT>::max()) return E_OUTOFMEMORY;
  *out = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  return *out == nullptr ? E_OUTOFMEMORY : S_OK;
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

constexpr char32_t kByteSurrogate = 0xDC00;  // plus a byte from 0x80 on

}  // namespace

std::string NarrowPath(std::wstring_view path) {
  std::string narrow;
  narrow.reserve(path.size());
  for (const wchar_t character : path) {
    const char32_t code = static_cast<std::make_unsigned_t<wchar_t>>(character);
    if (code >= kByteSurrogate + 0x80 && code <= kByteSurrogate + 0xFF) {
      narrow += static_cast<char>(code - kByteSurrogate);
    } else {
      AppendUtf8(narrow, code);
    }
  }
  return narrow;
}

std::wstring WidePath(std::string_view path) {
  std::wstring wide;
  wide.reserve(path.size());
  while (!path.empty()) {
    char32_t code = 0;
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
