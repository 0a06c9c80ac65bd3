#ifndef KELIFC_PLATFORM_COM_GUARD_H_
#define KELIFC_PLATFORM_COM_GUARD_H_

#include <new>

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// Calls `act` and returns its status. An exception becomes a status, since no exception may leave
/// an interface: E_OUTOFMEMORY for std::bad_alloc, E_FAIL for all others.
template <class Act>
HRESULT Guard(Act&& act) noexcept {
  try {
    return act();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_GUARD_H_
