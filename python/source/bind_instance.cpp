#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

#include "python/source/attribute_access.h"
#include "python/source/bindings.h"
#include "python/source/errors.h"
#include "python/source/instance.h"
#include "python/source/inverse.h"
#include "python/source/to_python.h"
#include "python/source/values.h"

namespace KelIFC::python {
namespace {

std::size_t SizeOf(const Instance& instance) { return InstanceView(instance.Get()).Size(); }

std::size_t CheckedPosition(const Instance& instance, py::ssize_t position) {
  const auto size = static_cast<py::ssize_t>(SizeOf(instance));
  if (position < 0) position += size;
  if (position < 0 || position >= size) throw py::index_error("no attribute at this position");
  return static_cast<std::size_t>(position);
}

py::object GetItem(const Instance& instance, py::ssize_t position) {
  return ValueToPython(instance.GetModel(),
                       ReadAttribute(instance.Get(), CheckedPosition(instance, position)));
}

void SetItem(const Instance& instance, py::ssize_t position, const py::object& value) {
  SetValue(instance, CheckedPosition(instance, position), value);
}

/// The name of the attribute at a position; the position as a text if the name is not known.
std::string NameAt(const Instance& instance, std::size_t position) {
  const EntityDescription* const entity = instance.GetEntity();
  const AttributeDescription* const attribute =
      entity == nullptr ? nullptr : entity->AttributeAt(position);
  const bool isNamed = attribute != nullptr && !attribute->name.empty();
  return isNamed ? std::string(attribute->name) : std::to_string(position);
}

py::tuple AttributeNamesOf(const Instance& instance) {
  py::tuple names(SizeOf(instance));
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = NameAt(instance, i);
  return names;
}

py::tuple InverseNames(const Instance& instance) {
  instance.Get();
  const EntityDescription* const entity = instance.GetEntity();
  if (entity == nullptr) return py::tuple();
  const std::vector<std::string> names = InverseNamesOf(*entity);
  py::tuple result(names.size());
  for (std::size_t i = 0; i < names.size(); ++i) result[i] = ToText(names[i]);
  return result;
}

/// The dictionaries of instances and of what they refer to. Each instance has one dictionary, so a
/// cycle of references becomes a cycle of dictionaries, and the work is linear.
class InfoMaker {
 public:
  explicit InfoMaker(bool isRecursive) : isRecursive(isRecursive) {}

  py::dict Make(const Instance& instance) {
    py::dict first = Begin(instance);
    while (!waiting.empty()) {
      const auto [next, info] = waiting.front();
      waiting.pop_front();
      Fill(next, info);
    }
    return first;
  }

 private:
  py::dict Begin(const Instance& instance) {
    const auto [at, isNew] = known.try_emplace(instance.GetNumber());
    if (isNew) waiting.emplace_back(instance, at->second);
    return at->second;
  }

  void Fill(const Instance& instance, py::dict info) {
    info["id"] = instance.GetNumber();
    info["type"] = ToText(instance.EntityName());
    const InstanceView view(instance.Get());
    for (std::size_t i = 0; i < view.Size(); ++i) {
      const std::string name = NameAt(instance, i);
      const py::object value = ValueToPython(instance.GetModel(), view[i]);
      info[ToText(name)] = isRecursive ? Replace(value) : value;
    }
  }

  py::object Replace(const py::object& value) {
    if (py::isinstance<Instance>(value)) return Begin(py::cast<const Instance&>(value));
    if (!PyTuple_CheckExact(value.ptr())) return value;
    const auto old = py::reinterpret_borrow<py::tuple>(value);
    py::tuple replaced(old.size());
    for (std::size_t i = 0; i < old.size(); ++i) replaced[i] = Replace(old[i]);
    return replaced;
  }

