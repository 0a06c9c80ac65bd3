#ifndef KELIFC_CORE_TEXT_ISO_TEXT_H_
#define KELIFC_CORE_TEXT_ISO_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "kelifc/core/text/quoting.h"

// Strings as ISO 10303-21 writes them. All functions for their escapes are in this file:
//
//     ''               a quote
//     \\               a backslash
//     \S\c             the character c + 128 of the current page, which is ISO 8859-1 at first
//     \PA\ to \PI\     selects the page for the rest of the string
//     \X\hh            the character hh of ISO 8859-1
//     \X2\hhhh...\X0\  characters as UTF-16, four digits each; surrogate pairs are allowed
//     \X4\h...h\X0\    characters as UTF-32, eight digits each
//
// Digits are hexadecimal, in either case. Bytes above 127 in a string are UTF-8 if the entire
// string is well-formed UTF-8; otherwise they are ISO 8859-1.

namespace KelIFC {

/// Receives the escapes that cannot be read.
class BadEscapeSink {
 public:
  /// `escape` is the position of the backslash in the text that is decoded.
  virtual void NoteBadEscape(const char* escape) = 0;

 protected:
  ~BadEscapeSink() = default;
};

/// Appends the text of a string, as UTF-8, to `out`. `body` is the position after the opening
/// quote, and `end` the end of the statement. Returns the position of the closing quote. If there
/// is none, returns null, and `out` holds the text up to the end.
///
/// A bad escape has no effect on the rest of the string:
///  - It is reported to `sink`, which can be null, and U+FFFD replaces it.
///  - A backslash that begins no escape is bad alone.
///  - `\X2\` and `\X4\` end at the first incomplete group. Their good groups are kept. If the next
///    escape is `\X0\`, the bad part extends to it. Otherwise it ends after the digits of the
///    group; if the group has no digits, only the `\X0\` is missing, and nothing replaces it.
///  - A code that is not a character, such as U+0000 or a lone surrogate, is bad.
const char* DecodeIsoString(const char* body, const char* end, std::string& out,
                            BadEscapeSink* sink);

/// Appends `text`, which is decoded as ToUtf8 does, between quotes. Characters outside ASCII are
/// written with `\X2\` or `\X4\`, control characters with `\X\`.
void AppendIsoString(std::string& out, std::string_view text);

/// Returns true for the characters that can separate two tokens: blanks, and control characters
/// such as tabs.
constexpr bool IsIsoBlank(char c) { return c > '\0' && c <= ' '; }

/// Returns how many of the quotes after `\S\` belong to the text of the string. Such a row of
/// quotes is ambiguous: `\S\'` is a character, but the quote can also end a string whose last
/// escape is incomplete. If a comma, a closing parenthesis or nothing follows the row, after any
/// blanks, the last quote ends the string. Of the quotes that belong to the text, the first one is
/// part of the escape, or the first two if their number is even. The others are doubled quotes.
///
/// `next` returns the next character at each call, beginning with the first quote, and NUL at the
/// end of the text.
template <class NextCharacter>
std::size_t CountQuotesAfterShift(NextCharacter next) {
  std::size_t count = 0;
  char c = next();
  for (; c == kQuote; c = next()) ++count;
  while (IsIsoBlank(c)) c = next();
  const bool endsString = c == ',' || c == ')' || c == '\0';
  return endsString && count > 0 ? count - 1 : count;
}

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_ISO_TEXT_H_
