#include "python/source/values.h"

#include <string_view>
#include <utility>

#include "python/source/errors.h"
#include "python/source/to_python.h"
#include "python/source/typed_value.h"
#include "python/source/value_text.h"

namespace KelIFC::python {
namespace {

using Kind = AttributeValueKind;

constexpr int kDeepestValue = 64;  // lists of lists, and inline instances in inline instances

/// Makes the Python objects of the values of one instance.
class ValueMaker {
 public:
  explicit ValueMaker(const std::shared_ptr<Model>& model) : model(model) {}

  py::object Make(const AttributeValue& value, int depth) const {
    switch (value.GetKind()) {
      case Kind::kReference:
        return MakeReference(value, depth);
      case Kind::kInteger:
        return py::int_(value.AsInteger());
      case Kind::kReal:
        return py::float_(value.AsNumber());
      case Kind::kText:
        return MakeText(value.AsText());
      case Kind::kBinary:
      case Kind::kEnumeration:
        return ToText(value.GetKind() == Kind::kBinary ? value.AsText() : value.AsEnumerator());
      case Kind::kBoolean:
        return py::bool_(value.AsBoolean());
      case Kind::kLogical:
        if (value.AsLogical() == LOGICAL_UNKNOWN) return py::str("UNKNOWN");
        return py::bool_(value.AsBoolean());
      case Kind::kList:
        return MakeList(value, depth);
      case Kind::kTyped:
        if (depth >= kDeepestValue) return py::none();
        return TypedValueClass()(MakeText(value.TypeName()), Make(value.TypedValue(), depth + 1));
      case Kind::kUnset:
      case Kind::kDerived:
        break;
    }
    return py::none();
  }

 private:
  py::object MakeText(std::string_view text) const {
    if (model->Server().GetDialect() == STEP_DIALECT_ISO) return ToText(text);
    PyObject* const decoded =
        PyUnicode_DecodeLatin1(text.data(), static_cast<py::ssize_t>(text.size()), nullptr);
    if (decoded == nullptr) throw py::error_already_set();
    return py::reinterpret_steal<py::object>(decoded);
  }

  py::object MakeReference(const AttributeValue& value, int depth) const {
    const IfcUnknown* const target = value.AsReference();
    if (target == nullptr) return py::none();
    if (value.AsReferenceNumber() != 0) {
      return py::cast(Instance(model, value.AsReferenceNumber(), *target));
    }
    if (depth >= kDeepestValue) return py::none();
    const InstanceView view(*target);
    py::tuple values(view.Size());
    for (std::size_t i = 0; i < view.Size(); ++i) values[i] = Make(view[i], depth + 1);
    return TypedValueClass()(MakeText(view.EntityName()), values);
  }

  py::object MakeList(const AttributeValue& value, int depth) const {
    if (depth >= kDeepestValue) return py::none();
    const std::size_t size = value.Size();
    py::tuple elements(size);
    for (std::size_t i = 0; i < size; ++i) elements[i] = Make(value.At(i), depth + 1);
    return elements;
  }

  const std::shared_ptr<Model>& model;
};

/// The kind of a value of raw text. A Python text can be a text or an enumerator in the file. The
/// value that the instance has now decides which.
AttributeKind RawKind(const AttributeValue& value) {
  switch (value.GetKind()) {
    case Kind::kEnumeration:
      return AttributeKind::kEnumeration;
    case Kind::kBinary:
      return AttributeKind::kBinary;
    default:
      return AttributeKind::kUnknown;
  }
}

/// True if an attribute of a kind can hold references.
bool MayRefer(AttributeKind kind) {
  return kind == AttributeKind::kReference || kind == AttributeKind::kTypedValue ||
         kind == AttributeKind::kUnknown || KindOfElements(kind) == AttributeKind::kReference;
}

/// "#12=IfcWall.Name: " with `message` after it.
std::string Place(const Instance& instance, const AttributeDescription* attribute,
                  std::size_t position, const std::string& message) {
  const std::string name = attribute != nullptr && !attribute->name.empty()
                               ? std::string(attribute->name)
                               : "[" + std::to_string(position) + "]";
  return "#" + std::to_string(instance.GetNumber()) + "=" + instance.EntityName() + "." + name +
         ": " + message;
}

}  // namespace

py::handle TypedValueClass() {
  // It is never released: the interpreter may be gone when static objects are destroyed.
  static PyObject* const type =
      py::module_::import("kelifc.values").attr("TypedValue").cast<py::object>().release().ptr();
  return type;
}

py::object ValueToPython(const std::shared_ptr<Model>& model, const AttributeValue& value) {
  return ValueMaker(model).Make(value, 0);
}

void SetValue(const Instance& instance, std::size_t position, const py::handle& value) {
  IfcUnknown& item = instance.Get();
  const EntityDescription* const entity = instance.GetEntity();
  const AttributeDescription* const attribute =
      entity == nullptr ? nullptr : entity->AttributeAt(position);
  if (entity != nullptr && (attribute == nullptr || attribute->write == nullptr)) {
    Raise(PyExc_AttributeError,
          Place(instance, attribute, position, "the attribute cannot be set"));
  }
  const AttributeKind kind =
      attribute == nullptr ? RawKind(ReadAttribute(item, position)) : attribute->kind;
  Model& model = *instance.GetModel();
  std::string text;
  try {
    const std::string_view type = attribute == nullptr ? std::string_view() : attribute->type;
    text = ValueText(model).Of(value, kind, type);
  } catch (const py::error_already_set& error) {
    if (!error.matches(PyExc_TypeError) && !error.matches(PyExc_ValueError)) throw;
    const auto reason = py::cast<std::string>(py::str(error.value()));
    Raise(error.matches(PyExc_TypeError) ? PyExc_TypeError : PyExc_ValueError,
          Place(instance, attribute, position, reason));
  }
  // The value may be a generator that changes the model.
  if (!WriteAttribute(instance.Get(), position, text)) {
    const std::string expected = std::string("expected ") + ExpectedType(kind) + ", not " + text;
    Raise(kind == AttributeKind::kEnumeration ? PyExc_ValueError : PyExc_TypeError,
          Place(instance, attribute, position, expected));
  }
  if (attribute == nullptr || MayRefer(attribute->kind)) model.NoteReference();
  if (attribute != nullptr && attribute->name == "GlobalId") model.NoteGuid(instance.GetNumber());
}

}  // namespace KelIFC::python
