#include "kelifc/platform/com_guid.h"

#ifndef _WIN32

#include <cstring>

namespace {

/// The form of an identifier in braces. A hexadecimal digit and the point after it are the position
/// of a byte, whose two digits belong there. The first byte of each number is its highest one.
constexpr char kForm[] = "{0.1.2.3.-4.5.-6.7.-8.9.-a.b.c.d.e.f.}";
constexpr int kLength = sizeof kForm - 1;

constexpr wchar_t kDigits[] = L"0123456789ABCDEF";

bool IsByte(char mark) { return (mark >= '0' && mark <= '9') || (mark >= 'a' && mark <= 'f'); }

int ByteOf(char mark) { return mark <= '9' ? mark - '0' : mark - 'a' + 10; }

/// Returns the value of a hexadecimal digit, -1 for any other character.
int DigitOf(OLECHAR character) {
  if (character >= L'0' && character <= L'9') return character - L'0';
  if (character >= L'A' && character <= L'F') return character - L'A' + 10;
  if (character >= L'a' && character <= L'f') return character - L'a' + 10;
  return -1;
}

struct Bytes {
  std::uint8_t at[16] = {};
};

Bytes BytesOf(const GUID& guid) {
  Bytes bytes;
  for (int i = 0; i < 4; ++i) bytes.at[i] = static_cast<std::uint8_t>(guid.Data1 >> (24 - 8 * i));
  for (int i = 0; i < 2; ++i) {
    bytes.at[4 + i] = static_cast<std::uint8_t>(guid.Data2 >> (8 - 8 * i));
    bytes.at[6 + i] = static_cast<std::uint8_t>(guid.Data3 >> (8 - 8 * i));
  }
  std::memcpy(bytes.at + 8, guid.Data4, 8);
  return bytes;
}

GUID GuidOf(const Bytes& bytes) {
  GUID guid = {};
  for (int i = 0; i < 4; ++i) guid.Data1 = guid.Data1 << 8 | bytes.at[i];
  guid.Data2 = static_cast<std::uint16_t>(bytes.at[4] << 8 | bytes.at[5]);
  guid.Data3 = static_cast<std::uint16_t>(bytes.at[6] << 8 | bytes.at[7]);
  std::memcpy(guid.Data4, bytes.at + 8, 8);
  return guid;
}

}  // namespace

int StringFromGUID2(const GUID& guid, OLECHAR* text, int size) {
  if (text == nullptr || size <= kLength) return 0;
  const Bytes bytes = BytesOf(guid);
  for (int i = 0; i < kLength; ++i) {
    if (IsByte(kForm[i])) {
      const std::uint8_t byte = bytes.at[ByteOf(kForm[i])];
      text[i] = kDigits[byte >> 4];
      text[++i] = kDigits[byte & 15];
    } else {
      text[i] = static_cast<OLECHAR>(kForm[i]);
    }
  }
  text[kLength] = L'\0';
  return kLength + 1;
}

HRESULT CLSIDFromString(const OLECHAR* text, CLSID* out) {
  if (text == nullptr || out == nullptr) return E_INVALIDARG;
  *out = {};
  Bytes bytes;
  // A null character matches no position of the form, so the loop never reads beyond it.
  for (int i = 0; i < kLength; ++i) {
    if (!IsByte(kForm[i])) {
      if (text[i] != static_cast<OLECHAR>(kForm[i])) return CO_E_CLASSSTRING;
      continue;
    }
    const int high = DigitOf(text[i]);
    if (high < 0) return CO_E_CLASSSTRING;
    const int low = DigitOf(text[i + 1]);
    if (low < 0) return CO_E_CLASSSTRING;
    bytes.at[ByteOf(kForm[i])] = static_cast<std::uint8_t>(high << 4 | low);
    ++i;
  }
  if (text[kLength] != L'\0') return CO_E_CLASSSTRING;
  *out = GuidOf(bytes);
  return S_OK;
}

#endif
