#ifndef PYTHON_SOURCE_ERRORS_H_
#define PYTHON_SOURCE_ERRORS_H_

#include <pybind11/pybind11.h>

#include <string>

namespace KelIFC::python {

namespace py = pybind11;

// Exceptions are classes of kelifc.errors, so that they have documentation and types. Each of these
// functions throws py::error_already_set; the caller holds the interpreter lock.

/// Raises kelifc.OpenError, or a class that derives from it.
[[noreturn]] void RaiseOpenError(const std::string& path, const std::string& reason,
                                 const char* errorClass = "OpenError");

/// Raises a class of kelifc.errors that takes a path and a reason.
[[noreturn]] void RaiseFileError(const char* errorClass, const std::string& path,
                                 const std::string& reason);

/// Raises a built-in exception, such as PyExc_ValueError.
[[noreturn]] void Raise(PyObject* errorClass, const std::string& message);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_ERRORS_H_
