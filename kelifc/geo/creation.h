#ifndef KELIFC_GEO_CREATION_H_
#define KELIFC_GEO_CREATION_H_

#include <utility>

#include "kelifc/platform/com_factory.h"
#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_ptr.h"

namespace KelIFC {

// Objects are made through the identifier of their class, as a host makes them, and are then known
// to be of that class.

/// The class's own interface.
template <class Class>
using OwnInterface = typename Class::Interfaces::First;

/// Gives a child that its parent makes when it is first asked for, and keeps. A new child goes
/// through `fill`, a status of Class&. A child that could not be filled stays: the failure is told
/// once, and later calls give what the child holds. On failure `out` is null.
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

/// Makes many objects of one class, all through the class object that it fetches once.
template <class Class>
class Factory {
 public:
  /// Fetches the class object; goes ahead of everything else.
  HRESULT Open() {
    return CoGetClassObject(Class::kClsid, CLSCTX_SERVER, nullptr, IidOf<IClassFactory>(),
                            reinterpret_cast<void**>(factory.Put()));
  }

  /// Makes an object and appends it to the collection, which owns it from then on. On success
  /// `item` points to it.
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
