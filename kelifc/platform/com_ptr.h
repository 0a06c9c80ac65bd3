#ifndef KELIFC_PLATFORM_COM_PTR_H_
#define KELIFC_PLATFORM_COM_PTR_H_

#include <type_traits>
#include <utility>

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// Holds one count of an object through one of its interfaces, or nothing.
template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  explicit ComPtr(Interface* counted) : object(counted) { Hold(); }
  ComPtr(const ComPtr& other) : object(other.object) { Hold(); }
  ComPtr(ComPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
  ~ComPtr() { Reset(); }

  /// The same object through an interface that `Derived` inherits from, without a query.
  template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, Interface*>>>
  ComPtr(const ComPtr<Derived>& other)  // NOLINT(google-explicit-constructor)
      : ComPtr(other.Get()) {}

  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object, other.object);
    return *this;
  }

  Interface* Get() const { return object; }
  Interface* operator->() const { return object; }
  Interface& operator*() const { return *object; }
  explicit operator bool() const { return object != nullptr; }

  /// Lets go of the object.
  void Reset() {
    if (Interface* const old = std::exchange(object, nullptr)) old->Release();
  }

  /// Where an operation puts an object that is already counted; what was held is let go.
  Interface** Put() {
    Reset();
    return &object;
  }

  /// Gives the object away with one more count; null if nothing is held.
  void CopyTo(Interface** out) const {
    Hold();
    *out = object;
  }

  /// Another interface of the object; nothing if it has none such.
  template <class Other>
  ComPtr<Other> As() const {
    ComPtr<Other> other;
    if (object != nullptr) {
      object->QueryInterface(IidOf<Other>(), reinterpret_cast<void**>(other.Put()));
    }
    return other;
  }

 private:
  void Hold() const {
    if (object != nullptr) object->AddRef();
  }

  Interface* object = nullptr;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_COM_PTR_H_
