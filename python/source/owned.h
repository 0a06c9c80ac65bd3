#ifndef PYTHON_SOURCE_OWNED_H_
#define PYTHON_SOURCE_OWNED_H_

#include <memory>
#include <vector>

namespace KelIFC::python {

/// What keeps a value alive that Python objects and arrays point into. The value never changes.
using Owner = std::shared_ptr<const void>;

/// A value inside a larger one, as Python holds it. `owner` keeps the larger value alive.
template <class T>
struct View {
  Owner owner;
  const T* item = nullptr;  ///< never null
};

/// A list inside a larger value, as Python holds it.
template <class T>
struct ListView {
  Owner owner;
  const std::vector<T>* items = nullptr;  ///< never null
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_OWNED_H_
