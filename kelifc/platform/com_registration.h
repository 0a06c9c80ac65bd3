#ifndef KELIFC_PLATFORM_COM_REGISTRATION_H_
#define KELIFC_PLATFORM_COM_REGISTRATION_H_

#include "kelifc/platform/com_types.h"

// The entries of the library in the registry of the system: for each class its file, its program
// names and its threading model, and the type library. Windows only.

namespace KelIFC {

/// Makes all entries. On failure those made so far are taken out again.
HRESULT RegisterLibrary();

/// Takes all entries out; one that is missing is no failure.
HRESULT UnregisterLibrary();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_REGISTRATION_H_
