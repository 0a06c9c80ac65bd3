#ifndef KELIFC_PLATFORM_COM_FACTORY_H_
#define KELIFC_PLATFORM_COM_FACTORY_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <combaseapi.h>
#else

// Making objects by the identifier of their class. Without a registry of the system the classes are
// those of this library, and those that somebody registers on the calling thread.

/// The identifier of a class by its program name, with or without the version at its end, in upper
/// or lower case. An unknown name gives CO_E_CLASSSTRING and the null identifier; a null argument
/// E_INVALIDARG.
KELIFC_API HRESULT CLSIDFromProgID(const OLECHAR* progId, CLSID* out);

/// Gives the object that makes objects of a class, through its interface `iid`. `context` must hold
/// CLSCTX_INPROC_SERVER, `reserved` be null. A class that is unknown gives REGDB_E_CLASSNOTREG and
/// null; a null `out` gives E_POINTER.
KELIFC_API HRESULT CoGetClassObject(const CLSID& clsid, DWORD context, void* reserved,
                                    const IID& iid, void** out);

/// Makes an object of a class and gives its interface `iid`. No class here can be made a part of an
/// `outer` object: CLASS_E_NOAGGREGATION. Otherwise as above.
KELIFC_API HRESULT CoCreateInstance(const CLSID& clsid, IUnknown* outer, DWORD context,
                                    const IID& iid, void** out);

/// Puts `factory` in the place of the class object of `clsid` on this thread. `cookie` receives
/// what takes it away again. `context` and `flags` are not used.
KELIFC_API HRESULT CoRegisterClassObject(const CLSID& clsid, IUnknown* factory, DWORD context,
                                         DWORD flags, DWORD* cookie);

/// Takes a class object away again; CO_E_OBJNOTREG if there is none with this cookie on this
/// thread.
KELIFC_API HRESULT CoRevokeClassObject(DWORD cookie);

#endif

#endif  // KELIFC_PLATFORM_COM_FACTORY_H_
