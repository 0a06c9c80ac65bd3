#include "kelifc/core/enum_text.h"

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/enumerator.h"

namespace KelIFC {

const char* ParseEnumValue(std::int32_t& target, const char* cursor, std::int32_t defaultValue,
                           const EnumTextRow* table, std::size_t rowCount) {
  const EnumText read = ReadEnumText(cursor);
  target = defaultValue;
  for (const EnumTextRow* row = table; read.exists && row != table + rowCount; ++row) {
    if (read.text != row->Text) continue;
    target = row->Value;
    break;
  }
  return read.next;
}

std::ostream& WriteEnumValue(std::ostream& out, std::int32_t value, const EnumTextRow* table,
                             std::size_t rowCount) {
  for (const EnumTextRow* row = table; row != table + rowCount; ++row) {
    if (row->Value != value) continue;
    detail::PutChar(out, '.');
    detail::PutText(out, row->Text);
    detail::PutChar(out, '.');
    return out;
  }
  detail::PutChar(out, '$');
  return out;
}

}  // namespace KelIFC
