#include "kelifc/platform/huge_pages.h"

#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace KelIFC {

namespace {

#ifdef __linux__
constexpr auto kAlignment = static_cast<std::align_val_t>(kHugePageSize);
#else
// Other systems need rights or flags for huge pages, so an alignment would only waste memory.
constexpr auto kAlignment = static_cast<std::align_val_t>(__STDCPP_DEFAULT_NEW_ALIGNMENT__);
#endif

}  // namespace

void* AllocateHugePages(std::size_t size) {
  void* const memory = ::operator new(size, kAlignment);
#ifdef __linux__
  madvise(memory, size, MADV_HUGEPAGE);  // a mere advice: a failure changes nothing
#endif
  return memory;
}

void FreeHugePages(void* memory) noexcept { ::operator delete(memory, kAlignment); }

}  // namespace KelIFC
