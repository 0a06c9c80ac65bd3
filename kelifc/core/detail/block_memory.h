#ifndef KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_
#define KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_

#include <cstddef>

#include "kelifc/platform/export.h"

namespace KelIFC::detail {

/// Memory of instances and of their aggregates: `size` bytes, aligned for any type. Throws
/// std::bad_alloc. FreeBlock takes it back.
[[nodiscard]] KELIFC_API void* AllocateBlock(std::size_t size);

/// Gives a block back, from any thread. Null is ignored.
KELIFC_API void FreeBlock(void* block) noexcept;

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_
