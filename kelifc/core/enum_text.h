#ifndef KELIFC_CORE_ENUM_TEXT_H_
#define KELIFC_CORE_ENUM_TEXT_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

/// A row of an enumeration's table: the text without its dots, and the value. If a text or a value
/// occurs twice, the first row counts.
struct EnumTextRow {
  const char* Text;    ///< the enumerator without its dots
  std::int32_t Value;  ///< the number of the enumerator
};

/// Parses an enumerator and stores its value in `target`. Stores `defaultValue` if the enumerator
/// is missing, or if no row of the table has exactly its text; upper and lower case differ. Returns
/// the cursor as ENUM::Parse does.
KELIFC_API const char* ParseEnumValue(std::int32_t& target, const char* cursor,
                                      std::int32_t defaultValue, const EnumTextRow* table,
                                      std::size_t rowCount);

/// Writes the text of a value between dots, or `$` for a value that no row has.
KELIFC_API std::ostream& WriteEnumValue(std::ostream& out, std::int32_t value,
                                        const EnumTextRow* table, std::size_t rowCount);

/// Parses an enumerator into a variable of an enumeration type, by an entire table.
template <class Enum, std::size_t N>
const char* ParseEnumValue(Enum& target, const char* cursor, Enum defaultValue,
                           const EnumTextRow (&table)[N]) {
  std::int32_t value = 0;
  cursor = ParseEnumValue(value, cursor, static_cast<std::int32_t>(defaultValue), table, N);
  target = static_cast<Enum>(value);
  return cursor;
}

/// Writes a value of an enumeration type by an entire table.
template <class Enum, std::size_t N>
std::ostream& WriteEnumValue(std::ostream& out, Enum value, const EnumTextRow (&table)[N]) {
  return WriteEnumValue(out, static_cast<std::int32_t>(value), table, N);
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_ENUM_TEXT_H_
