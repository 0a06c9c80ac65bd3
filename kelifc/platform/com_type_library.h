#ifndef KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_
#define KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_

#include "kelifc/platform/com_interfaces.h"

// The type library of the object model. It is a resource of the library's own file. The functions
// exist on Windows only.

namespace KelIFC {

/// Stores a counted pointer to the type library that is registered. Returns TYPE_E_LIBNOTREGISTERED
/// if there is none.
HRESULT LoadTypeLibrary(ITypeLib** out);

/// Enters the type library of `file`, the library itself, in the registry, or removes it. Removing
/// one that is not registered is not a failure.
HRESULT RegisterTypeLibrary(const wchar_t* file);
HRESULT UnregisterTypeLibrary();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_
