#ifndef PYTHON_SOURCE_PROGRESS_H_
#define PYTHON_SOURCE_PROGRESS_H_

#include <pybind11/pybind11.h>

#include <chrono>
#include <cstdint>
#include <exception>
#include <utility>

#include "kelifc/kelifc.h"

namespace KelIFC::python {

namespace py = pybind11;

/// Calls a Python function now and then from work that has released the interpreter lock, and lets
/// the interpreter handle signals such as Ctrl-C. An exception stops the work; RethrowIfFailed
/// throws it again.
class Progress {
 public:
  /// `function` may be None.
  explicit Progress(py::object function) : function(std::move(function)) {}

  /// Calls the function with these arguments. Most calls do nothing, because there are at most 20
  /// per second. Returns false if the work must stop: the function returned False, or an exception
  /// was raised.
  template <class... Numbers>
  bool Report(bool isLast, Numbers... numbers) {
    const auto now = std::chrono::steady_clock::now();
    if (!isLast && now < next) return true;
    next = now + std::chrono::milliseconds(50);
    const py::gil_scoped_acquire lock;
    try {
      if (PyErr_CheckSignals() != 0) throw py::error_already_set();
      if (!function.is_none() && function(numbers...).ptr() == Py_False) isCancelled = true;
    } catch (const py::error_already_set&) {
      failure = std::current_exception();
    }
    return !isCancelled && !failure;
  }

  /// Returns a handler that calls Report. It must not be called after this object is destroyed.
  ProgressHandler GetHandler() {
    return [this](std::uint64_t done, std::uint64_t total) {
      return Report(done == total, done, total);
    };
  }

  /// Throws the exception of the function, if there was one. The caller holds the interpreter lock.
  void RethrowIfFailed() const {
    if (failure) std::rethrow_exception(failure);
  }

  bool IsCancelled() const { return isCancelled; }

 private:
  py::object function;
  std::chrono::steady_clock::time_point next;  // the first call is made at once
  bool isCancelled = false;
  std::exception_ptr failure;
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_PROGRESS_H_
