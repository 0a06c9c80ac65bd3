#include "kelifc/server/scan_buffer.h"

#include <algorithm>
#include <cstring>

#include "kelifc/core/text/ascii.h"

namespace KelIFC {
namespace {

constexpr std::size_t kLongestPeek = 16;

}  // namespace

std::uint64_t ScanBuffer::PeekNumber() const {
  const char* at = buffer.get() + cursor;
  const char* const last = at + std::min(kLongestPeek, dataEnd - cursor);
  while (at < last && (*at == '\n' || *at == '\r')) ++at;
  if (at == last || *at != '#') return 0;
  std::uint64_t number = 0;
  for (++at; at < last && ascii::IsDigit(*at); ++at) {
    number = 10 * number + static_cast<std::uint64_t>(*at - '0');
  }
  return number;
}

// Returns the piece with a character of the text. `offset` includes the characters that DropFront
// removed.
const ScanBuffer::Piece& ScanBuffer::FindPiece(std::size_t offset) const {
  if (pieces.empty()) return start;
  const auto next = std::upper_bound(
      pieces.begin(), pieces.end(), offset,
      [](std::size_t wanted, const Piece& piece) { return wanted < piece.offset; });
  return next == pieces.begin() ? start : next[-1];
}

SourcePlace ScanBuffer::GetPlace(std::size_t offset) const {
  const Piece& piece = FindPiece(offset + dropped);
  const bool isRest = pieces.size() == kMostPieces && &piece == &pieces.back();
  const std::size_t distance = isRest ? 0 : offset + dropped - piece.offset;
  return {piece.place.line, piece.place.column + distance};
}

void ScanBuffer::AddPiece(std::size_t offset) {
  if (pieces.size() < kMostPieces) {
    pieces.push_back({offset, PlaceOf(cursor), AbsoluteOf(cursor)});
  }
}

char* ScanBuffer::Finish(std::size_t next) {
  FlushRun(cursor);
  buffer[textEnd] = '\0';
  MoveTo(next);
  return &buffer[textBegin];
}

bool ScanBuffer::Refill() {
  if (limit != 0 && textEnd - textBegin + cursor - runBegin > limit) ended = isBeyondLimit = true;
  hasPassedEnd = hasPassedEnd || ended;
  if (ended) return false;
  CloseGaps();
  if (capacity - dataEnd < blockSize) Grow();
  const std::uint64_t wanted = blockSize - bytesRead % blockSize;
  input->read(&buffer[dataEnd], static_cast<std::streamsize>(wanted));
  const auto count = static_cast<std::size_t>(input->gcount());
  dataEnd += count;
  bytesRead += count;
  dataBegin = bytesRead - dataEnd;
  ended = count == 0;
  return !ended;
}

// Moves the text to the front of the buffer, and everything that follows it. A text is moved at
// most once, because it then stays at the front. One character remains free after the text, for the
// NUL that ends it.
void ScanBuffer::CloseGaps() {
  const std::size_t length = textEnd - textBegin;
  const std::size_t begin = length == 0 ? 0 : length + 1;
  if (runBegin <= begin) return;
  const std::size_t gap = runBegin - begin;
  if (textBegin != 0) std::memmove(&buffer[0], &buffer[textBegin], length);
  std::memmove(&buffer[begin], &buffer[runBegin], dataEnd - runBegin);
  textBegin = 0;
  textEnd = length;
  runBegin = begin;
  cursor -= gap;
  dataEnd -= gap;
}

void ScanBuffer::Grow() {
  const std::size_t wanted = std::max(2 * capacity, dataEnd + 2 * blockSize);
  std::unique_ptr<char[]> larger(new char[wanted]);
  if (dataEnd != 0) std::memcpy(larger.get(), buffer.get(), dataEnd);
  buffer = std::move(larger);
  capacity = wanted;
}

void ScanBuffer::FlushRun(std::size_t end) {
  const std::size_t length = end - runBegin;
  if (textEnd == textBegin) textBegin = textEnd = runBegin;
  if (textEnd != runBegin) std::memmove(&buffer[textEnd], &buffer[runBegin], length);
  textEnd += length;
}

}  // namespace KelIFC
