#include "kelifc/core/logical.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/enumerator.h"

namespace KelIFC {

const char* LOGICAL::Parse(const char* text) {
  value = LOGICAL_UNKNOWN;
  exists = false;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  const EnumText read = ReadEnumText(text);
  exists = true;
  value = read.text == "T" ? LOGICAL_TRUE : read.text == "F" ? LOGICAL_FALSE : LOGICAL_UNKNOWN;
  return read.next;
}

std::ostream& LOGICAL::Write(std::ostream& out) const {
  if (!exists) {
    detail::PutChar(out, '$');
  } else {
    detail::PutText(out, value == LOGICAL_TRUE ? ".T." : value == LOGICAL_FALSE ? ".F." : ".U.");
  }
  return out;
}

}  // namespace KelIFC
