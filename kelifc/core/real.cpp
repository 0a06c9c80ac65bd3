#include "kelifc/core/real.h"

#include <cmath>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/core/text/write_tolerance.h"

namespace KelIFC {

const char* REAL::Parse(const char* text) {
  value = 0.0;
  exists = false;
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  exists = true;
  value = ReadReal(text, &next);
  return detail::BehindNextComma(next);
}

std::ostream& REAL::Write(std::ostream& out) const {
  if (!exists) {
    detail::PutChar(out, '$');
  } else if (std::fabs(value) <= GetWriteTolerance()) {
    detail::PutText(out, "0.");
  } else {
    detail::PutPiece<kRealTextSize>(
        out, [number = value](char* text) { return FormatReal(number, text); });
  }
  return out;
}

}  // namespace KelIFC
