#include "kelifc/platform/com_local_classes.h"

#ifdef _WIN32

#include "kelifc/platform/com_class.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

LocalClasses::LocalClasses() {
  status = CoInitialize(nullptr);
  for (const ComClass& type : ComClasses()) {
    if (FAILED(status)) return;
    ComPtr<IUnknown> factory;
    status = GetLocalClassObject(type, IidOf<IUnknown>(), reinterpret_cast<void**>(factory.Put()));
    if (FAILED(status)) return;
    cookies.push_back(0);
    status = CoRegisterClassObject(type.clsid, factory.Get(), CLSCTX_INPROC_SERVER,
                                   REGCLS_MULTIPLEUSE, &cookies.back());
    if (FAILED(status)) cookies.pop_back();
  }
}

LocalClasses::~LocalClasses() {
  for (const DWORD cookie : cookies) CoRevokeClassObject(cookie);
  // CoInitialize returns S_FALSE on a thread that was initialised before. CoUninitialize is due
  // then, too.
  if (SUCCEEDED(status) || !cookies.empty()) CoUninitialize();
}

}  // namespace KelIFC

#else

namespace KelIFC {

LocalClasses::LocalClasses() = default;

LocalClasses::~LocalClasses() = default;

}  // namespace KelIFC

#endif
