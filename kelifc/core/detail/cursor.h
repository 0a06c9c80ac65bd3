#ifndef KELIFC_CORE_DETAIL_CURSOR_H_
#define KELIFC_CORE_DETAIL_CURSOR_H_

#include <cstring>

// How the text of attributes is parsed. The text is one statement and ends with a NUL. Each value
// receives a cursor and returns the cursor after the next comma, or null if no comma follows. Every
// value accepts a null cursor, which leaves it unset.

namespace KelIFC::detail {

/// Returns true for white space of the classic locale.
inline bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Returns the first position, from `text` on, that is not white space.
inline const char* SkipBlanks(const char* text) {
  while (IsBlank(*text)) ++text;
  return text;
}

/// Returns the position after the first comma, from `text` on, or null if there is none.
/// Parentheses and quotes have no meaning here. Null returns null.
inline const char* BehindNextComma(const char* text) {
  if (text == nullptr) return nullptr;
  if (*text == ',') return text + 1;
  if (*text == ')' && text[1] == '\0') return nullptr;  // the usual end of a statement
  const char* comma = std::strchr(text, ',');
  return comma == nullptr ? nullptr : comma + 1;
}

/// The first test of every value: returns true if the text begins, after white space, with `$` or
/// `*`. Then `next` is the position after the next comma, or null. Otherwise `next` is `text`.
inline bool SkipOmittedValue(const char*& next, const char* text) {
  next = text;
  if (text == nullptr) return false;
  const char* first = SkipBlanks(text);
  if (*first != '$' && *first != '*') return false;
  next = BehindNextComma(first + 1);
  return true;
}

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_CURSOR_H_
