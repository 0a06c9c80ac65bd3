#include "kelifc/platform/com_string.h"

#ifndef _WIN32

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace {

/// The length precedes the characters in memory.
struct Prefix {
  std::uint64_t length;
};

/// The most characters of a string: its size in bytes then fits in 32 bits.
constexpr UINT kLongest = 0x3FFFFFF0;

Prefix* PrefixOf(BSTR string) { return reinterpret_cast<Prefix*>(string) - 1; }

}  // namespace

BSTR SysAllocString(const OLECHAR* text) {
  if (text == nullptr) return nullptr;
  const std::size_t length = std::wcslen(text);
  return length > kLongest ? nullptr : SysAllocStringLen(text, static_cast<UINT>(length));
}

BSTR SysAllocStringLen(const OLECHAR* text, UINT length) {
  if (length > kLongest) return nullptr;
  const std::size_t size = sizeof(Prefix) + (std::size_t{length} + 1) * sizeof(OLECHAR);
  auto* prefix = static_cast<Prefix*>(std::malloc(size));
  if (prefix == nullptr) return nullptr;
  prefix->length = length;
  auto* const string = reinterpret_cast<OLECHAR*>(prefix + 1);
  if (text != nullptr) std::memcpy(string, text, length * sizeof(OLECHAR));
  string[length] = L'\0';
  return string;
}

void SysFreeString(BSTR string) {
  if (string != nullptr) std::free(PrefixOf(string));
}

UINT SysStringLen(BSTR string) {
  return string == nullptr ? 0 : static_cast<UINT>(PrefixOf(string)->length);
}

#endif
