#include "kelifc/core/lists/value_lists.h"

#include <string>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/lists/parenthesised.h"
#include "kelifc/core/text/quoting.h"

namespace KelIFC {

namespace {

template <class List>
void Reset(List& list) {
  list.Clear();
  list.SetExists(false);
}

/// Parses the elements from `cursor` up to the closing parenthesis.
const char* ReadTexts(LIST<STRING>& texts, const char* cursor) {
  while (*cursor != ')') {
    if (*cursor == '\0') return nullptr;
    if (*cursor == kQuote) {
      std::string text;
      cursor = DecodeQuoted(cursor, text);
      if (cursor == nullptr) return nullptr;
      texts.Add(STRING(text));
    }
    ++cursor;
  }
  return detail::BehindNextComma(cursor + 1);
}

}  // namespace

const char* ParseIntegers(LIST<INTEGER>& numbers, const char* text) {
  Reset(numbers);
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  detail::Parenthesised inner;
  if (!detail::FindParenthesised(text, inner)) return text;
  numbers.SetExists(true);
  // The copy of the text ends where the parser of numbers must stop.
  const std::string elements(inner.begin, inner.end);
  INTEGER number;
  for (const char* cursor = elements.empty() ? nullptr : elements.c_str(); cursor != nullptr;) {
    cursor = number.Parse(cursor);
    if (number.GetExists()) numbers.Add(number);
  }
  return inner.BehindNextComma();
}

const char* ParseTexts(LIST<STRING>& texts, const char* text) {
  Reset(texts);
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  const char* first = detail::SkipBlanks(text);
  if (*first == '(') {
    texts.SetExists(true);
    return ReadTexts(texts, first + 1);
  }
  STRING alone;
  next = alone.Parse(text);
  if (alone.GetExists()) texts.Add(alone);
  return next;
}

}  // namespace KelIFC
