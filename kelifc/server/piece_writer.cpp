#include "kelifc/server/piece_writer.h"

#include <algorithm>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/progress_steps.h"

namespace KelIFC {
namespace {

constexpr std::size_t kMostBytes = std::size_t{1} << 20;  // of the text of a piece

}  // namespace

PieceWriter::PieceWriter(IfcServer& model, std::ostream& target, ProgressSteps& steps,
                         unsigned threads)
    : server(model), out(target), progress(steps), threadCount(threads) {
  for (std::size_t i = 0; i < kSlotsPerThread * threads; ++i) pieces.emplace_back(model);
}

void PieceWriter::Write() {
  if (progress.Reach(0)) Run(threadCount);
}

bool PieceWriter::Fill(std::size_t slot) {
  std::vector<std::uint64_t>& numbers = pieces[slot].numbers;
  numbers.clear();
  std::uint64_t number = last;
  while (numbers.size() < kInstances && (number = server.GetNextNumber(number)) != 0) {
    numbers.push_back(last = number);
  }
  return !numbers.empty();
}

void PieceWriter::Work(std::size_t slot) {
  Piece& piece = pieces[slot];
  piece.text.Clear();
  piece.written = 0;
  while (piece.written < piece.numbers.size() && piece.text.GetText().size() < kMostBytes) {
    WriteNext(piece, piece.text);
  }
}

bool PieceWriter::Merge(std::size_t slot) {
  Piece& piece = pieces[slot];
  if (!piece.text.good()) out.setstate(piece.text.rdstate());
  detail::PutText(out, piece.text.GetText());
  while (piece.written < piece.numbers.size()) WriteNext(piece, out);
  written += piece.numbers.size();
  return progress.Reach(written);
}

void PieceWriter::WriteNext(Piece& piece, std::ostream& target) {
  const std::size_t count = std::min(piece.numbers.size() - piece.written, InstanceWriter::kBatch);
  const std::uint64_t* const first = piece.numbers.data() + piece.written;
  piece.writer.WriteBatch(first, first + count, target);
  piece.written += count;
}

}  // namespace KelIFC
