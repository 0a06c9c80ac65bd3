#include "kelifc/core/lists/parenthesised.h"

#include <algorithm>
#include <cstring>

#include "kelifc/core/detail/cursor.h"

namespace KelIFC::detail {

namespace {

// Returns the counterpart of the parenthesis before `text`, or the position of the NUL.
const char* FindClosing(const char* text) {
  std::size_t depth = 1;
  while (true) {
    text += std::strcspn(text, "()");
    if (*text == '\0') return text;
    depth += *text == '(' ? 1 : -1;
    if (depth == 0) return text;
    ++text;
  }
}

}  // namespace

bool FindParenthesised(const char* text, Parenthesised& inner) {
  const char* open = *text == '(' ? text : std::strchr(text, '(');
  if (open == nullptr) return false;
  inner.begin = open + 1;
  inner.end = inner.begin + std::strcspn(inner.begin, "()");
  inner.isNested = *inner.end == '(';
  if (inner.isNested) inner.end = FindClosing(inner.end);
  return true;
}

const char* Parenthesised::BehindNextComma() const {
  return detail::BehindNextComma(*end == ')' ? end + 1 : end);
}

std::size_t Parenthesised::CountCommas(const char* from) const {
  return static_cast<std::size_t>(std::count(from, end, ','));
}

const char* BehindCommaBefore(const char* from, const char* end) {
  if (from == end) return nullptr;
  if (*from == ',') return from + 1;
  const void* comma = std::memchr(from, ',', static_cast<std::size_t>(end - from));
  return comma == nullptr ? nullptr : static_cast<const char*>(comma) + 1;
}

}  // namespace KelIFC::detail
