#include "kelifc/core/string.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {

STRING& STRING::operator=(const char* text) {
  exists = text != nullptr;
  assign(exists ? text : "");
  return *this;
}

const char* STRING::Parse(const char* text) {
  clear();
  exists = false;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  const char* closing = DecodeQuoted(text, *this);
  if (closing == nullptr) return text;
  exists = true;
  return detail::BehindNextComma(closing + 1);
}

std::ostream& STRING::Write(std::ostream& out) const {
  if (exists) {
    EncodeQuoted(out, *this);
  } else {
    detail::PutChar(out, '$');
  }
  return out;
}

}  // namespace KelIFC
