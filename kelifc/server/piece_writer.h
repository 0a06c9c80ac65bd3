#ifndef KELIFC_SERVER_PIECE_WRITER_H_
#define KELIFC_SERVER_PIECE_WRITER_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <ostream>
#include <vector>

#include "kelifc/server/instance_writer.h"
#include "kelifc/server/ordered_work.h"
#include "kelifc/server/text_stream.h"

namespace KelIFC {

class IfcServer;
class ProgressSteps;

/// Writes all numbered instances of a model on several threads. A piece is some hundred instances
/// with the next numbers. Threads write the pieces to memory, and the thread of the caller copies
/// them to the stream in the order of the numbers.
///
/// A piece stops at about a megabyte of text. The thread of the caller writes its other instances,
/// so the memory for texts depends only on the number of threads and on the longest statement.
class PieceWriter : public OrderedWork {
 public:
  /// The number of instances of a piece.
  static constexpr std::size_t kInstances = 1024;

  /// Writes to `target` on `threads` threads. The arguments must outlive this object.
  PieceWriter(IfcServer& model, std::ostream& target, ProgressSteps& steps, unsigned threads);

  /// Writes the instances, until the progress handler stops the save. Errors of a stream become
  /// errors of the target.
  void Write();

 private:
  struct Piece {
    explicit Piece(IfcServer& model) : writer(model) {}

    InstanceWriter writer;
    std::vector<std::uint64_t> numbers;
    std::size_t written = 0;  // so many of the numbers are in the text
    TextStream text;
  };

  bool Fill(std::size_t slot) override;
  void Work(std::size_t slot) override;
  bool Merge(std::size_t slot) override;
  static void WriteNext(Piece& piece, std::ostream& target);

  IfcServer& server;
  std::ostream& out;
  ProgressSteps& progress;
  unsigned threadCount;
  std::uint64_t last = 0;     // the highest number of all pieces so far
  std::uint64_t written = 0;  // instances
  std::deque<Piece> pieces;   // by slot
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PIECE_WRITER_H_
