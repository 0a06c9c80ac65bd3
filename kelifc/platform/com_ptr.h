#ifndef KELIFC_PLATFORM_COM_PTR_H_
#define KELIFC_PLATFORM_COM_PTR_H_

#include <type_traits>
#include <utility>

#include "kelifc/platform/com_interfaces.h"

namespace KelIFC {

/// Owns one reference to an object, by one of its interfaces, or is empty. The operators `->` and
/// `*` must not be used on an empty pointer.
template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;

  /// Adds a reference of its own. Null makes an empty pointer.
  explicit ComPtr(Interface* counted) : object(counted) { Hold(); }
  ComPtr(const ComPtr& other) : object(other.object) { Hold(); }
  ComPtr(ComPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
  ~ComPtr() { Reset(); }

  /// The same object through an interface that `Derived` inherits from, without a query.
  template <class Derived, class = std::enable_if_t<std::is_convertible_v<Derived*, Interface*>>>
  ComPtr(const ComPtr<Derived>& other)  // NOLINT(google-explicit-constructor)
      : ComPtr(other.Get()) {}

  /// Takes the reference of `other`. Releases the object that the pointer held before.
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(object, other.object);
    return *this;
  }

  /// Returns the interface without a new reference, or null. It is valid as long as this pointer
  /// holds the object.
  Interface* Get() const { return object; }
  /// Calls an operation of the object.
  Interface* operator->() const { return object; }
  /// Returns the interface without a new reference.
  Interface& operator*() const { return *object; }
  /// Returns false if the pointer is empty.
  explicit operator bool() const { return object != nullptr; }

  /// Releases the object; the pointer is then empty.
  void Reset() {
    if (Interface* const old = std::exchange(object, nullptr)) old->Release();
  }

  /// Releases the object and returns the place at which an operation stores a counted pointer.
  Interface** Put() {
    Reset();
    return &object;
  }

  /// Stores the pointer and adds a reference for its receiver. Stores null if the pointer is empty.
  void CopyTo(Interface** out) const {
    Hold();
    *out = object;
  }

  /// Queries another interface of the object. The result is empty if the object does not have it.
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