  bool isRecursive;
  std::unordered_map<std::size_t, py::dict> known;
  std::deque<std::pair<Instance, py::dict>> waiting;
};

py::dict InfoOf(const Instance& instance, bool recursive) {
  return InfoMaker(recursive).Make(instance);
}

py::object IsA(const Instance& instance, const py::object& name) {
  if (name.is_none()) return ToText(instance.EntityName());
  return py::bool_(instance.IsA(py::cast<std::string>(name)));
}

py::str StatementOf(const Instance& instance) {
  return ToText(instance.GetModel()->TextOf(FormatStatement(instance.Get())));
}

py::object IsEqual(const Instance& instance, const py::object& other) {
  if (!py::isinstance<Instance>(other)) {
    return py::reinterpret_borrow<py::object>(Py_NotImplemented);
  }
  return py::bool_(instance == py::cast<const Instance&>(other));
}

std::size_t HashOf(const Instance& instance) {
  return std::hash<const void*>()(instance.GetModel().get()) ^ (instance.GetNumber() << 4);
}

py::list DirectoryOf(const py::object& self) {
  auto names =
      py::cast<py::list>(py::module_::import("builtins").attr("object").attr("__dir__")(self));
  const auto& instance = py::cast<const Instance&>(self);
  for (const py::handle name : AttributeNamesOf(instance)) names.append(name);
  for (const py::handle name : InverseNames(instance)) names.append(name);
  return names;
}

[[noreturn]] py::object RefusePickle(const Instance& /*instance*/, int /*protocol*/) {
  Raise(PyExc_TypeError,
        "an instance cannot be pickled, because it is a part of its model; pickle "
        "instance.info() instead");
}

constexpr const char* kDoc =
    "An instance of a model.\n"
    "\n"
    "Its attributes have the names of the schema and can be read and set: `wall.Name = 'W1'`.\n"
    "References are instances, lists are tuples, enumerators are str, and an unset attribute is\n"
    "None. Inline typed values are TypedValue objects. Attributes can also be used by position:\n"
    "`wall[2]`. This is the only way for an entity that the release does not know.\n"
    "Inverse attributes, such as `wall.HasOpenings`, are tuples of the instances that refer to "
    "the\n"
    "instance, in the order of the file. They follow each change of the model and cannot be set.\n"
    "\n"
    "An instance keeps its model alive. If it was removed from the model, every use raises\n"
    "ReferenceError. Setting an attribute raises TypeError or ValueError if the value does not "
    "fit;\n"
    "the attribute then keeps its value. `repr` is the statement of the instance.";

}  // namespace

void BindInstance(py::module_& module) {
  py::class_<Instance> type(module, "Instance", kDoc, py::is_final(),
                            py::custom_type_setup(UseAttributesOfEntities));
  type.def("id", &Instance::GetNumber,
           "id() -> int\n\nReturns the instance number, the 12 of #12.");
  type.def("is_a", &IsA, py::arg("name") = py::none(),
           "is_a(name: str | None = None) -> Any\n"
           "\n"
           "Returns the name of the entity; with a name, whether the instance is of that entity\n"
           "or of one that derives from it.");
  type.def("info", &InfoOf, py::arg("recursive") = false,
           "info(recursive: bool = False) -> dict[str, Any]\n"
           "\n"
           "Returns the number, the type and the attributes. With recursive, references are such\n"
           "dictionaries, too; each instance has one, so the result can contain itself.");
  type.def("get_info", &InfoOf, py::arg("recursive") = false,
           "get_info(recursive: bool = False) -> dict[str, Any]\n\nThe same as info.");
  type.def_property_readonly("model", &Instance::GetModel, "The model of the instance.");
  type.def_property_readonly("attribute_names", &AttributeNamesOf,
                             "The names of the attributes, in the order of the statement.");
  type.def_property_readonly("inverse_names", &InverseNames,
                             "The names of the inverse attributes, such as 'HasOpenings'.");
  py::dict annotations;
  annotations["model"] = "Model";
  annotations["attribute_names"] = "tuple[str, ...]";
  annotations["inverse_names"] = "tuple[str, ...]";
  type.attr("__annotations__") = annotations;
  type.def("__len__", &SizeOf, "__len__() -> int");
  type.def("__getitem__", &GetItem, "__getitem__(position: int) -> Any");
  type.def("__setitem__", &SetItem, "__setitem__(position: int, value: Any) -> None");
  type.def("__repr__", &StatementOf, "__repr__() -> str");
  type.def("__eq__", &IsEqual, "__eq__(other: object) -> bool");
  type.def("__hash__", &HashOf, "__hash__() -> int");
  type.def("__dir__", &DirectoryOf, "__dir__() -> list[str]");
  type.def("__reduce_ex__", &RefusePickle, "__reduce_ex__(protocol: SupportsIndex) -> NoReturn");
}

}  // namespace KelIFC::python
