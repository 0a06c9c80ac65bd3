#include "kelifc/server/iso_rules.h"

#include <cstddef>

#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/iso8859.h"
#include "kelifc/core/text/iso_text.h"
#include "kelifc/server/block_search.h"

namespace KelIFC {
namespace {

constexpr bool IsLineEnd(int c) { return c == '\n' || c == '\r'; }
constexpr bool IsGap(int c) { return IsLineEnd(c) || c == '\0'; }
// The begin of a statement is searched in this many characters of a line.
constexpr std::size_t kLongestBegin = 64;

// The words that begin a statement at the begin of a line. A number does so, too.
constexpr std::string_view kKeywords[] = {"FILE_DESCRIPTION", "FILE_NAME", "FILE_SCHEMA", "ENDSEC",
                                          "DATA"};

}  // namespace

bool IsoRules::FindMark() {
  if (!isStarted) SkipByteOrderMark();
  do {
    const char* from = DataAt(cursor);
    const char* end = DataAt(dataEnd);
    const char* mark = from;
    if (!inString) {
      mark = FindAnyOf<';', kQuote, '/', '\n', '\r', '\0'>(from, end);
    } else if (escape == Escape::kNone) {
      mark = FindAnyOf<kQuote, kEscape, '\n', '\r', '\0'>(from, end);
    }
    cursor += static_cast<std::size_t>(mark - from);
  } while (cursor == dataEnd && Refill());
  return cursor < dataEnd;
}

void IsoRules::SkipByteOrderMark() {
  isStarted = true;
  if (!IsAtBegin()) return;
  if (Peek(0) != 0xEF || Peek(1) != 0xBB || Peek(2) != 0xBF) return;
  cursor += 3;
  Begin();
}

char* IsoRules::TakeMark() {
  const char c = buffer[cursor];
  if (c == ';' && !inString) return FinishTrimmed(cursor + 1);
  if (IsGap(c)) return TakeGap(c);
  if (inString) {
    TakeInString(c);
  } else if (c == kQuote) {
    inString = true;
    ++cursor;
  } else if (!SkipComment()) {
    ++cursor;
  }
  return nullptr;
}

// Leaves out a character that means nothing. After a line end, checks whether the next line begins
// a statement.
char* IsoRules::TakeGap(char c) {
  const bool endsLine = c == '\n' || (c == '\r' && Peek(1) != '\n');
  FlushRun(cursor);
  if (endsLine) BeginLine(cursor + 1);
  SkipTo(cursor + 1);
  const bool hasText = textBegin != textEnd;
  return endsLine && hasText && IsAtNewStatement() ? EndBeforeNewStatement() : nullptr;
}

void IsoRules::TakeInString(char c) {
  if (escape == Escape::kShifted && c == kQuote) {
    escape = Escape::kNone;
    quotesOfText = CountQuotesOfText();
  } else if (escape != Escape::kNone && StepOn(escape, c)) {
    ++cursor;
    return;
  }
  if (c == kEscape) escape = Escape::kOpen;
  if (c == kQuote) {
    if (quotesOfText == 0) {
      inString = false;
    } else {
      --quotesOfText;
    }
  }
  ++cursor;
}

// Continues an escape with a character. Returns false if the character does not belong to the
// escape; then the escape has ended.
bool IsoRules::StepOn(Escape& escape, char c) {
  const Escape before = escape;
  escape = Escape::kNone;
  switch (before) {
    case Escape::kOpen:
      if (c == 'S') escape = Escape::kShift;
      if (c == 'X') escape = Escape::kExtended;
      if (c == 'P') escape = Escape::kPage;
      return c == kEscape || escape != Escape::kNone;
    case Escape::kShift:
      if (c == kEscape) escape = Escape::kShifted;
      return c == kEscape;
    case Escape::kShifted:
      return true;
    case Escape::kExtended:
      if (c == '0' || c == '2' || c == '4') escape = Escape::kClosing;
      return c == kEscape || escape != Escape::kNone;
    case Escape::kPage:
      if (c >= kFirstIsoPage && c <= kLastIsoPage) escape = Escape::kClosing;
      return escape != Escape::kNone;
    case Escape::kClosing:
      return c == kEscape;
    case Escape::kNone:
      break;
  }
  return false;
}

// The cursor is on the first quote after `\S\`. At most a megabyte after it is read, because all of
// it has to be in the buffer.
std::size_t IsoRules::CountQuotesOfText() {
  constexpr std::size_t kFurthest = std::size_t{1024} * 1024;
  std::size_t distance = 0;
  return CountQuotesAfterShift([&] {
    int c = 0;
    while (IsGap(c) && distance < kFurthest) c = Peek(distance++);
    return IsGap(c) || c < 0 ? '\0' : static_cast<char>(c);
  });
}

// The cursor is on a slash. Skips the comment that begins there, if one does.
bool IsoRules::SkipComment() {
  if (Peek(1) != '*') return false;
  FlushRun(cursor);
  const SourcePlace begin = PlaceOf(cursor);
  MoveTo(cursor + 2);
  SkipCommentBody(begin);
  NotePiece();
  return true;
}

void IsoRules::SkipCommentBody(const SourcePlace& begin) {
  while (true) {
    const char* from = DataAt(cursor);
    const char* mark = FindAnyOf<'*', '\n'>(from, DataAt(dataEnd));
    MoveTo(cursor + static_cast<std::size_t>(mark - from));
    if (cursor == dataEnd) {
      if (Refill()) continue;
      return Report(begin);
    }
    const bool isEnd = *mark == '*' && Peek(1) == '/';
    if (buffer[cursor] == '\n') BeginLine(cursor + 1);
    MoveTo(cursor + (isEnd ? 2 : 1));
    if (isEnd) return;
  }
}

// True if the line at the cursor begins as a statement: with a number and `=`, or with a keyword of
// the structure of a file and `(` or `;`. There can be blanks before and between them.
bool IsoRules::IsAtNewStatement() {
  const std::size_t begin = SkipBlanks(0);
  if (Peek(begin) == '#') {
    std::size_t end = begin + 1;
    while (end < kLongestBegin && ascii::IsDigit(Peek(end))) ++end;
    return end > begin + 1 && Peek(SkipBlanks(end)) == '=';
  }
  for (const std::string_view keyword : kKeywords) {
    if (!IsKeyword(begin, keyword)) continue;
    const int next = Peek(SkipBlanks(begin + keyword.size()));
    if (next == '(' || next == ';') return true;
  }
  return false;
}

// Returns the distance of the first character at or after a distance that is not a blank.
std::size_t IsoRules::SkipBlanks(std::size_t distance) {
  while (distance < kLongestBegin && (Peek(distance) == ' ' || Peek(distance) == '\t')) ++distance;
  return distance;
}

// True if there is a keyword at a distance from the cursor, in upper or lower case.
bool IsoRules::IsKeyword(std::size_t distance, std::string_view keyword) {
  for (const char letter : keyword) {
    const int found = Peek(distance++);
    if (found != letter && (found < 'a' || found > 'z' || found - 'a' + 'A' != letter))
      return false;
  }
  return true;
}

// Ends the statement before the line at the cursor. A statement of blanks only is ignored.
char* IsoRules::EndBeforeNewStatement() {
  const std::size_t blanks = CountLeadingBlanks();
  if (blanks == GetLength()) {
    Begin();
    return nullptr;
  }
  Report(GetPlace(blanks));
  if (!inString) return FinishTrimmed(cursor);
  Abandon();
  return nullptr;
}

char* IsoRules::FinishTrimmed(std::size_t next) {
  Finish(next);
  const std::size_t blanks = CountLeadingBlanks();
  DropFront(blanks);
  return &buffer[textBegin];
}

std::size_t IsoRules::CountLeadingBlanks() const {
  std::size_t count = 0;
  while (textBegin + count < textEnd && IsIsoBlank(buffer[textBegin + count])) ++count;
  return count;
}

void IsoRules::Abandon() {
  inString = false;
  escape = Escape::kNone;
  quotesOfText = 0;
  Begin();
}

void IsoRules::TakeEnd() {
  FlushRun(cursor);
  const std::size_t blanks = CountLeadingBlanks();
  if (blanks != GetLength() && !IsBeyondLimit()) Report(GetPlace(blanks));
  Abandon();
}

void IsoRules::Report(const SourcePlace& place) {
  if (findings != nullptr) findings->Note(LoadFinding::kStatementWithoutEnd, place);
}

}  // namespace KelIFC
