#ifndef KELIFC_PLATFORM_COM_OBJECT_H_
#define KELIFC_PLATFORM_COM_OBJECT_H_

#include <new>
#include <type_traits>
#include <utility>

#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_module.h"

namespace KelIFC {

/// The interfaces of a class, in the order in which a query tries them. The first one is the
/// interface of the class itself. A query for IUnknown returns it, too.
template <class Own, class... Others>
struct InterfaceList {
  using First = Own;

  /// Returns the interface `iid` of the object without counting, or null.
  template <class Impl>
  static void* Find(Impl* object, const IID& iid) {
    void* found = nullptr;
    static_cast<void>((Try<Own>(object, iid, &found) || ... || Try<Others>(object, iid, &found)));
    if (iid == IidOf<IUnknown>()) found = Cast<IUnknown>(object);
    return found;
  }

 private:
  /// A base of the own interface is cast by way of it. So a query for IDispatch or IGeoObject
  /// returns the same pointer as a query for the own interface.
  template <class Interface, class Impl>
  static Interface* Cast(Impl* object) {
    if constexpr (std::is_base_of_v<Interface, Own>) {
      return static_cast<Own*>(object);
    } else {
      return object;
    }
  }

  template <class Interface, class Impl>
  static bool Try(Impl* object, const IID& iid, void** found) {
    if (iid != IidOf<Interface>()) return false;
    *found = Cast<Interface>(object);
    return true;
  }
};

/// The class from which objects are created: Impl with the three operations of IUnknown.
/// `Impl::Interfaces` is its InterfaceList. `Impl::Counted` is LiveObject or UncountedObject.
///
/// The reference count is not atomic: an object belongs to one thread at a time.
template <class Impl>
class Object final : public Impl, private Impl::Counted {
 public:
  /// Creates an object with one reference, which belongs to the caller. Throws std::bad_alloc.
  template <class... Arguments>
  explicit Object(Arguments&&... arguments) : Impl(std::forward<Arguments>(arguments)...) {}

  HRESULT QueryInterface(const IID& iid, void** out) override {
    if (out == nullptr) return E_POINTER;
    *out = Impl::Interfaces::Find(static_cast<Impl*>(this), iid);
    if (*out == nullptr) return E_NOINTERFACE;
    ++references;
    return S_OK;
  }

  ULONG AddRef() override { return ++references; }

  ULONG Release() override {
    const ULONG left = --references;
    if (left == 0) delete this;
    return left;
  }

 protected:
  ~Object() = default;

 private:
  ULONG references = 1;
};

/// Creates an object and stores a counted pointer to its interface `iid`. On failure it stores
/// null. Returns E_POINTER if `out` is null.
template <class Impl, class... Arguments>
HRESULT MakeObject(const IID& iid, void** out, Arguments&&... arguments) {
  if (out == nullptr) return E_POINTER;
  *out = nullptr;
  return Guard([&] {
    auto* const object = new Object<Impl>(std::forward<Arguments>(arguments)...);
    const HRESULT status = object->QueryInterface(iid, out);
    object->Release();
    return status;
  });
}

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_OBJECT_H_
