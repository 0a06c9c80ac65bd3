#ifndef KELIFC_SERVER_SCAN_BUFFER_H_
#define KELIFC_SERVER_SCAN_BUFFER_H_

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <utility>
#include <vector>

#include "kelifc/server/load_findings.h"
#include "kelifc/server/plain_statement.h"
#include "kelifc/server/source_piece.h"
#include "kelifc/server/statement_place.h"

namespace KelIFC {

/// The part of a scanner that does not depend on the dialect. It reads a stream in blocks, collects
/// the text of one statement inside its buffer, and knows the place of the statement in the file.
///
/// The buffer is as long as two blocks, or as the longest statement. All work is linear in the
/// length of the stream.
class ScanBuffer {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

  /// Reads `source`, which must outlive the buffer, `size` bytes at a time.
  explicit ScanBuffer(std::istream& source, std::size_t size = kBlockSize)
      : input(&source), blockSize(size) {}

  /// Reads a stream whose next byte has a position, after the end of a statement. The blocks begin
  /// at the same offsets as those of a stream that is read from its begin.
  ScanBuffer(std::istream& source, const SourcePosition& position, std::size_t size = kBlockSize)
      : input(&source),
        blockSize(size),
        bytesRead(position.offset),
        dataBegin(position.offset),
        line(position.line),
        lineStart(position.lineStart) {}

  /// Reads a piece of a source, which begins after the end of a statement. Takes the memory of the
  /// piece; Release returns it.
  explicit ScanBuffer(SourcePiece& piece)
      : dataEnd(piece.size),
        buffer(std::move(piece.bytes)),
        bytesRead(piece.begin.offset + piece.size),
        dataBegin(piece.begin.offset),
        capacity(piece.capacity),
        ended(true),
        line(piece.begin.line),
        lineStart(piece.begin.lineStart) {}

  /// Returns the memory to the piece that was passed to the constructor. After that the scanner
  /// cannot be used.
  void Release(SourcePiece& piece) { piece.bytes = std::move(buffer); }

  /// The number of characters of the last statement.
  std::size_t GetLength() const { return textEnd - textBegin; }

  /// The begin and the end of the text of the last statement.
  const char* GetText() const { return buffer.get() + textBegin; }
  const char* GetTextEnd() const { return buffer.get() + textEnd; }

  /// Returns the number of the next statement without parsing it. Returns 0 if the statement does
  /// not begin with `#` and digits, or if it is not in the buffer yet.
  std::uint64_t PeekNumber() const;

  /// The number of bytes that have been read from the stream.
  std::uint64_t GetBytesRead() const { return bytesRead; }

  /// Sets the length of the longest statement. A longer one ends the input. 0 removes the limit.
  /// The length is checked when another block is read, so a statement may exceed the limit by a
  /// block.
  void SetLimit(std::size_t bytes) { limit = bytes; }

  /// True if a statement exceeded the limit.
  bool IsBeyondLimit() const { return isBeyondLimit; }

  /// The position in the file of a character of the last statement. Of a statement that is made of
  /// more than kMostPieces pieces, all characters of the rest have the position of the last piece.
  SourcePlace GetPlace(std::size_t offset = 0) const;

  /// The offset in the stream of the first character of the last statement.
  std::uint64_t GetBeginOffset() const { return OffsetIn(GetFirstPiece()); }

  /// The offset in the stream of what follows the last statement and its `;`.
  std::uint64_t GetEndOffset() const { return AbsoluteOf(cursor); }

  /// The position of what follows the last statement and its `;`.
  SourcePosition GetEndPosition() const { return {GetEndOffset(), line, lineStart}; }

  /// True if the scanner has needed a character after the end of the input.
  bool HasPassedEnd() const { return hasPassedEnd; }

  /// Where the last statement is in the stream.
  StatementPlace GetStatementPlace() const {
    constexpr std::uint64_t kMost = UINT32_MAX;
    const Piece& first = GetFirstPiece();
    const std::uint64_t begin = OffsetIn(first);
    return {begin, static_cast<std::uint32_t>(std::min(first.place.line, kMost)),
            static_cast<std::uint32_t>(std::min(GetEndOffset() - begin, kMost))};
  }

  static constexpr std::size_t kMostPieces = 65536;

 protected:
  // Starts a new statement at the cursor.
  void Begin() {
    textBegin = textEnd = runBegin = cursor;
    dropped = 0;
    if (!pieces.empty()) pieces.clear();
    start = {0, PlaceOf(cursor), AbsoluteOf(cursor)};
  }

  // Before the first block is read: true if the input begins where the source begins.
  bool IsAtBegin() const { return dataBegin == 0; }

