#ifndef KELIFC_CORE_DETAIL_CURSOR_H_
#define KELIFC_CORE_DETAIL_CURSOR_H_

#include <cstring>

// How attribute text is walked. All reading goes over one statement that ends with a NUL: each
// value takes a cursor and gives back the cursor behind the next comma, or null when no comma
// follows. A null cursor is accepted everywhere and leaves a value unset.

namespace KelIFC::detail {

/// White space as the classic locale knows it.
inline bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// The first position at or behind `text` that is not white space.
inline const char* SkipBlanks(const char* text) {
  while (IsBlank(*text)) ++text;
  return text;
}

/// The position behind the first comma at or behind `text`, or null if there is none. A plain scan:
/// it knows nothing of parentheses or quotes. Null gives null.
inline const char* BehindNextComma(const char* text) {
  if (text == nullptr) return nullptr;
  if (*text == ',') return text + 1;
  if (*text == ')' && text[1] == '\0') return nullptr;  // the usual end of a statement
  const char* comma = std::strchr(text, ',');
  return comma == nullptr ? nullptr : comma + 1;
}

/// The test at the head of every value: does `$` or `*` stand here? If so, `next` is the position
/// behind the next comma, or null, and the answer is true. If not, `next` is `text`.
inline bool SkipOmittedValue(const char*& next, const char* text) {
  next = text;
  if (text == nullptr) return false;
  const char* first = SkipBlanks(text);
  if (*first != '$' && *first != '*') return false;
  next = BehindNextComma(first);
  return true;
}

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_CURSOR_H_
