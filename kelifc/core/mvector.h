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
  static_assert(!std::is_same_v<T, bool>, "elements stand one behind the other in memory");

 public:
  using value_type = T;

  std::size_t size() const { return items.size(); }
  std::size_t capacity() const { return items.capacity(); }
  bool empty() const { return items.empty(); }

  /// Adds copies of `value` at the end, or removes elements from the end.
  void resize(std::size_t count, const T& value = T()) { items.resize(count, value); }
  void reserve(std::size_t count) { items.reserve(count); }
  void clear() { items.clear(); }
  void push_back(const T& value) { items.push_back(value); }

  T& operator[](std::size_t index) {
    Check(index);
    return items[index];
  }
  const T& operator[](std::size_t index) const {
    Check(index);
    return items[index];
  }

  T* data() { return items.data(); }
  const T* data() const { return items.data(); }
  T* begin() { return items.data(); }
  T* end() { return items.data() + items.size(); }
  const T* begin() const { return items.data(); }
  const T* end() const { return items.data() + items.size(); }

 private:
  void Check(std::size_t index) const {
    if (index >= items.size()) FailInvalidParameter("an Mvector was read out of range");
  }

  std::vector<T> items;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_MVECTOR_H_
