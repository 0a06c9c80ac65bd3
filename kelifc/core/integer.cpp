#include "kelifc/core/integer.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/number_text.h"

namespace KelIFC {

const char* INTEGER::Parse(const char* text) {
  value = 0;
  exists = false;
  const char* next = nullptr;
  if (SkipOmittedValue(next, text) || text == nullptr) return next;
  exists = true;
  value = ReadInteger(text, &next);
  return BehindNextComma(next);
}

std::ostream& INTEGER::Write(std::ostream& out) const {
  if (exists) {
    PutNumber(out, std::int64_t{value});
  } else {
    PutChar(out, '$');
  }
  return out;
}

}  // namespace KelIFC
