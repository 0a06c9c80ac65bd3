#ifndef KELIFC_SERVER_BLOCK_SIZE_H_
#define KELIFC_SERVER_BLOCK_SIZE_H_

#include <cstddef>

namespace KelIFC {

/// Returns the number of bytes that a load reads at a time, for the loads of this thread. A load
/// on several threads also cuts its source into pieces of about this size.
std::size_t GetBlockSize();

/// Sets that number for as long as the object lives, so that a test can load a short text in many
/// pieces.
class BlockSizeScope {
 public:
  explicit BlockSizeScope(std::size_t bytes);
  ~BlockSizeScope();
  BlockSizeScope(const BlockSizeScope&) = delete;
  BlockSizeScope& operator=(const BlockSizeScope&) = delete;

 private:
  std::size_t outer;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_BLOCK_SIZE_H_
