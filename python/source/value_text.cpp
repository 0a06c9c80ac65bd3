#include "python/source/value_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "python/source/errors.h"
#include "python/source/instance.h"
#include "python/source/typed_value.h"

namespace KelIFC::python {
namespace {

constexpr int kDeepestList = 16;

bool IsText(AttributeKind kind) {
  return kind == AttributeKind::kText || kind == AttributeKind::kTextList;
}

std::string TypeName(const py::handle& value) { return Py_TYPE(value.ptr())->tp_name; }

bool IsWordCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsWord(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), IsWordCharacter);
}

}  // namespace

std::string ValueText::Of(const py::handle& value, AttributeKind kind, std::string_view type) {
  text.clear();
  target = type;
  Append(value, kind);
  return std::move(text);
}

void ValueText::Append(const py::handle& value, AttributeKind kind) {
  if (value.is_none()) {
    text += '$';
  } else if (PyBool_Check(value.ptr())) {
    text += value.ptr() == Py_True ? ".T." : ".F.";
  } else if (py::isinstance<py::str>(value)) {
    const bool isText = IsText(kind) || kind == AttributeKind::kUnknown;
    isText ? AppendText(value) : AppendWord(value, kind);
  } else if (py::isinstance<Instance>(value)) {
    AppendReference(value);
  } else if (IsTypedValue(value)) {
    AppendTyped(value);
  } else if (!AppendNumeric(value)) {
    AppendList(value, kind);
  }
}

// A text in the encoding of the model, in quotes.
void ValueText::AppendText(const py::handle& value) {
  const bool isIso = model.Server().GetDialect() == STEP_DIALECT_ISO;
  PyObject* const encoded =
      isIso ? PyUnicode_AsUTF8String(value.ptr()) : PyUnicode_AsLatin1String(value.ptr());
  if (encoded == nullptr) throw py::error_already_set();
  const auto bytes = py::reinterpret_steal<py::bytes>(encoded);
  text += '\'';
  for (const char c : std::string_view(bytes)) {
    const auto code = static_cast<unsigned char>(c);
    if (code == 0 || (!isIso && code < 0x20)) {
      Raise(PyExc_ValueError, "the text contains a control character");
    }
    if (c == '\'' || c == '\\') text += '\\';
    text += c;
  }
  text += '\'';
}

// An enumerator, an unknown truth value or bits.
void ValueText::AppendWord(const py::handle& value, AttributeKind kind) {
  const auto word = py::cast<std::string>(value);
  if (kind == AttributeKind::kBinary) {
    const bool isBits = word.find_first_not_of("01") == std::string::npos;
    if (!isBits) Raise(PyExc_ValueError, "expected a text of the characters 0 and 1");
    text += '"' + word + '"';
    return;
  }
  const bool isEnumerator = kind == AttributeKind::kEnumeration || kind == AttributeKind::kLogical;
  if (!isEnumerator) {
    Raise(PyExc_TypeError, std::string("expected ") + ExpectedType(kind) + ", not str");
  }
  if (!IsWord(word)) Raise(PyExc_ValueError, "'" + word + "' is not an enumerator");
  const bool isUnknown = kind == AttributeKind::kLogical && word == "UNKNOWN";
  text += '.' + (isUnknown ? "U" : word) + '.';
}

