#ifndef PYTHON_SOURCE_TYPED_VALUE_H_
#define PYTHON_SOURCE_TYPED_VALUE_H_

#include <pybind11/pybind11.h>

namespace KelIFC::python {

namespace py = pybind11;

/// The class kelifc.values.TypedValue, which has the attributes `type` and `value`.
py::handle TypedValueClass();

inline bool IsTypedValue(const py::handle& value) {
  return py::isinstance(value, TypedValueClass());
}

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_TYPED_VALUE_H_
