#ifndef KELIFC_SCHEMA_VALUE_WRITER_H_
#define KELIFC_SCHEMA_VALUE_WRITER_H_

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "kelifc/core/aggregate.h"
#include "kelifc/core/enum_text.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/member.h"
#include "kelifc/core/string.h"

// Functions that set the attributes of each class from the text of a statement. The text has the
// form that the kind of the attribute requires.

namespace KelIFC {

class IfcUnknown;

/// Sets a value that an instance keeps. `holder` is the instance. Each function returns false, and
/// leaves the value as it was, if the text cannot become the value.
class ValueWriter {
 public:
  template <class Value>
  static bool Set(Value& value, const char* text, IfcUnknown& /*holder*/) {
    value.Parse(text);
    return true;
  }
  static bool Set(MEMBER& reference, const char* text, IfcUnknown& holder);
  static bool Set(LIST<STRING>& texts, const char* text, IfcUnknown& holder);
  static bool Set(LIST<INTEGER>& numbers, const char* text, IfcUnknown& holder);
};

/// Sets a member of an instance, which must be of the class `Class`.
template <class Class, auto Member>
bool WriteMember(IfcUnknown& instance, const char* text) {
  return ValueWriter::Set(static_cast<Class&>(instance).*Member, text, instance);
}

/// Sets a member of `Class` that is an enumeration with a table. `Initial` is the enumerator that a
/// new instance has, or nothing for the value 0.
template <class Class, auto Member, const auto& Table, auto... Initial>
bool WriteEnumeration(IfcUnknown& instance, const char* text) {
  constexpr std::int32_t kNoRow = std::numeric_limits<std::int32_t>::min();
  auto& value = static_cast<Class&>(instance).*Member;
  std::int32_t read = kNoRow;
  if (*text == '$') {
    read = (0 + ... + static_cast<std::int32_t>(Initial));
  } else {
    ParseEnumValue(read, text, kNoRow, Table, sizeof Table / sizeof Table[0]);
  }
  if (read == kNoRow) return false;
  value = static_cast<std::remove_reference_t<decltype(value)>>(read);
  return true;
}

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_VALUE_WRITER_H_
