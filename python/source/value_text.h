#ifndef PYTHON_SOURCE_VALUE_TEXT_H_
#define PYTHON_SOURCE_VALUE_TEXT_H_

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>

#include "kelifc/kelifc.h"

#include "python/source/model.h"

namespace KelIFC::python {

/// Writes Python values as the text that WriteAttribute reads.
class ValueText {
 public:
  /// `model` is the one of the instance that receives the value.
  explicit ValueText(Model& model) : model(model) {}

  /// The text of a value for an attribute of a kind. `type` is the class that references lead to,
  /// or empty. Raises TypeError and ValueError.
  std::string Of(const py::handle& value, AttributeKind kind, std::string_view type);

 private:
  void Append(const py::handle& value, AttributeKind kind);
  void AppendText(const py::handle& value);
  void AppendWord(const py::handle& value, AttributeKind kind);
  void AppendNumber(double number);
  void AppendReference(const py::handle& value);
  void AppendTyped(const py::handle& value);
  void AppendList(const py::handle& value, AttributeKind kind);
  bool AppendNumeric(const py::handle& value);

  Model& model;
  std::string_view target;  // the class that references must lead to, or empty
  std::string text;
  int depth = 0;  // of lists and typed values
};

/// What a value of a kind is in Python, for messages.
const char* ExpectedType(AttributeKind kind);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_VALUE_TEXT_H_
