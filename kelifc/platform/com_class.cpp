#include "kelifc/platform/com_class.h"

#include "kelifc/platform/com_object.h"

namespace KelIFC {

namespace {

class ClassFactory : public IClassFactory {
 public:
  using Interfaces = InterfaceList<IClassFactory>;
  using Counted = LiveObject;

  explicit ClassFactory(const ComClass& type) : type(type) {}

  HRESULT CreateInstance(IUnknown* outer, const IID& iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return outer != nullptr ? CLASS_E_NOAGGREGATION : type.make(iid, out);
  }

  HRESULT LockServer(BOOL lock) override {
    LockModule(lock != 0);
    return S_OK;
  }

 protected:
  ~ClassFactory() = default;

 private:
  const ComClass& type;
};

/// It lives as long as the process, so it must not keep the library loaded.
class LocalClassFactory : public ClassFactory {
 public:
  using Counted = UncountedObject;
  using ClassFactory::ClassFactory;

 protected:
  ~LocalClassFactory() = default;
};

}  // namespace

HRESULT GetClassObject(const CLSID& clsid, const IID& iid, void** out) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  for (const ComClass& type : ComClasses()) {
    if (type.clsid == clsid) return MakeObject<ClassFactory>(iid, out, type);
  }
  return CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT GetLocalClassObject(const ComClass& type, const IID& iid, void** out) {
  return MakeObject<LocalClassFactory>(iid, out, type);
}

}  // namespace KelIFC
