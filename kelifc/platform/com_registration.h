#ifndef KELIFC_PLATFORM_COM_REGISTRATION_H_
#define KELIFC_PLATFORM_COM_REGISTRATION_H_

#include "kelifc/platform/com_types.h"

// The entries of the library in the registry of Windows: for each class its file, its program names
// and its threading model, and the type library. The functions exist on Windows only.

namespace KelIFC {

/// Writes all entries. If one cannot be written, all of them are removed again.
HRESULT RegisterLibrary();

/// Removes all entries. A missing entry is not a failure.
HRESULT UnregisterLibrary();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_REGISTRATION_H_
