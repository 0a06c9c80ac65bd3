#ifndef KELIFC_SERVER_SCANNER_H_
#define KELIFC_SERVER_SCANNER_H_

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>

namespace KelIFC {

/// Cuts the text of a STEP file into statements. It knows comments, line ends, quoted strings and
/// the `;` that ends a statement, and nothing else.
///
///  - A comment stands on one line: it runs from the first `/*` outside a string to the last `*/`
///    of that line, over whatever is between, and leaves nothing. A `/*` without a `*/` behind it
///    on its line is text.
///  - Outside strings a line end joins two lines with nothing between; blanks and tabs stay.
///  - In a string a line end stays, as a line feed, and a `;` is text. What a backslash and a quote
///    mean there is told in core/text/quoting.h.
///  - A carriage return right ahead of a line feed belongs to the line end, any other is text.
///  - A NUL byte vanishes, but parts its neighbours: no mark of two characters forms across it.
///  - Text behind the last `;` is dropped.
///
/// The file streams through one buffer in blocks, and each statement is handed out in place in it:
/// the buffer is as long as two blocks, or as the longest statement or commented line. All work is
/// linear in the length of the file.
class Scanner {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

  /// Reads `input`, which must outlive the scanner, `blockSize` bytes at a time.
  explicit Scanner(std::istream& input, std::size_t blockSize = kBlockSize);

  /// The next statement without its `;`, or null at the end of the input. The text ends with a NUL,
  /// may be written to, and is good until the next call.
  char* Next();

  /// How many characters the last statement has.
  std::size_t GetLength() const { return textEnd - textBegin; }

  /// The number of the statement that comes next, as far as it can be told at a glance: 0 unless it
  /// begins with `#` and digits and stands in the buffer.
  std::uint64_t PeekNumber() const;

  /// How many bytes have been read from the input.
  std::uint64_t GetBytesRead() const { return bytesRead; }

  /// A statement that grows beyond `bytes` ends the input from now on; 0 lifts the limit.
  void SetLimit(std::size_t bytes) { limit = bytes; }

 private:
  bool FindMark();
  bool TakeMark();
  void TakeLineEnd();
  void TakeEscape();
  bool SkipComment();
  std::size_t FindLineEnd();
  bool HasByteBehind();
  bool Refill();
  void CloseGaps();
  void Grow();
  void FlushRun(std::size_t end);
  void SkipTo(std::size_t position);

  std::istream& input;
  std::size_t blockSize;
  std::size_t limit = 0;
  std::uint64_t bytesRead = 0;
  std::unique_ptr<char[]> buffer;
  std::size_t capacity = 0;

  // Positions in the buffer, in this order. The text of the statement is [textBegin, textEnd) and
  // the run [runBegin, cursor), which joins it as soon as something is left out behind it.
  std::size_t textBegin = 0;
  std::size_t textEnd = 0;
  std::size_t runBegin = 0;
  std::size_t cursor = 0;
  std::size_t dataEnd = 0;

  std::size_t commentFree = 0;  // no comment begins ahead of this position
  bool inString = false;
  bool ended = false;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SCANNER_H_
