#include "kelifc/server/block_size.h"

#include "kelifc/server/scan_buffer.h"

namespace KelIFC {
namespace {

thread_local std::size_t blockSize = ScanBuffer::kBlockSize;

}  // namespace

std::size_t GetBlockSize() { return blockSize; }

BlockSizeScope::BlockSizeScope(std::size_t bytes) : outer(blockSize) { blockSize = bytes; }

BlockSizeScope::~BlockSizeScope() { blockSize = outer; }

}  // namespace KelIFC
