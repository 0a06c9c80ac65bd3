#ifndef KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_
#define KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_

#include <cstddef>

#include "kelifc/platform/export.h"

namespace KelIFC::detail {

/// Allocates memory for an instance or an attribute: `size` bytes, aligned for any type of this
/// size. Throws std::bad_alloc. Free it with FreeBlock.
[[nodiscard]] KELIFC_API void* AllocateBlock(std::size_t size);

/// The same at a multiple of `alignment`, which is a power of two and at most the alignment of
/// operator new.
[[nodiscard]] KELIFC_API void* AllocateBlock(std::size_t size, std::size_t alignment);

/// Frees a block; any thread can call it. Null is ignored.
KELIFC_API void FreeBlock(void* block) noexcept;

}  // namespace KelIFC::detail

#endif  // KELIFC_CORE_DETAIL_BLOCK_MEMORY_H_
