#ifndef PYTHON_SOURCE_VALUES_H_
#define PYTHON_SOURCE_VALUES_H_

#include <pybind11/pybind11.h>

#include <cstddef>
#include <memory>
#include <string>

#include "kelifc/kelifc.h"

#include "python/source/instance.h"
#include "python/source/model.h"

namespace KelIFC::python {

/// A value of an instance in Python: None, bool, int, float, str, Instance, TypedValue, or a tuple
/// of them. An inline instance without a number is a TypedValue whose value is the tuple of its
/// attributes. A derived value and a reference that leads nowhere are None.
py::object ValueToPython(const std::shared_ptr<Model>& model, const AttributeValue& value);

/// Sets the value at a position of an instance. Raises TypeError or ValueError, and the instance
/// keeps its value, if it does not fit; AttributeError if the instance does not keep the attribute.
void SetValue(const Instance& instance, std::size_t position, const py::handle& value);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_VALUES_H_
