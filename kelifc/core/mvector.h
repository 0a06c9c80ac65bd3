#ifndef KELIFC_CORE_MVECTOR_H_
#define KELIFC_CORE_MVECTOR_H_

#include <cstddef>
#include <type_traits>
#include <vector>

#include "kelifc/core/invalid_parameter.h"

namespace KelIFC {

/// The growable contiguous array that is part of the library's binary interface. Positions count
/// from 0. Access to an element at or above the size is a fatal error, see
/// SetInvalidParameterHandler.
template <class T>
class Mvector {
  static_assert(!std::is_same_v<T, bool>, "a vector of bool has no contiguous elements");

 public:
  using value_type = T;  ///< the type of an element

  /// Returns the number of elements.
  std::size_t size() const { return items.size(); }
  /// Returns the number of elements for which memory is allocated.
  std::size_t capacity() const { return items.capacity(); }
  /// Returns true if there are no elements.
  bool empty() const { return items.empty(); }

  /// Adds copies of `value` at the end, or removes elements from the end.
  void resize(std::size_t count, const T& value = T()) { items.resize(count, value); }
  /// Allocates memory for `count` elements in all.
  void reserve(std::size_t count) { items.reserve(count); }
  /// Destroys all elements and keeps the memory.
  void clear() { items.clear(); }
  /// Adds a copy of `value` at the end.
  void push_back(const T& value) { items.push_back(value); }

  /// @{
  /// Returns the element at a position.
  T& operator[](std::size_t index) {
    Check(index);
    return items[index];
  }
  const T& operator[](std::size_t index) const {
    Check(index);
    return items[index];
  }
  /// @}

  /// @{
  /// Returns the first element, and for `end` the place after the last one. The pointer is valid
  /// until the next change of the number of elements.
  T* data() { return items.data(); }
  const T* data() const { return items.data(); }
  T* begin() { return items.data(); }
  T* end() { return items.data() + items.size(); }
  const T* begin() const { return items.data(); }
  const T* end() const { return items.data() + items.size(); }
  /// @}

 private:
  void Check(std::size_t index) const {
    if (index >= items.size()) FailInvalidParameter("an Mvector was read out of range");
  }

  std::vector<T> items;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_MVECTOR_H_
