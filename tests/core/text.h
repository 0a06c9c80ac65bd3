#ifndef KELIFC_TESTS_CORE_TEXT_H_
#define KELIFC_TESTS_CORE_TEXT_H_

#include <sstream>
#include <string>

namespace KelIFC {

/// Returns the text that a value or an instance writes.
template <class Value>
std::string Text(const Value& value) {
  std::ostringstream out;
  value.Write(out);
  return out.str();
}

/// Returns the text that a value writes after it has parsed `text`.
template <class Value>
std::string TextOf(const char* text) {
  Value value;
  value.Parse(text);
  return Text(value);
}

/// Returns the rest of the text from the cursor that a value returns; "(null)" for null.
template <class Value>
std::string RestOf(Value& value, const char* text) {
  const char* rest = value.Parse(text);
  return rest == nullptr ? "(null)" : rest;
}
template <class Value>
std::string RestOf(const char* text) {
  Value value;
  return RestOf(value, text);
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_CORE_TEXT_H_
