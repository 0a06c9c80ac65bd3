#include "kelifc/server/reference_walk.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/member.h"
#include "kelifc/core/text/iso_text.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {

ReferenceWalk::ReferenceWalk(const char* text, const char* end, STEP_DIALECT dialect)
    : at(text), limit(end), notation(dialect), isComplex(*detail::SkipBlanks(text) == '(') {}

bool ReferenceWalk::Next(FoundReference& found) {
  for (; at < limit; ++at) {
    switch (*at) {
      case kQuote:
        if (!SkipString()) return false;
        break;
      case '(':
        ++depth;
        break;
      case ')':
        if (depth != 0) --depth;
        break;
      case ',':
        if (depth == 1) ++attribute;
        break;
      case '#':
        if (at[1] < '0' || at[1] > '9') break;
        MEMBER member;
        member.Parse(at);
        found = {at++, member, isComplex ? 0 : attribute};
        return true;
    }
  }
  return false;
}

// Moves to the closing quote. Returns false if there is none.
bool ReferenceWalk::SkipString() {
  ignored.clear();
  const char* close = notation == STEP_DIALECT_ISO
                          ? DecodeIsoString(at + 1, limit, ignored, nullptr)
                          : DecodeQuoted(at, ignored);
  if (close == nullptr) at = limit;
  if (close != nullptr) at = close;
  return close != nullptr;
}

}  // namespace KelIFC
