#include "python/source/errors.h"

#include "python/source/to_python.h"

namespace KelIFC::python {
namespace {

[[noreturn]] void RaiseObject(const py::object& error) {
  PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error.ptr())), error.ptr());
  throw py::error_already_set();
}

}  // namespace

void RaiseOpenError(const std::string& path, const std::string& reason, const char* errorClass) {
  RaiseFileError(errorClass, path, reason);
}

void RaiseFileError(const char* errorClass, const std::string& path, const std::string& reason) {
  const py::object type = py::module_::import("kelifc.errors").attr(errorClass);
  RaiseObject(type(ToText(path), ToText(reason)));
}

void Raise(PyObject* errorClass, const std::string& message) {
  PyErr_SetObject(errorClass, ToText(message).ptr());
  throw py::error_already_set();
}

}  // namespace KelIFC::python
