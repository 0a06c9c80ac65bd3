#include "kelifc/platform/com_type_library.h"

#include <oleauto.h>

#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

HRESULT LoadTypeLibrary(ITypeLib** out) {
  const TypeLibraryVersion version = ComTypeLibrary();
  return LoadRegTypeLib(version.identifier, version.major, version.minor, LOCALE_NEUTRAL, out);
}

HRESULT RegisterTypeLibrary(const wchar_t* file) {
  ComPtr<ITypeLib> library;
  return LoadTypeLibEx(file, REGKIND_REGISTER, library.Put());
}

HRESULT UnregisterTypeLibrary() {
  const TypeLibraryVersion version = ComTypeLibrary();
  Bstr path;
  const HRESULT status = QueryPathOfRegTypeLib(version.identifier, version.major, version.minor,
                                               LOCALE_NEUTRAL, path.Put());
  if (FAILED(status)) return S_OK;
  return UnRegisterTypeLib(version.identifier, version.major, version.minor, LOCALE_NEUTRAL,
                           SYS_WIN64);
}

}  // namespace KelIFC
