#ifndef KELIFC_PLATFORM_COM_FACTORY_H_
#define KELIFC_PLATFORM_COM_FACTORY_H_

#include "kelifc/platform/com_interfaces.h"

#ifdef _WIN32
#include <combaseapi.h>
#else

// Creation of objects by the identifier of their class. Off Windows there is no registry of
// classes: the known classes are those of this library and those that the calling thread has
// registered.

/// Stores the identifier of the class with a program name. The version at the end of the name may
/// be missing, and letters match in upper and lower case. For an unknown name the function stores
/// the null identifier and returns CO_E_CLASSSTRING. Returns E_INVALIDARG if an argument is null.
KELIFC_API HRESULT CLSIDFromProgID(const OLECHAR* progId, CLSID* out);

/// Stores a counted pointer to the interface `iid` of a class object, which creates objects of the
/// class. Returns REGDB_E_CLASSNOTREG and stores null if the class is unknown or `context` does not
/// contain CLSCTX_INPROC_SERVER. Returns E_INVALIDARG if `reserved` is not null, and E_POINTER if
/// `out` is null.
KELIFC_API HRESULT CoGetClassObject(const CLSID& clsid, DWORD context, void* reserved,
                                    const IID& iid, void** out);

/// Creates an object of a class and stores a counted pointer to its interface `iid`. `outer` must
/// be null, otherwise the result is CLASS_E_NOAGGREGATION. All else is as for CoGetClassObject.
KELIFC_API HRESULT CoCreateInstance(const CLSID& clsid, IUnknown* outer, DWORD context,
                                    const IID& iid, void** out);

/// Registers `factory` as the class object of `clsid` for the calling thread. The newest
/// registration of a class is used first. `cookie` receives the key for CoRevokeClassObject.
/// `context` and `flags` are ignored. Returns E_INVALIDARG if `factory` or `cookie` is null.
KELIFC_API HRESULT CoRegisterClassObject(const CLSID& clsid, IUnknown* factory, DWORD context,
                                         DWORD flags, DWORD* cookie);

/// Removes a registration of the calling thread. Returns CO_E_OBJNOTREG if it has none with this
/// key.
KELIFC_API HRESULT CoRevokeClassObject(DWORD cookie);

#endif

#endif  // KELIFC_PLATFORM_COM_FACTORY_H_
