#ifndef KELIFC_CORE_LISTS_PARENTHESISED_H_
#define KELIFC_CORE_LISTS_PARENTHESISED_H_

#include <cstddef>

namespace KelIFC::detail {

/// The text between an opening parenthesis and its counterpart, in place in a statement.
struct Parenthesised {
  const char* begin;
  const char* end;  ///< the closing parenthesis, or the NUL where none matches
  bool isNested;    ///< true if further parentheses open inside

  /// The cursor behind the aggregate, as a value's Parse gives it.
  const char* BehindNextComma() const;

  /// How many commas stand from `from` to the end.
  std::size_t CountCommas(const char* from) const;
};

/// Finds the first parenthesis at or behind `text` and its counterpart. Quotes are not considered,
/// since none of the aggregates read so holds text. False if there is no parenthesis.
bool FindParenthesised(const char* text, Parenthesised& inner);

/// The position behind the first comma of [from, end), or null.
const char* BehindCommaBefore(const char* from, const char* end);

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_LISTS_PARENTHESISED_H_
