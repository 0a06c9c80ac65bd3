#ifndef PYTHON_SOURCE_ERRORS_H_
#define PYTHON_SOURCE_ERRORS_H_

#include <pybind11/pybind11.h>

#include <optional>
#include <string>

#include "kelifc/kelifc.h"

namespace KelIFC::python {

namespace py = pybind11;

// Exceptions are classes of kelifc.errors, so that they have documentation and types. Each of these
// functions throws py::error_already_set; the caller holds the interpreter lock.

/// Raises a class of kelifc.errors. `place` is where the file is at fault; none if it is not known.
[[noreturn]] void RaiseFileError(const char* errorClass, const std::string& path,
                                 const std::string& reason,
                                 const std::optional<SourcePlace>& place = std::nullopt);

/// Raises a built-in exception, such as PyExc_ValueError.
[[noreturn]] void Raise(PyObject* errorClass, const std::string& message);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_ERRORS_H_
