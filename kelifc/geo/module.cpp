#include "kelifc/geo/module.h"

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_module.h"

HRESULT DllGetClassObject(const CLSID& clsid, const IID& iid, void** out) {
  return KelIFC::GetClassObject(clsid, iid, out);
}

HRESULT DllCanUnloadNow() { return KelIFC::CanUnload() ? S_OK : S_FALSE; }
