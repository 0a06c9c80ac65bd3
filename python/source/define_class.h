#ifndef PYTHON_SOURCE_DEFINE_CLASS_H_
#define PYTHON_SOURCE_DEFINE_CLASS_H_

#include <pybind11/pybind11.h>

#include <string>

#include "python/source/described.h"
#include "python/source/owned.h"
#include "python/source/packed.h"
#include "python/source/to_python.h"

namespace KelIFC::python {

/// The type and the value of a field in Python.
template <class T, class Value>
std::string TypeOf(const Field<T, Value>& /*field*/) {
  return ToPython<Value>::Type();
}
template <class T>
std::string TypeOf(const IdField<T>& /*field*/) {
  return "int | None";
}
template <class T, class Value>
py::object ValueOf(const Field<T, Value>& field, const T& item, const Owner& owner) {
  return MakePython(item.*field.member, owner);
}
template <class T>
py::object ValueOf(const IdField<T>& field, const T& item, const Owner& /*owner*/) {
  const std::size_t id = item.*field.member;
  if (id == 0) return py::none();
  return py::int_(id);
}

/// Returns `Element(id=12, name='B1', ...)` with the members that are short texts or numbers.
template <class T>
py::str RepresentationOf(const View<T>& view) {
  py::list parts;
  ForEachField<T>([&](const auto& field) {
    const py::object value = ValueOf(field, *view.item, view.owner);
    const bool isShort = py::isinstance<py::str>(value) || py::isinstance<py::float_>(value) ||
                         py::isinstance<py::int_>(value);
    if (isShort) parts.append(py::str("{}={!r}").format(field.name, value));
  });
  return py::str("{}({})").format(kDescribed<T>.name, py::str(", ").attr("join")(parts));
}

template <class T>
py::dict DictionaryOf(const View<T>& view) {
  py::dict members;
  ForEachField<T>(
      [&](const auto& field) { members[field.name] = ValueOf(field, *view.item, view.owner); });
  return members;
}

/// Defines the class of a structure: its members as read-only properties, `==`, `repr` and
/// `to_dict`. The annotations of the class are the types of the members.
template <class T>
py::class_<View<T>> DefineClass(py::module_& module) {
  py::class_<View<T>> type(module, kDescribed<T>.name, kDescribed<T>.doc, py::is_final());
  py::dict annotations;
  ForEachField<T>([&](const auto& field) {
    type.def_property_readonly(
        field.name, [field](const View<T>& self) { return ValueOf(field, *self.item, self.owner); },
        field.doc);
    annotations[field.name] = TypeOf(field);
  });
  type.attr("__annotations__") = annotations;
  type.def("__repr__", &RepresentationOf<T>, "__repr__() -> str");
  type.def("to_dict", &DictionaryOf<T>,
           "to_dict() -> dict[str, Any]\n\nReturns the members by their names.");
  type.def(
      "__eq__",
      [](const View<T>& self, const py::object& other) -> py::object {
        if (!py::isinstance<View<T>>(other))
          return py::reinterpret_borrow<py::object>(Py_NotImplemented);
        return py::bool_(Pack(*self.item) == Pack(*py::cast<const View<T>&>(other).item));
      },
      "__eq__(other: object) -> bool");
  type.attr("__hash__") = py::none();
  return type;
}

/// Defines the sequence that lists of a structure become.
template <class T>
void DefineList(py::module_& module) {
  const std::string name = std::string(kDescribed<T>.name) + "List";
  const std::string doc = "A sequence of " + std::string(kDescribed<T>.name) + " objects.";
  py::class_<ListView<T>> type(module, name.c_str(), doc.c_str(), py::is_final());
  const auto at = [](const ListView<T>& self, py::ssize_t index) {
    const auto size = static_cast<py::ssize_t>(self.items->size());
    if (index < 0) index += size;
    if (index < 0 || index >= size) throw py::index_error("list index out of range");
    return View<T>{self.owner, &(*self.items)[static_cast<std::size_t>(index)]};
  };
  type.def("__len__", [](const ListView<T>& self) { return self.items->size(); });
  type.def("__getitem__", at);
  type.def("__getitem__", [at](const ListView<T>& self, const py::slice& slice) {
    py::ssize_t start = 0;
    py::ssize_t stop = 0;
    py::ssize_t step = 0;
    py::ssize_t count = 0;
    const auto size = static_cast<py::ssize_t>(self.items->size());
    if (!slice.compute(size, &start, &stop, &step, &count)) throw py::error_already_set();
    py::list chosen;
    for (py::ssize_t i = 0; i < count; ++i) chosen.append(at(self, start + i * step));
    return chosen;
  });
  type.def("__repr__", [](const ListView<T>& self) {
    return py::str("<{} {} objects>").format(self.items->size(), kDescribed<T>.name);
  });
  type.attr("item_type") = kDescribed<T>.name;
  py::module_::import("collections.abc").attr("Sequence").attr("register")(type);
}

/// Both of the functions above.
template <class T>
py::class_<View<T>> DefineClassAndList(py::module_& module) {
  DefineList<T>(module);
  return DefineClass<T>(module);
}

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_DEFINE_CLASS_H_
