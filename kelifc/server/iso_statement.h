#ifndef KELIFC_SERVER_ISO_STATEMENT_H_
#define KELIFC_SERVER_ISO_STATEMENT_H_

#include <iosfwd>
#include <string>
#include <string_view>

#include "kelifc/core/text/iso_text.h"

// Values read and write one notation, that of core/text/quoting.h. A file in the dialect of
// ISO 10303-21 is rewritten, statement by statement, into that notation when it is loaded, and back
// when it is saved. In the notation of the values, the text of a string is then UTF-8.

namespace KelIFC {

/// Rewrites statements of a file for the values.
class IsoStatementReader {
 public:
  /// `sink` receives the bad escapes of all statements. It may be null.
  explicit IsoStatementReader(BadEscapeSink* sink = nullptr) : badEscapes(sink) {}

  /// Returns [text, end), a statement or a part of it without comments, in the notation of the
  /// values. Usually nothing changes, and the result is `text` itself. Otherwise the result is
  /// valid until the next call. There is a NUL at `end`, and at the end of the result.
  ///  - Blanks and control characters between tokens are removed.
  ///  - Letters outside strings become upper case.
  ///  - Strings are decoded.
  ///  - Binary values become one character per bit.
  ///  - A string without an end is removed with all that follows.
  const char* Read(const char* text, const char* end);

 private:
  const char* TakeToken(const char* at);
  const char* TakeLowerCase(const char* at);
  const char* TakeString(const char* quote);
  const char* TakeBinary(const char* quote);
  const char* ReplaceString(const char* quote);
  void AppendQuoted(std::string_view text);
  void FlushTo(const char* position);

  BadEscapeSink* badEscapes;
  std::string out;
  std::string decoded;
  const char* kept = nullptr;  // the text from here to the current token is not in `out` yet
  const char* limit = nullptr;
};

/// Writes a statement, as instances write it, to `target` in the dialect of ISO 10303-21. There is
/// a NUL at the end of `statement`.
void WriteIsoStatement(std::ostream& target, std::string_view statement);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_ISO_STATEMENT_H_
