#ifndef KELIFC_PLATFORM_COM_ENTRY_POINTS_H_
#define KELIFC_PLATFORM_COM_ENTRY_POINTS_H_

#include "kelifc/platform/com_types.h"
#include "kelifc/platform/export.h"

#ifdef _WIN32
#include <combaseapi.h>
#include <olectl.h>
#else

// The entry points of the library, for hosts that load it at run time and look them up by name. On
// Windows the headers of the system declare them. There the library also has DllRegisterServer and
// DllUnregisterServer, which `regsvr32` calls.

/// Stores a counted pointer to the interface `iid` of a class object of the library. Returns
/// CLASS_E_CLASSNOTAVAILABLE and stores null if no class has the identifier. Returns E_POINTER if
/// `out` is null.
extern "C" KELIFC_API HRESULT DllGetClassObject(const CLSID& clsid, const IID& iid, void** out);

/// Returns S_OK if the library can be unloaded: none of its objects is alive and no host has locked
/// it. Otherwise returns S_FALSE.
extern "C" KELIFC_API HRESULT DllCanUnloadNow();

#endif

#endif  // KELIFC_PLATFORM_COM_ENTRY_POINTS_H_
