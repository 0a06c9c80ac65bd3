#include "kelifc/platform/com_entry_points.h"

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_module.h"

#ifdef _WIN32
#include "kelifc/platform/com_registration.h"
#endif

// The headers of Windows declare these functions without a mark for export, so the definitions have
// it.

extern "C" {

KELIFC_API HRESULT DllGetClassObject(const CLSID& clsid, const IID& iid, void** out) {
  return KelIFC::GetClassObject(clsid, iid, out);
}

KELIFC_API HRESULT DllCanUnloadNow() { return KelIFC::CanUnload() ? S_OK : S_FALSE; }

#ifdef _WIN32

KELIFC_API HRESULT DllRegisterServer() { return KelIFC::RegisterLibrary(); }

KELIFC_API HRESULT DllUnregisterServer() { return KelIFC::UnregisterLibrary(); }

#endif

}  // extern "C"
