#ifndef KELIFC_SERVER_CLASSIC_RULES_H_
#define KELIFC_SERVER_CLASSIC_RULES_H_

#include "kelifc/server/scan_buffer.h"

namespace KelIFC {

/// The rules by which a scanner of the classic dialect cuts a file:
///  - A comment stands on one line: it runs from the first `/*` outside a string to the last `*/`
///    of that line, over whatever is between, and leaves nothing. A `/*` without a `*/` after it on
///    its line is text.
///  - Outside strings a line end joins two lines with nothing between; blanks and tabs stay.
///  - In a string a line end stays, as a line feed, and a `;` is text. What a backslash and a quote
///    mean there is defined in core/text/quoting.h.
///  - A carriage return right before a line feed belongs to the line end, any other is text.
///  - A NUL byte vanishes, but separates its neighbours: no mark of two characters forms across it.
///  - Text after the last `;` is dropped.
class ClassicRules : public ScanBuffer {
 public:
  using ScanBuffer::ScanBuffer;

 protected:
  void Begin() {
    SkipLineEnd();
    ScanBuffer::Begin();
  }

  // Returns the next statement if it is plain, otherwise null.
  char* TakePlain() { return FindPlain() ? Finish(cursor + 1) : nullptr; }

  // Moves the cursor to the next character that has a meaning here. False at the end of the input.
  bool FindMark();

  // Acts on the character at the cursor and steps over it. Returns the statement that it ends, or
  // null.
  char* TakeMark();

  void TakeEnd() { Begin(); }

 private:
  void TakeLineEnd();
  void TakeEscape();
  bool SkipComment();
  std::size_t FindLineEnd();

  std::uint64_t commentFree = 0;  // no comment begins before this offset in the stream
  bool inString = false;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_CLASSIC_RULES_H_