bool ValueText::AppendNumeric(const py::handle& value) {
  if (PySequence_Check(value.ptr()) != 0) return false;  // also an array that could be an index
  if (PyIndex_Check(value.ptr())) {
    const auto index = py::reinterpret_steal<py::object>(PyNumber_Index(value.ptr()));
    if (!index) throw py::error_already_set();
    const long long number = PyLong_AsLongLong(index.ptr());
    if (number == -1 && PyErr_Occurred() != nullptr) throw py::error_already_set();
    text += std::to_string(number);
    return true;
  }
  const PyNumberMethods* const methods = Py_TYPE(value.ptr())->tp_as_number;
  if (methods == nullptr || methods->nb_float == nullptr) return false;
  const double number = PyFloat_AsDouble(value.ptr());
  if (number == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  AppendNumber(number);
  return true;
}

// The shortest text of a number with a point, as a file has it: `1.`, `2.5`, `1.E-05`.
void ValueText::AppendNumber(double number) {
  if (!std::isfinite(number)) Raise(PyExc_ValueError, "the number is not finite");
  std::array<char, 32> digits = {};
  char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  std::string written(digits.data(), end);
  const std::size_t exponent = written.find('e');
  if (written.find('.') == std::string::npos) {
    written.insert(exponent == std::string::npos ? written.size() : exponent, ".");
  }
  std::replace(written.begin(), written.end(), 'e', 'E');
  text += written;
}

void ValueText::AppendReference(const py::handle& value) {
  const auto& instance = py::cast<const Instance&>(value);
  instance.Get();
  if (instance.GetModel().get() != &model) {
    Raise(PyExc_ValueError, "the instance belongs to another model");
  }
  const EntityDescription* const wanted =
      target.empty() ? nullptr : FindEntity(model.Server().GetRelease(), target);
  const EntityDescription* const found = instance.GetEntity();
  if (wanted != nullptr && found != nullptr && !found->IsKindOf(*wanted)) {
    Raise(PyExc_TypeError,
          "expected " + std::string(wanted->name) + ", not " + std::string(found->name));
  }
  text += '#' + std::to_string(instance.GetNumber());
}

void ValueText::AppendTyped(const py::handle& value) {
  const auto type = py::cast<std::string>(value.attr("type"));
  if (!IsWord(type)) Raise(PyExc_ValueError, "'" + type + "' is not the name of a type");
  const EntityDescription* const description = FindEntity(model.Server().GetRelease(), type);
  if (++depth > kDeepestList) Raise(PyExc_ValueError, "the value is nested too deeply");
  text += type + '(';
  const AttributeKind kind =
      description == nullptr ? AttributeKind::kUnknown : description->valueKind;
  Append(value.attr("value"), kind);
  text += ')';
  --depth;
}

void ValueText::AppendList(const py::handle& value, AttributeKind kind) {
  if (PyObject* const iterator = PyObject_GetIter(value.ptr())) {
    Py_DECREF(iterator);
  } else {
    PyErr_Clear();
    Raise(PyExc_TypeError,
          std::string("expected ") + ExpectedType(kind) + ", not " + TypeName(value));
  }
  if (++depth > kDeepestList) Raise(PyExc_ValueError, "the value is nested too deeply");
  text += '(';
  bool isFirst = true;
  for (const py::handle element : value) {
    if (!isFirst) text += ',';
    isFirst = false;
    Append(element, KindOfElements(kind));
  }
  text += ')';
  --depth;
}

const char* ExpectedType(AttributeKind kind) {
  switch (kind) {
    case AttributeKind::kText:
      return "str";
    case AttributeKind::kReal:
      return "float";
    case AttributeKind::kInteger:
      return "int";
    case AttributeKind::kBoolean:
      return "bool";
    case AttributeKind::kLogical:
      return "bool or 'UNKNOWN'";
    case AttributeKind::kEnumeration:
      return "an enumerator as str";
    case AttributeKind::kBinary:
      return "bits as str";
    case AttributeKind::kReference:
      return "an instance or a typed value";
    case AttributeKind::kTypedValue:
      return "a typed value";
    case AttributeKind::kTextList:
      return "a sequence of str";
    case AttributeKind::kRealList:
      return "a sequence of float";
    case AttributeKind::kIntegerList:
      return "a sequence of int";
    case AttributeKind::kReferenceSet:
    case AttributeKind::kReferenceList:
      return "a sequence of instances";
    case AttributeKind::kUnknown:
      break;
  }
  return "a value";
}

}  // namespace KelIFC::python
