#ifndef KELIFC_SERVER_BLOCK_ENDS_H_
#define KELIFC_SERVER_BLOCK_ENDS_H_

#include <cstdint>
#include <vector>

namespace KelIFC {

/// The ends of the blocks of a piece in which statements end. A load on one thread reports its
/// progress when it has read such a block.
class BlockEnds {
 public:
  /// Removes all ends. The next statements end after an offset.
  void Restart(std::uint64_t offset, std::uint64_t blockSize) {
    size = blockSize;
    last = offset / size * size;
    ends.clear();
  }

  /// Takes the end of the next statement.
  void Note(std::uint64_t offset) {
    if (offset <= last) return;
    last = (offset + size - 1) / size * size;
    ends.push_back(last);
  }

  /// The ends in rising order. The last block of a source can be shorter than its end says.
  const std::vector<std::uint64_t>& Get() const { return ends; }

 private:
  std::uint64_t size = 1;
  std::uint64_t last = 0;
  std::vector<std::uint64_t> ends;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_BLOCK_ENDS_H_
