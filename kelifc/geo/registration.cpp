#include "kelifc/geo/module.h"
#include "kelifc/platform/com_registration.h"

HRESULT DllRegisterServer() { return KelIFC::RegisterLibrary(); }

HRESULT DllUnregisterServer() { return KelIFC::UnregisterLibrary(); }
