#ifndef KELIFC_GEO_MODULE_H_
#define KELIFC_GEO_MODULE_H_

#include "kelifc/platform/com_types.h"
#include "kelifc/platform/export.h"

// The doors of the library, for hosts that load it at run time.

/// The object that makes objects of a class of this library, through its interface `iid`. An
/// unknown class gives CLASS_E_CLASSNOTAVAILABLE and null; a null `out` gives E_POINTER.
extern "C" KELIFC_API HRESULT DllGetClassObject(const CLSID& clsid, const IID& iid, void** out);

/// S_OK if the library can be unloaded: no object of it lives and no lock is on it. Else S_FALSE.
extern "C" KELIFC_API HRESULT DllCanUnloadNow();

#ifdef _WIN32
/// Enters the classes and the type library in the registry of the system, as `regsvr32` asks for,
/// and takes them out again.
extern "C" KELIFC_API HRESULT DllRegisterServer();
extern "C" KELIFC_API HRESULT DllUnregisterServer();
#endif

#endif  // KELIFC_GEO_MODULE_H_
