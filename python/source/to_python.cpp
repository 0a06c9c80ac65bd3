#include "python/source/to_python.h"

namespace KelIFC::python {

py::str ToText(std::string_view text) {
  PyObject* const decoded =
      PyUnicode_DecodeUTF8(text.data(), static_cast<py::ssize_t>(text.size()), "replace");
  if (decoded == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(decoded);
}

py::array NumbersIn(const Owner& owner, const double* first, std::vector<py::ssize_t> shape) {
  static const double none = 0.0;
  const py::capsule base(new Owner(owner), [](void* kept) { delete static_cast<Owner*>(kept); });
  py::array_t<double> array(std::move(shape), first == nullptr ? &none : first, base);
  array.attr("setflags")(py::arg("write") = false);
  return array;
}

}  // namespace KelIFC::python
