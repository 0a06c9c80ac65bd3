#include "kelifc/server/piece_maker.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "kelifc/core/unknown.h"
#include "kelifc/server/block_size.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statements.h"

namespace KelIFC {
namespace {

// The usual length of a cut: `;`, a line end and `#`.
constexpr std::size_t kLongestCut = 4;

// Returns the last position from `first` on where a statement probably ends, 0 if there is none.
std::size_t FindCut(std::string_view text, std::size_t first) {
  for (std::size_t at = text.rfind(';'); at != text.npos && at >= first;
       at = text.rfind(';', at - 1)) {
    const std::size_t next = text.find_first_not_of("\r\n", at + 1);
    if (next != text.npos && text[next] == '#') return at + 1;
    if (at == 0) break;
  }
  return 0;
}

}  // namespace

PieceMaker::PieceMaker(IfcServer& model, std::istream& in, const SourcePosition& from)
    : server(model),
      source(in),
      blockSize(GetBlockSize()),
      nextOffset(from.offset),
      position(from),
      pieces(kSlotsPerThread * model.load.threads) {
  for (Piece& piece : pieces) {
    piece.maker.release = model.release;
    piece.maker.load.dialect = model.load.dialect;
    piece.maker.load.keepsUnknown = model.load.keepsUnknown;
  }
}

std::optional<SourcePosition> PieceMaker::Make() {
  const bool isWhole = Run(server.load.threads);
  if (isWhole) server.load.isBeyondLimit = !server.IsWithinMemory();
  if (server.load.isBeyondLimit && isWhole) server.NoteFailure({position.line, 1});
  return isWrong ? std::optional(position) : std::nullopt;
}

bool PieceMaker::Fill(std::size_t slot) {
  if (isAtEnd) return false;
  Piece& piece = pieces[slot];
  SourcePiece& target = piece.source;
  target.Restart({nextOffset, 1, nextOffset});
  target.Append(rest.bytes.get(), rest.size);
  rest.Restart({});
  std::size_t cut = 0;
  while (cut == 0 && !isAtEnd && target.size < kMostBlocks * blockSize) {
    // A cut can have its `;` in this block and its `#` in the next one.
    const std::size_t searched = target.size - std::min(target.size, kLongestCut);
    isAtEnd = target.Append(source, blockSize) == 0;
    if (!isAtEnd) cut = FindCut({target.bytes.get(), target.size}, searched);
  }
  piece.isLast = isAtEnd;
  piece.isCut = cut != 0 || isAtEnd;
  if (!piece.isCut) isAtEnd = true;
  if (cut == 0) return true;
  rest.Append(target.bytes.get() + cut, target.size - cut);
  target.size = cut;
  nextOffset += cut;
  return true;
}

void PieceMaker::Work(std::size_t slot) {
  Piece& piece = pieces[slot];
  piece.statements.clear();
  piece.dropped.clear();
  piece.findings = {};
  piece.isRight = false;
  piece.end = piece.source.begin;
  piece.ends.Restart(piece.end.offset, blockSize);
  if (!piece.isCut) return;
  if (server.IsIso()) {
    IsoScanner scanner(piece.source);
    scanner.SetFindings(&piece.findings);
    MakeStatements(piece, scanner);
  } else {
    Scanner scanner(piece.source);
    MakeStatements(piece, scanner);
  }
}

template <class AnyScanner>
void PieceMaker::MakeStatements(Piece& piece, AnyScanner& scanner) {
  const std::uint64_t longest = server.load.limits.maxStatementBytes;
  const std::uint64_t end = piece.source.begin.offset + piece.source.size;
  bool isTooLong = false;
  while (!isTooLong && (piece.isLast || piece.end.offset != end)) {
    char* const statement = scanner.Next();
    if (statement == nullptr) break;
    piece.end = scanner.GetEndPosition();
    piece.ends.Note(piece.end.offset);
    isTooLong = longest != 0 && scanner.GetLength() > longest;
    MakeStatement(piece, scanner, statement);
  }
  const bool endsAtCut = piece.end.offset == end && !scanner.HasPassedEnd();
  piece.isRight = !isTooLong && piece.findings.IsEmpty() && (piece.isLast || endsAtCut);
  scanner.Release(piece.source);
}

template <class AnyScanner>
void PieceMaker::MakeStatement(Piece& piece, const AnyScanner& scanner, char* text) {
  const Assignment assignment = CutAssignment(text);
  if (assignment.number == 0) return;
  piece.statements.push_back(
      piece.maker.MakeStatement(assignment.number, assignment.text, scanner));
  IfcUnknown* const made = piece.statements.back().made.get();
  if (made == nullptr) {
    piece.dropped.push_back(EntityNameAt(assignment.text));
  } else {
    made->SetServer(&server);
  }
}

bool PieceMaker::Merge(std::size_t slot) {
  Piece& piece = pieces[slot];
  isWrong = !piece.isRight;
  if (isWrong || !Register(piece)) return false;
  position = PlaceAfter(piece.end);
  server.load.cuts.push_back(position);
  server.load.threadBytes = GetArenaBytes();
  if (server.GoesOn(piece.ends)) return true;
  server.NoteFailure({position.line, 1});
  return false;
}

// Registers the instances of a piece. Returns false if the model then has too many.
bool PieceMaker::Register(Piece& piece) {
  const std::uint64_t mostItems = server.load.limits.maxInstances;
  auto text = piece.dropped.begin();
  for (MadeStatement& statement : piece.statements) {
    MoveToSource(piece, statement);
    const SourcePlace place = {statement.place.line, statement.column};
    const bool isDropped = statement.made == nullptr;
    server.RegisterMade(std::move(statement), isDropped ? (text++)->c_str() : nullptr);
    server.load.isBeyondLimit = mostItems != 0 && server.items.size() > mostItems;
    if (!server.load.isBeyondLimit) continue;
    server.NoteFailure(place);
    return false;
  }
  return true;
}

// The line and the column of a statement are counted from the begin of its piece.
void PieceMaker::MoveToSource(const Piece& piece, MadeStatement& statement) const {
  if (statement.place.line == 1) {
    statement.column += static_cast<std::uint32_t>(piece.source.begin.offset - position.lineStart);
  }
  const std::uint64_t line = position.line + statement.place.line - 1;
  statement.place.line = static_cast<std::uint32_t>(std::min<std::uint64_t>(line, UINT32_MAX));
}

// Returns a position of the piece that begins at `position`, with the lines of the source.
SourcePosition PieceMaker::PlaceAfter(const SourcePosition& end) const {
  const bool isFirstLine = end.line == 1;
  return {end.offset, position.line + end.line - 1,
          isFirstLine ? position.lineStart : end.lineStart};
}

}  // namespace KelIFC
