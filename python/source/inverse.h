#ifndef PYTHON_SOURCE_INVERSE_H_
#define PYTHON_SOURCE_INVERSE_H_

#include <pybind11/pybind11.h>

#include <string>
#include <vector>

#include "kelifc/kelifc.h"

#include "python/source/instance.h"

namespace KelIFC::python {

namespace py = pybind11;

/// The value of an inverse attribute: a tuple of the instances that refer to an instance, in the
/// order of the file. New instances follow by their numbers.
py::tuple InverseOf(const Instance& instance, const InverseAttribute& inverse);

/// The names of the inverse attributes of an entity. Those of its supertypes come first.
std::vector<std::string> InverseNamesOf(const EntityDescription& entity);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_INVERSE_H_
