#ifndef PYTHON_SOURCE_ATTRIBUTE_ACCESS_H_
#define PYTHON_SOURCE_ATTRIBUTE_ACCESS_H_

#include <pybind11/pybind11.h>

namespace KelIFC::python {

namespace py = pybind11;

/// Makes a class of Python read and write the attributes of an entity by their names. Names of
/// attributes begin with a capital letter, and names of operations do not, so one look at the name
/// decides. This is faster than `__getattr__`, which is called after a normal search has failed.
void UseAttributesOfEntities(PyHeapTypeObject* type);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_ATTRIBUTE_ACCESS_H_
