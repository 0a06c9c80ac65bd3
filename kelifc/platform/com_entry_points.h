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

/// Returns the class object of a class of this library through its interface `iid`. The caller
/// releases it. An unknown class gives CLASS_E_CLASSNOTAVAILABLE and a null `out`; a null `out`
/// argument gives E_POINTER.
extern "C" KELIFC_API HRESULT DllGetClassObject(const CLSID& clsid, const IID& iid, void** out);

/// Returns S_OK if the library can be unloaded: none of its objects is alive and no host has locked
/// it. Otherwise returns S_FALSE.
extern "C" KELIFC_API HRESULT DllCanUnloadNow();

#endif

#endif  // KELIFC_PLATFORM_COM_ENTRY_POINTS_H_
