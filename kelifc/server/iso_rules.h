#ifndef KELIFC_SERVER_ISO_RULES_H_
#define KELIFC_SERVER_ISO_RULES_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelifc/server/scan_buffer.h"

namespace KelIFC {

/// The rules by which a scanner of the dialect of ISO 10303-21 cuts a file:
///  - A byte order mark of UTF-8 at the begin of the file is skipped.
///  - A comment runs from a `/*` outside a string to the next `*/`, over any number of lines, and
///    leaves nothing.
///  - Line ends (a line feed, a carriage return, or both) vanish, in strings too, because exporters
///    wrap long lines anywhere. So do NUL bytes. Blanks at the begin of a statement vanish.
///  - A `;` in a string is text. Quotes begin and end strings. A doubled quote counts as the end of
///    a string and the begin of another one, which has the same effect. A quote after `\S\` can be
///    text: see CountQuotesAfterShift.
///  - A line that begins with `#`, digits and `=` begins a statement in any case, unless it is part
///    of a comment. So does a line that begins with FILE_DESCRIPTION, FILE_NAME, FILE_SCHEMA,
///    ENDSEC or DATA and then `(` or `;`. If the statement before it has no `;`, that statement
///    ends there. If one of its strings is open, the whole statement is left out. So a string
///    without an end costs one statement.
///  - Text after the last `;` is left out. So is a comment without an end.
/// Statements, strings and comments without an end are reported.
class IsoRules : public ScanBuffer {
 public:
  using ScanBuffer::ScanBuffer;

  /// Sets what receives the statements without an end. It may be null.
  void SetFindings(LoadFindings* target) { findings = target; }

 protected:
  void Begin() {
    SkipLineEnd();
    ScanBuffer::Begin();
  }

  // Returns the next statement if it is plain, otherwise null. A byte order mark is not plain.
  char* TakePlain() { return isStarted && FindPlain() ? FinishTrimmed(cursor + 1) : nullptr; }

  bool FindMark();
  char* TakeMark();
  void TakeEnd();

 private:
  // How much of an escape in a string has been read. A quote or a backslash inside an escape
  // neither ends the string nor begins another escape.
  enum class Escape : std::uint8_t { kNone, kOpen, kShift, kShifted, kExtended, kPage, kClosing };

  static bool StepOn(Escape& escape, char c);
  void SkipByteOrderMark();
  char* TakeGap(char c);
  void TakeInString(char c);
  std::size_t CountQuotesOfText();
  bool SkipComment();
  void SkipCommentBody(const SourcePlace& begin);
  bool IsAtNewStatement();
  std::size_t SkipBlanks(std::size_t distance);
  bool IsKeyword(std::size_t distance, std::string_view keyword);
  char* EndBeforeNewStatement();
  char* FinishTrimmed(std::size_t next);
  std::size_t CountLeadingBlanks() const;
  void Abandon();
  void Report(const SourcePlace& place);

  LoadFindings* findings = nullptr;
  std::size_t quotesOfText = 0;  // so many of the next quotes are text
  Escape escape = Escape::kNone;
  bool inString = false;
  bool isStarted = false;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_ISO_RULES_H_
