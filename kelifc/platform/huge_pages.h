#ifndef KELIFC_PLATFORM_HUGE_PAGES_H_
#define KELIFC_PLATFORM_HUGE_PAGES_H_

#include <cstddef>

namespace KelIFC {

/// The size and the alignment of a huge page.
constexpr std::size_t kHugePageSize = std::size_t{2} * 1024 * 1024;

/// Allocates memory in which the system uses huge pages if it can. The first access to memory then
/// costs a fault of 2 MiB instead of 512 faults of 4 KiB, which make a third of the time of a load.
/// `size` should be a multiple of kHugePageSize. Throws std::bad_alloc.
void* AllocateHugePages(std::size_t size);

/// Frees what AllocateHugePages returned.
void FreeHugePages(void* memory) noexcept;

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_HUGE_PAGES_H_
