#ifndef KELIFC_CORE_TEXT_QUOTING_H_
#define KELIFC_CORE_TEXT_QUOTING_H_

#include <iosfwd>
#include <string>
#include <string_view>

// The meaning of quotes and escapes in a text of the classic dialect. The values and the scanner
// share this file. A text is between single quotes. A backslash makes a following quote or
// backslash a plain character; `\X\hh` is the byte hh. A doubled quote is the end of one text and
// the begin of another.

namespace KelIFC {

constexpr char kQuote = '\'';
constexpr char kEscape = '\\';

/// Returns true for the characters that form a pair with an escape before them. A search for the
/// end of a text must skip the escape and such a character together.
constexpr bool IsEscapable(char c) { return c == kQuote || c == kEscape; }

/// Appends to `out` the text between the first quote, from `text` on, and its closing quote, with
/// escapes decoded. Everything before the first quote is skipped. Returns the position of the
/// closing quote. If there is none, returns null, and `out` holds the text up to the end.
///  - `\X\` and the two characters after it are replaced by the byte of its hexadecimal digits, of
///    which there can be one or two. If there is no digit, nothing replaces them.
///  - A `\` before any other character stays.
const char* DecodeQuoted(const char* text, std::string& out);

/// Finds the same text, if it has a closing quote and no escape. Sets `plain` to its characters,
/// which are a part of `text`. Otherwise returns false, and DecodeQuoted has to decode the text.
bool FindPlainQuoted(const char* text, std::string_view& plain);

/// Writes `text` between quotes, up to its first NUL if it has one. Quotes and backslashes are
/// escaped, bytes above 127 are written as `\X\hh`, and all other bytes are not changed.
void EncodeQuoted(std::ostream& out, std::string_view text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_QUOTING_H_
