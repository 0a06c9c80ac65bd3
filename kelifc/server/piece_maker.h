#ifndef KELIFC_SERVER_PIECE_MAKER_H_
#define KELIFC_SERVER_PIECE_MAKER_H_

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "kelifc/server/block_ends.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/load_findings.h"
#include "kelifc/server/made_statement.h"
#include "kelifc/server/ordered_work.h"
#include "kelifc/server/source_piece.h"

namespace KelIFC {

/// The first pass of a load on several threads, after the header. Each thread makes the instances
/// of a piece of the source; the thread of the caller registers them in the order of the file.
///
/// Whether a `;` ends a statement depends on all that precedes it. So the pieces are cut where a
/// statement probably ends: at a `;` before a `#`, with line ends only between them. The cut is
/// right if the piece before it begins with a statement and its scanner ends a statement exactly
/// there, without a look at what follows. At the first cut that is wrong, the work ends, and one
/// thread has to read the rest.
class PieceMaker : private OrderedWork {
 public:
  /// A statement that is longer than so many blocks is left to one thread.
  static constexpr std::size_t kMostBlocks = 16;

  /// Reads `in`, whose next byte has the position `from`, after a statement. The model and the
  /// stream must outlive the maker.
  PieceMaker(IfcServer& model, std::istream& in, const SourcePosition& from);

  /// Registers the instances of the source, up to its end or to the first wrong cut. Returns the
  /// position from which the rest has to be read, nothing if there is no rest or if the load is
  /// stopped or a limit is reached.
  std::optional<SourcePosition> Make();

 private:
  struct Piece {
    // Makes the instances. It has the release and the options of the model, but no instances. The
    // threads do not use the model for this: each registration of the thread of the caller would
    // take the memory of the model out of their caches.
    IfcServer maker;
    SourcePiece source;  // its first line counts as line 1, and begins with the piece
    bool isLast = false;
    bool isCut = false;  // false if no end of a statement was found
    bool isRight = false;
    SourcePosition end;  // of the last statement, with the same lines
    BlockEnds ends;
    std::vector<MadeStatement> statements;
    std::vector<std::string> dropped;  // entities of the statements that are left out, in order
    LoadFindings findings;
  };

  bool Fill(std::size_t slot) override;
  void Work(std::size_t slot) override;
  bool Merge(std::size_t slot) override;
  template <class AnyScanner>
  void MakeStatements(Piece& piece, AnyScanner& scanner);
  template <class AnyScanner>
  void MakeStatement(Piece& piece, const AnyScanner& scanner, char* text);
  bool Register(Piece& piece);
  void MoveToSource(const Piece& piece, MadeStatement& statement) const;
  SourcePosition PlaceAfter(const SourcePosition& end) const;

  IfcServer& server;
  std::istream& source;
  std::size_t blockSize;
  std::uint64_t nextOffset;  // of the next piece
  bool isAtEnd = false;      // all pieces are filled
  SourcePiece rest;          // bytes after the last cut
  SourcePosition position;   // of the next piece to be registered
  bool isWrong = false;      // that piece ends with a wrong cut
  std::vector<Piece> pieces;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PIECE_MAKER_H_
