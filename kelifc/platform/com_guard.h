#ifndef KELIFC_PLATFORM_COM_GUARD_H_
#define KELIFC_PLATFORM_COM_GUARD_H_

#include <new>

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// Runs `act`, which gives a status, and turns an exception into one: no exception crosses an
/// interface.
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
