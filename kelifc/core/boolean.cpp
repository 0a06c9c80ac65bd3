#include "kelifc/core/boolean.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/enumerator.h"

namespace KelIFC {

const char* BOOLEAN::Parse(const char* text) {
  value = false;
  exists = false;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  const EnumText read = ReadEnumText(text);
  exists = true;
  value = read.text == "T";
  return read.next;
}

std::ostream& BOOLEAN::Write(std::ostream& out) const {
  detail::PutText(out, !exists ? "$" : value ? ".T." : ".F.");
  return out;
}

}  // namespace KelIFC
