#include "kelifc/server/value_walk.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/member.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/iso_text.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {
namespace {

constexpr bool IsMark(char c) { return c == '(' || c == ')' || c == ',' || c == kQuote; }

ValueForm FormOfNumber(const char* text) {
  if (*text == '+' || *text == '-') ++text;
  while (ascii::IsDigit(*text)) ++text;
  return *text == '.' || *text == 'E' || *text == 'e' ? ValueForm::kReal : ValueForm::kInteger;
}

ValueForm FormOf(const char* text) {
  switch (*text) {
    case '$':
    case '*':
      return ValueForm::kOmitted;
    case kQuote:
      return ValueForm::kText;
    case '"':
      return ValueForm::kBinary;
    case '(':
      return ValueForm::kList;
    case '#':
      return ascii::IsDigit(text[1]) ? ValueForm::kReference : ValueForm::kNone;
    case '.':
      return ascii::IsDigit(text[1]) ? ValueForm::kReal : ValueForm::kEnumeration;
    default:
      break;
  }
  if (ascii::IsLetter(*text) || *text == '!') return ValueForm::kTyped;
  const bool hasSign = *text == '+' || *text == '-';
  const bool isNumber =
      ascii::IsDigit(*text) || (hasSign && (ascii::IsDigit(text[1]) || text[1] == '.'));
  return isNumber ? FormOfNumber(text) : ValueForm::kNone;
}

}  // namespace

bool ValueWalk::Next(FoundValue& found) {
  for (; at < limit; ++at) {
    if (isAtValue) {
      if (detail::IsBlank(*at)) continue;
      isAtValue = false;
      found = {at, FormOf(at), 0, attribute, depth};
      if (found.form == ValueForm::kReference) {
        MEMBER member;
        member.Parse(at);
        found.number = member;
      }
      SkipValue(found.form);
      return true;
    }
    if (*at == '(') {
      ++depth;
      isAtValue = true;
    } else if (*at == ')') {
      if (depth != 0) --depth;
    } else if (*at == ',') {
      if (depth == 1) ++attribute;
      isAtValue = true;
    } else if (*at == kQuote) {
      at = EndOfString();
    }
  }
  return false;
}

// Moves to what follows a value, or into a list.
void ValueWalk::SkipValue(ValueForm form) {
  if (form == ValueForm::kList) return;
  if (form == ValueForm::kText) at = EndOfString();
  while (at < limit && (form == ValueForm::kText || !IsMark(*at))) {
    ++at;
    form = ValueForm::kNone;
  }
}

// The closing quote of the string at the cursor, or the end of the text.
const char* ValueWalk::EndOfString() const {
  std::string ignored;
  const char* close = notation == STEP_DIALECT_ISO
                          ? DecodeIsoString(at + 1, limit, ignored, nullptr)
                          : DecodeQuoted(at, ignored);
  return close == nullptr ? limit : close;
}

}  // namespace KelIFC