  // Skips a line end at the cursor. Nearly every file has one before each statement. A search for
  // it would be slower.
  void SkipLineEnd() {
    const bool hasReturn = cursor + 2 < dataEnd && buffer[cursor] == '\r';
    const std::size_t lineEnd = cursor + (hasReturn ? 1 : 0);
    if (lineEnd + 1 < dataEnd && buffer[lineEnd] == '\n') {
      BeginLine(lineEnd + 1);
      cursor = lineEnd + 1;
    }
  }

  // After Begin: moves the cursor to the `;` of a plain statement that is in the buffer. Returns
  // false for any other statement.
  bool FindPlain() {
    const char* const end = FindPlainEnd(DataAt(cursor), DataAt(dataEnd));
    if (end == nullptr) return false;
    cursor = static_cast<std::size_t>(end - buffer.get());
    return true;
  }

  // Ends the statement, and moves the cursor to `next`, where the next one starts. There is room
  // for a NUL after the text: `next` is after the cursor, or the run is empty and the text is not.
  char* Finish(std::size_t next);

  // Removes characters from the front of the text of a statement that is finished.
  void DropFront(std::size_t count) {
    textBegin += count;
    dropped = count;
  }

  // Returns the character at a distance from the cursor, or -1 at the end of the input. Reads more
  // blocks if necessary; then all positions may move by the same distance. It must not be called
  // between FlushRun and SkipTo.
  int Peek(std::size_t distance) {
    while (dataEnd - cursor <= distance) {
      if (!Refill()) return -1;
    }
    return static_cast<unsigned char>(buffer[cursor + distance]);
  }

  // Reads one more block after the data. Returns false at the end of the input; positions may move.
  bool Refill();

  // Joins the run up to `end` to the text, in most cases without moving a byte.
  void FlushRun(std::size_t end);

  // Leaves out the characters between the text and `position`.
  void SkipTo(std::size_t position) {
    MoveTo(position);
    NotePiece();
  }

  // The same for a part of what is left out.
  void MoveTo(std::size_t position) { runBegin = cursor = position; }

  // Notes that a line begins at `position`, which is not before the cursor.
  void BeginLine(std::size_t position) {
    ++line;
    lineStart = AbsoluteOf(position);
  }

  // Notes the place in the file of the text at the cursor.
  void NotePiece() {
    const std::size_t offset = textEnd - textBegin + cursor - runBegin;
    if (offset == 0) {
      start = {0, PlaceOf(cursor), AbsoluteOf(cursor)};
    } else {
      AddPiece(offset);
    }
  }

  SourcePlace PlaceOf(std::size_t position) const {
    return {line, AbsoluteOf(position) - lineStart + 1};
  }

  const char* DataAt(std::size_t position) const { return buffer.get() + position; }

  // The offset in the stream of a position that is not before the cursor.
  std::uint64_t AbsoluteOf(std::size_t position) const { return dataBegin + position; }

  // Positions in the buffer, in this order. The text of the statement is [textBegin, textEnd),
  // followed by the run [runBegin, cursor). The run joins the text as soon as a character after it
  // is left out.
  std::size_t textBegin = 0;
  std::size_t textEnd = 0;
  std::size_t runBegin = 0;
  std::size_t cursor = 0;
  std::size_t dataEnd = 0;

  std::unique_ptr<char[]> buffer;

 private:
  // A part of the text that is in one piece in the file.
  struct Piece {
    std::size_t offset = 0;  // in the text
    SourcePlace place;
    std::uint64_t absolute = 0;  // offset in the stream
  };

  // The piece with the first character of the text, and the offset of this character.
  const Piece& GetFirstPiece() const { return pieces.empty() ? start : FindPiece(dropped); }
  std::uint64_t OffsetIn(const Piece& piece) const {
    return piece.absolute + dropped - piece.offset;
  }

  const Piece& FindPiece(std::size_t offset) const;
  void AddPiece(std::size_t offset);
  void CloseGaps();
  void Grow();

  std::istream* input = nullptr;  // null for a piece in memory
  std::size_t blockSize = kBlockSize;
  std::size_t limit = 0;
  std::uint64_t bytesRead = 0;
  std::uint64_t dataBegin = 0;  // added to a position after all gaps: its offset in the stream
  std::size_t capacity = 0;
  bool ended = false;
  bool hasPassedEnd = false;
  bool isBeyondLimit = false;

  std::uint64_t line = 1;
  std::uint64_t lineStart = 0;  // offset in the stream
  Piece start;                  // the first piece
  std::vector<Piece> pieces;    // the other ones; in most statements there are none
  std::size_t dropped = 0;      // characters from the front of the text
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SCAN_BUFFER_H_
