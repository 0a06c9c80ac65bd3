#ifndef KELIFC_SERVER_PIECE_PARSER_H_
#define KELIFC_SERVER_PIECE_PARSER_H_

#include <cstddef>
#include <cstdint>
#include <istream>
#include <vector>

#include "kelifc/core/references/postponed_work.h"
#include "kelifc/server/block_ends.h"
#include "kelifc/server/load_findings.h"
#include "kelifc/server/ordered_work.h"
#include "kelifc/server/replaced_ids.h"
#include "kelifc/server/source_piece.h"

namespace KelIFC {

class IfcServer;
class IsoStatementReader;

/// The second pass of a load on several threads. The first pass has cut the source into pieces.
/// Each piece is parsed by one thread; what the statements change outside their instances is done
/// by the thread of the caller, in the order of the file.
class PieceParser : private OrderedWork {
 public:
  /// Reads `in` from its begin. Both must outlive the parser.
  PieceParser(IfcServer& model, std::istream& in);

  /// Parses all statements. Ends early if the load is stopped or a limit is reached.
  void Parse();

 private:
  struct Piece {
    SourcePiece source;
    BlockEnds ends;
    std::uint64_t statementBytes = 0;  // as LoadState counts them
    std::size_t number = 0;            // of the statement that is being read
    LoadFindings findings;
    ReplacedIds ids;
    PostponedWork work;
  };

  bool Fill(std::size_t slot) override;
  void Work(std::size_t slot) override;
  bool Merge(std::size_t slot) override;
  void ParseIso(Piece& piece);
  template <class AnyScanner>
  void ParseStatements(Piece& piece, AnyScanner& scanner, IsoStatementReader* reader);
  void Do(PostponedWork::Task& task);
  bool IsWithinLimit();
  void Extend();

  IfcServer& server;
  std::istream& source;
  std::size_t blockSize;  // of the thread of the caller
  std::size_t next = 0;   // the cut that begins the next piece
  std::vector<Piece> pieces;
  std::vector<PostponedWork::Task> extensions;  // of all pieces so far
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PIECE_PARSER_H_
