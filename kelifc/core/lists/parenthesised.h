#ifndef KELIFC_CORE_LISTS_PARENTHESISED_H_
#define KELIFC_CORE_LISTS_PARENTHESISED_H_

#include <cstddef>

namespace KelIFC::detail {

/// The text between an opening parenthesis and its counterpart, as a part of a statement.
struct Parenthesised {
  const char* begin;
  const char* end;  ///< the closing parenthesis, or the NUL where none matches
  bool isNested;    ///< true if further parentheses open inside

  /// Returns the cursor after the aggregate, as Parse of a value does.
  const char* BehindNextComma() const;

  /// Returns the number of commas between `from` and the end.
  std::size_t CountCommas(const char* from) const;
};

/// Finds the first parenthesis, from `text` on, and its counterpart. Quotes have no meaning, since
/// the aggregates that use this function contain no strings. Returns false if there is no
/// parenthesis.
bool FindParenthesised(const char* text, Parenthesised& inner);

/// Returns the position after the first comma in [from, end), or null.
const char* BehindCommaBefore(const char* from, const char* end);

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_LISTS_PARENTHESISED_H_
