#include "python/source/errors.h"

#include "python/source/to_python.h"

namespace KelIFC::python {
namespace {

[[noreturn]] void RaiseObject(const py::object& error) {
  PyErr_SetObject(reinterpret_cast<PyObject*>(Py_TYPE(error.ptr())), error.ptr());
  throw py::error_already_set();
}

}  // namespace

void RaiseFileError(const char* errorClass, const std::string& path, const std::string& reason,
                    const std::optional<SourcePlace>& place) {
  const py::object type = py::module_::import("kelifc.errors").attr(errorClass);
  py::object where = py::none();
  if (place) where = py::make_tuple(place->line, place->column);
  RaiseObject(type(ToText(path), ToText(reason), where));
}

void Raise(PyObject* errorClass, const std::string& message) {
  PyErr_SetObject(errorClass, ToText(message).ptr());
  throw py::error_already_set();
}

}  // namespace KelIFC::python
