#ifndef KELIFC_CORE_TEXT_QUOTING_H_
#define KELIFC_CORE_TEXT_QUOTING_H_

#include <iosfwd>
#include <string>
#include <string_view>

// What quotes and escapes mean in a text, in this one place for the values and for the scanner that
// cuts a file into statements. A text stands between single quotes. A backslash makes a following
// quote or backslash a plain character; `\X\hh` stands for the byte hh. A doubled quote is the end
// of one text and the begin of another. A further dialect would be a second set of these functions
// behind a choice made here.

namespace KelIFC {

constexpr char kQuote = '\'';
constexpr char kEscape = '\\';

/// True for the characters that form a pair with an escape ahead of them: whoever looks for the end
/// of a text must step over both at once.
constexpr bool IsEscapable(char c) { return c == kQuote || c == kEscape; }

/// Appends to `out` what stands between the first quote at or behind `text` and its closing quote,
/// with escapes resolved; what stands ahead of the first quote is skipped. Gives the position of
/// the closing quote. If the text ends before it, gives null and leaves in `out` what was read.
///  - `\X\` with no hexadecimal digit behind it appends nothing; with one or two, their byte. In
///    either case the two characters behind it are used up.
///  - A `\` ahead of any other character stays.
const char* DecodeQuoted(const char* text, std::string& out);

/// Writes `text` between quotes, up to its first NUL if it has one. Quotes and backslashes are
/// escaped, bytes above 127 written as `\X\hh`, all others as they are.
void EncodeQuoted(std::ostream& out, std::string_view text);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_QUOTING_H_
