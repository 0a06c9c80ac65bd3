#include "kelifc/server/scanner.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "kelifc/core/text/quoting.h"
#include "kelifc/server/block_search.h"

namespace KelIFC {
namespace {

constexpr std::size_t kLongestPeek = 16;

}  // namespace

Scanner::Scanner(std::istream& source, std::size_t size) : input(source), blockSize(size) {}

char* Scanner::Next() {
  textBegin = textEnd = runBegin = cursor;
  while (FindMark()) {
    if (!TakeMark()) continue;
    FlushRun(cursor);
    buffer[textEnd] = '\0';  // at the latest where the `;` was
    SkipTo(cursor + 1);
    return &buffer[textBegin];
  }
  textBegin = textEnd = runBegin = cursor;
  return nullptr;
}

std::uint64_t Scanner::PeekNumber() const {
  const char* at = buffer.get() + cursor;
  const char* const last = at + std::min(kLongestPeek, dataEnd - cursor);
  while (at < last && (*at == '\n' || *at == '\r')) ++at;
  if (at == last || *at != '#') return 0;
  std::uint64_t number = 0;
  for (++at; at < last && *at >= '0' && *at <= '9'; ++at) {
    number = 10 * number + static_cast<std::uint64_t>(*at - '0');
  }
  return number;
}

// Moves the cursor to the next character that means something here. False at the end of the input.
bool Scanner::FindMark() {
  do {
    const char* from = buffer.get() + cursor;
    const char* end = buffer.get() + dataEnd;
    const char* mark = inString ? FindAnyOf<kQuote, kEscape, '\n', '\0'>(from, end)
                                : FindAnyOf<';', kQuote, '/', '\n', '\0'>(from, end);
    cursor += static_cast<std::size_t>(mark - from);
  } while (cursor == dataEnd && Refill());
  return cursor < dataEnd;
}

// Acts on the character at the cursor and steps over it. True for the `;` that ends the statement.
bool Scanner::TakeMark() {
  switch (buffer[cursor]) {
    case ';':
      return true;
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
  return false;
}

void Scanner::TakeLineEnd() {
  const bool hasReturn = cursor > runBegin && buffer[cursor - 1] == '\r';
  if (!inString || hasReturn) {
    FlushRun(hasReturn ? cursor - 1 : cursor);
    SkipTo(inString ? cursor : cursor + 1);
  }
  if (inString) ++cursor;
}

void Scanner::TakeEscape() {
  const bool isPair = HasByteBehind() && IsEscapable(buffer[cursor + 1]);
  cursor += isPair ? 2 : 1;
}

// With the cursor on a slash: steps over the comment that begins there, if one does. The last `*/`
// of a line settles the question for the whole line: before it all is comment, behind it none can
// begin. So each line is looked at once.
bool Scanner::SkipComment() {
  if (cursor < commentFree || !HasByteBehind() || buffer[cursor + 1] != '*') return false;
  commentFree = FindLineEnd();
  for (std::size_t close = commentFree; close >= cursor + 4; --close) {
    if (buffer[close - 1] != '/' || buffer[close - 2] != '*') continue;
    FlushRun(cursor);
    SkipTo(close);
    return true;
  }
  return false;
}

// The position of the next line feed, or of the end of the input.
std::size_t Scanner::FindLineEnd() {
  std::size_t seen = 0;  // behind the cursor, which moves with each refill
  do {
    const char* from = buffer.get() + cursor + seen;
    const void* lineFeed = std::memchr(from, '\n', dataEnd - cursor - seen);
    if (lineFeed != nullptr) return static_cast<const char*>(lineFeed) - buffer.get();
    seen = dataEnd - cursor;
  } while (Refill());
  return dataEnd;
}

bool Scanner::HasByteBehind() { return cursor + 1 < dataEnd || Refill(); }

// Reads one more block behind the data. False at the end of the input; positions may move.
bool Scanner::Refill() {
  if (limit != 0 && textEnd - textBegin + cursor - runBegin > limit) ended = true;
  if (ended) return false;
  CloseGaps();
  if (capacity - dataEnd < blockSize) Grow();
  input.read(&buffer[dataEnd], static_cast<std::streamsize>(blockSize));
  const auto count = static_cast<std::size_t>(input.gcount());
  dataEnd += count;
  bytesRead += count;
  ended = count == 0;
  return !ended;
}

// Moves the text to the front of the buffer and all that follows right behind it. A text is moved
// at most once, since it then stays at the front.
void Scanner::CloseGaps() {
  const std::size_t length = textEnd - textBegin;
  const std::size_t gap = runBegin - length;
  if (gap == 0) return;
  if (textBegin != 0) std::memmove(&buffer[0], &buffer[textBegin], length);
  std::memmove(&buffer[length], &buffer[runBegin], dataEnd - runBegin);
  textBegin = 0;
  textEnd = runBegin = length;
  cursor -= gap;
  dataEnd -= gap;
  commentFree = std::max(commentFree, gap) - gap;
}

void Scanner::Grow() {
  const std::size_t wanted = std::max(2 * capacity, dataEnd + 2 * blockSize);
  std::unique_ptr<char[]> larger(new char[wanted]);
  if (dataEnd != 0) std::memcpy(larger.get(), buffer.get(), dataEnd);
  buffer = std::move(larger);
  capacity = wanted;
}

// Joins the run up to `end` to the text, in most cases without moving a byte.
void Scanner::FlushRun(std::size_t end) {
  const std::size_t length = end - runBegin;
  if (textEnd == textBegin) textBegin = textEnd = runBegin;
  if (textEnd != runBegin) std::memmove(&buffer[textEnd], &buffer[runBegin], length);
  textEnd += length;
}

// Leaves out what stands between the text and `position`.
void Scanner::SkipTo(std::size_t position) { runBegin = cursor = position; }

}  // namespace KelIFC
