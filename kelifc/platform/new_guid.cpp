#include "kelifc/platform/new_guid.h"

#include <cstdint>

#ifdef _WIN32
#include <objbase.h>
#else
#include <sys/random.h>

#include <random>
#endif

namespace KelIFC {

#ifdef _WIN32

_GUID NewGuid() {
  _GUID guid = {};
  // CoCreateGuid does not fail in practice: it uses neither the network card nor a service.
  static_cast<void>(CoCreateGuid(&guid));
  return guid;
}

#else

namespace {

// getentropy answers within a microsecond; std::random_device may take a hundred.
void FillRandom(_GUID& guid) {
  if (getentropy(&guid, sizeof guid) == 0) return;
  std::random_device device;
  std::uint32_t words[4];
  static_assert(sizeof words == sizeof guid);
  for (std::uint32_t& word : words) word = static_cast<std::uint32_t>(device());
  std::memcpy(&guid, words, sizeof guid);
}

}  // namespace

_GUID NewGuid() {
  _GUID guid = {};
  FillRandom(guid);
  guid.Data3 = static_cast<std::uint16_t>((guid.Data3 & 0x0FFF) | 0x4000);
  guid.Data4[0] = static_cast<std::uint8_t>((guid.Data4[0] & 0x3F) | 0x80);
  return guid;
}

#endif

}  // namespace KelIFC
