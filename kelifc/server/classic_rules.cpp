#include "kelifc/server/classic_rules.h"

#include <cstddef>
#include <cstring>

#include "kelifc/core/text/quoting.h"
#include "kelifc/server/block_search.h"

namespace KelIFC {

bool ClassicRules::FindMark() {
  do {
    const char* from = DataAt(cursor);
    const char* end = DataAt(dataEnd);
    const char* mark = inString ? FindAnyOf<kQuote, kEscape, '\n', '\0'>(from, end)
                                : FindAnyOf<';', kQuote, '/', '\n', '\0'>(from, end);
    cursor += static_cast<std::size_t>(mark - from);
  } while (cursor == dataEnd && Refill());
  return cursor < dataEnd;
}

char* ClassicRules::TakeMark() {
  switch (buffer[cursor]) {
    case ';':
      return Finish(cursor + 1);
    case kQuote:
      inString = !inString;
      ++cursor;
      break;
    case kEscape:
      TakeEscape();
      break;
    case '/':
      if (!SkipComment()) ++cursor;
      break;
    case '\n':
      TakeLineEnd();
      break;
    case '\0':
      FlushRun(cursor);
      SkipTo(cursor + 1);
      break;
  }
  return nullptr;
}

void ClassicRules::TakeLineEnd() {
  const bool hasReturn = cursor > runBegin && buffer[cursor - 1] == '\r';
  BeginLine(cursor + 1);
  if (!inString || hasReturn) {
    FlushRun(hasReturn ? cursor - 1 : cursor);
    MoveTo(inString ? cursor : cursor + 1);
  }
  if (inString) ++cursor;
  NotePiece();
}

void ClassicRules::TakeEscape() {
  const int next = Peek(1);
  cursor += next >= 0 && IsEscapable(static_cast<char>(next)) ? 2 : 1;
}

// With the cursor on a slash: steps over the comment that begins there, if one does. The last `*/`
// of a line settles the question for the whole line: before it all is comment, after it none can
// begin. So each line is looked at once.
bool ClassicRules::SkipComment() {
  if (AbsoluteOf(cursor) < commentFree || Peek(1) != '*') return false;
  const std::size_t lineEnd = FindLineEnd();
  commentFree = AbsoluteOf(lineEnd);
  for (std::size_t close = lineEnd; close >= cursor + 4; --close) {
    if (buffer[close - 1] != '/' || buffer[close - 2] != '*') continue;
    FlushRun(cursor);
    SkipTo(close);
    return true;
  }
  return false;
}

// The position of the next line feed, or of the end of the input.
std::size_t ClassicRules::FindLineEnd() {
  std::size_t seen = 0;  // after the cursor, which moves with each refill
  do {
    const char* from = DataAt(cursor + seen);
    const void* lineFeed = std::memchr(from, '\n', dataEnd - cursor - seen);
    if (lineFeed != nullptr) {
      return static_cast<std::size_t>(static_cast<const char*>(lineFeed) - buffer.get());
    }
    seen = dataEnd - cursor;
  } while (Refill());
  return dataEnd;
}

}  // namespace KelIFC
