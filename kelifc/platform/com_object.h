#ifndef KELIFC_PLATFORM_COM_OBJECT_H_
#define KELIFC_PLATFORM_COM_OBJECT_H_

#include <new>
#include <type_traits>
#include <utility>

#include "kelifc/platform/com_guard.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_module.h"

namespace KelIFC {

/// The interfaces of a class, in the order in which a query tries them. The first is the class's
/// own: it also answers for IUnknown.
template <class Own, class... Others>
struct InterfaceList {
  using First = Own;

  /// The interface `iid` of the object, not counted, or null.
  template <class Impl>
  static void* Find(Impl* object, const IID& iid) {
    void* found = nullptr;
    static_cast<void>((Try<Own>(object, iid, &found) || ... || Try<Others>(object, iid, &found)));
    if (iid == IidOf<IUnknown>()) found = Cast<IUnknown>(object);
    return found;
  }

 private:
  /// What the own interface derives from is reached through it, so both are the same pointer.
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

/// The living form of a class: Impl, which has the operations, with the three of IUnknown. Impl
/// names its interfaces as `Impl::Interfaces`, and whether it counts as `Impl::Counted`: LiveObject
/// or UncountedObject.
///
/// The count is plain: an object belongs to one thread at a time.
template <class Impl>
class Object final : public Impl, private Impl::Counted {
 public:
  /// A new object with one count, which is the caller's. Throws std::bad_alloc.
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

/// Makes an object and gives its interface `iid`, counted. On failure `out` is null.
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
