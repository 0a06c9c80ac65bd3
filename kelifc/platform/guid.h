#ifndef KELIFC_PLATFORM_GUID_H_
#define KELIFC_PLATFORM_GUID_H_

#include <cstdint>
#include <cstring>

#ifdef _WIN32
#include <guiddef.h>
#else
/// A 128-bit identifier. The three numeric fields are in the byte order of the machine.
struct _GUID {
  std::uint32_t Data1;    ///< the first 8 hexadecimal digits of the text form
  std::uint16_t Data2;    ///< the next 4 digits
  std::uint16_t Data3;    ///< the next 4 digits
  std::uint8_t Data4[8];  ///< the last 16 digits, two in each byte
};
using GUID = _GUID;  ///< the usual name of the type

/// Returns true if all 16 bytes are equal.
inline bool operator==(const _GUID& a, const _GUID& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}
/// Returns true if one of the 16 bytes differs.
inline bool operator!=(const _GUID& a, const _GUID& b) { return !(a == b); }
#endif

namespace KelIFC {

/// Returns true if all 16 bytes are 0. The null identifier means "no identifier".
inline bool IsNullGuid(const _GUID& guid) {
  const _GUID null = {};
  return std::memcmp(&guid, &null, sizeof guid) == 0;
}

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_GUID_H_
