#include "kelifc/core/integer.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/number_text.h"

namespace KelIFC {

const char* INTEGER::Parse(const char* text) {
  value = 0;
  exists = false;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  exists = true;
  value = ReadInteger(text, &next);
  return detail::BehindNextComma(next);
}

std::ostream& INTEGER::Write(std::ostream& out) const {
  if (exists) {
    detail::PutNumber(out, std::int64_t{value});
  } else {
    detail::PutChar(out, '$');
  }
  return out;
}

}  // namespace KelIFC
