#ifndef KELIFC_GEO_CREATION_H_
#define KELIFC_GEO_CREATION_H_

#include <utility>

#include "kelifc/platform/com_factory.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

// Objects are created by the identifier of their class, as a host creates them. So a class object
// that replaces the one of the library is used here, too. The new object is then cast to the class.

/// The interface of the class itself.
template <class Class>
using OwnInterface = typename Class::Interfaces::First;

/// Stores a child object that its parent creates at the first call and caches in `child`. A new
/// child is passed to `fill`, which takes a Class& and returns a status. If `fill` fails, its
/// status is returned once; the child stays, and later calls return it as it is. On failure `out`
/// is null. Returns E_POINTER if `out` is null.
template <class Class, class Fill>
HRESULT GiveChild(ComPtr<OwnInterface<Class>>& child, OwnInterface<Class>** out, Fill&& fill) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guard([&] {
    if (!child) {
      HRESULT status =
          CoCreateInstance(Class::kClsid, nullptr, CLSCTX_ALL, IidOf<OwnInterface<Class>>(),
                           reinterpret_cast<void**>(child.Put()));
      if (SUCCEEDED(status)) status = fill(static_cast<Class&>(*child));
      if (FAILED(status)) return status;
    }
    child.CopyTo(out);
    return S_OK;
  });
}

/// Creates many objects of one class. The class object is fetched once.
template <class Class>
class Factory {
 public:
  /// Fetches the class object. Call it before Append.
  HRESULT Open() {
    return CoGetClassObject(Class::kClsid, CLSCTX_SERVER, nullptr, IidOf<IClassFactory>(),
                            reinterpret_cast<void**>(factory.Put()));
  }

  /// Creates an object and appends it to the collection, which owns it. On success `item` points to
  /// it.
  template <class Collection>
  HRESULT Append(Collection& collection, Class** item) {
    ComPtr<OwnInterface<Class>> object;
    const HRESULT status = factory->CreateInstance(nullptr, IidOf<OwnInterface<Class>>(),
                                                   reinterpret_cast<void**>(object.Put()));
    if (FAILED(status)) return status;
    *item = static_cast<Class*>(object.Get());
    collection.Append(std::move(object));
    return status;
  }

 private:
  ComPtr<IClassFactory> factory;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_CREATION_H_
