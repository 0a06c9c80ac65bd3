#ifndef KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_
#define KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_

#include "kelifc/platform/com_interfaces.h"

// The type library of the object model, which lies in the library's own file. Windows only.

namespace KelIFC {

/// The type library as the registry has it, counted: TYPE_E_LIBNOTREGISTERED where it does not.
HRESULT LoadTypeLibrary(ITypeLib** out);

/// Enters the type library in the registry, and takes it out again; one that is not there is no
/// failure. `file` is the library's own.
HRESULT RegisterTypeLibrary(const wchar_t* file);
HRESULT UnregisterTypeLibrary();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_TYPE_LIBRARY_H_
