#ifndef PYTHON_SOURCE_BINDINGS_H_
#define PYTHON_SOURCE_BINDINGS_H_

#include <pybind11/pybind11.h>

namespace KelIFC::python {

namespace py = pybind11;

// Each function adds its classes and functions to the module. The first line of each docstring is
// the signature, from which the type stubs are made.

void BindInstance(py::module_& module);
void BindModel(py::module_& module);
void BindReport(py::module_& module);
void BindStructure(py::module_& module);
void BindBuilding(py::module_& module);
void BindExport(py::module_& module);
void BindTables(py::module_& module);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_BINDINGS_H_
