#include "kelifc/server/piece_parser.h"

#include <iterator>
#include <optional>
#include <utility>

#include "kelifc/core/unknown.h"
#include "kelifc/server/block_size.h"
#include "kelifc/server/detail/number_order.h"
#include "kelifc/server/escape_notes.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/model_origin.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statements.h"

namespace KelIFC {

PieceParser::PieceParser(IfcServer& model, std::istream& in)
    : server(model),
      source(in),
      blockSize(GetBlockSize()),
      pieces(kSlotsPerThread * model.load.threads) {}

void PieceParser::Parse() {
  if (Run(server.load.threads)) Extend();
}

// A cut can be at the end of a statement that has no `;`. A scanner finds this end only together
// with the begin of the next statement, so such a cut is left out.
bool PieceParser::Fill(std::size_t slot) {
  const std::vector<SourcePosition>& cuts = server.load.cuts;
  if (next == cuts.size()) return false;
  Piece& piece = pieces[slot];
  SourcePiece& target = piece.source;
  target.Restart(cuts[next]);
  bool isCut = false;
  while (!isCut && ++next < cuts.size()) {
    const std::uint64_t end = target.begin.offset + target.size;
    target.Append(source, static_cast<std::size_t>(cuts[next].offset - end));
    isCut = target.size != 0 && target.bytes[target.size - 1] == ';';
  }
  while (!isCut && target.Append(source, blockSize) != 0) continue;
  return true;
}

void PieceParser::Work(std::size_t slot) {
  Piece& piece = pieces[slot];
  piece.findings = {};
  piece.ids.clear();
  piece.work = {};
  piece.statementBytes = 0;
  piece.ends.Restart(piece.source.begin.offset, blockSize);
  const PostponedWork::Collection collection(piece.work);
  if (server.IsIso()) {
    ParseIso(piece);
  } else {
    Scanner scanner(piece.source);
    ParseStatements(piece, scanner, nullptr);
  }
}

void PieceParser::ParseIso(Piece& piece) {
  const IdRecorder recorder(piece.ids, piece.number);
  IsoScanner scanner(piece.source);
  EscapeNotes notes(scanner, &piece.findings, piece.number);
  IsoStatementReader reader(&notes);
  ParseStatements(piece, scanner, &reader);
}

// Does what ParseStatement does, but changes only the piece and the instances of its statements.
template <class AnyScanner>
void PieceParser::ParseStatements(Piece& piece, AnyScanner& scanner, IsoStatementReader* reader) {
  detail::NumberOrder order;
  while (char* const statement = scanner.Next()) {
    piece.ends.Note(scanner.GetEndOffset());
    piece.statementBytes += scanner.GetLength();
    if (order.IsLost()) server.idToIndex.PrefetchNumber(scanner.PeekNumber());
    const Assignment assignment = CutAssignment(statement);
    if (assignment.number == 0) continue;
    order.Note(assignment.number);
    IfcUnknown* const instance = server.FindStated(assignment.number, scanner.GetBeginOffset());
    if (instance == nullptr) continue;
    piece.number = assignment.number;
    const SourcePlace place = scanner.GetPlace();
    piece.work.SetStatement({instance, assignment.number, place.line, place.column});
    const char* const text = assignment.text;
    instance->Parse(reader == nullptr ? text : reader->Read(text, scanner.GetTextEnd()));
  }
  scanner.Release(piece.source);
}

bool PieceParser::Merge(std::size_t slot) {
  Piece& piece = pieces[slot];
  IfcServer::LoadState& load = server.load;
  load.findings->Append(std::move(piece.findings));
  if (load.origin != nullptr) load.origin->replacedIds.merge(piece.ids);
  for (PostponedWork::Task& task : piece.work.links) Do(task);
  std::move(piece.work.extensions.begin(), piece.work.extensions.end(),
            std::back_inserter(extensions));
  load.statementBytes += piece.statementBytes;
  load.threadBytes = load.threadBytesBefore + GetArenaBytes();
  if (!IsWithinLimit()) return false;
  if (server.GoesOn(piece.ends)) return true;
  server.NoteFailure({piece.source.begin.line, 1});
  return false;
}

void PieceParser::Do(PostponedWork::Task& task) {
  IfcServer::LoadState& load = server.load;
  load.parsed = task.statement.instance;
  load.parsedNumber = task.statement.number;
  task.Run();
  load.parsed = nullptr;
}

// Each extension adds an instance.
bool PieceParser::IsWithinLimit() {
  const std::uint64_t most = server.load.limits.maxInstances;
  if (most == 0 || server.items.size() + extensions.size() <= most) return true;
  const auto first = static_cast<std::size_t>(most - server.items.size());
  const PostponedWork::Statement& statement = extensions[first].statement;
  server.load.isBeyondLimit = true;
  server.NoteFailure({statement.line, statement.column});
  return false;
}

// Adds the instances that classes add. All threads have ended.
void PieceParser::Extend() {
  IfcServer::LoadState& load = server.load;
  load.isPostponed = true;
  for (PostponedWork::Task& task : extensions) Do(task);
  load.isPostponed = false;
  load.isBeyondLimit = !server.IsWithinMemory();
  if (load.isBeyondLimit) server.NoteFailure({load.cuts.back().line, 1});
}

}  // namespace KelIFC
