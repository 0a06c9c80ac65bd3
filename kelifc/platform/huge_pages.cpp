#include "kelifc/platform/huge_pages.h"

#include <new>

#ifdef __linux__
#include <sys/mman.h>

#include <cstdint>
#endif

namespace KelIFC {

namespace {

constexpr auto kAlignment = static_cast<std::align_val_t>(kHugePageSize);

}  // namespace

void* AllocatePages(std::size_t size) { return ::operator new(size, kAlignment); }
void FreePages(void* memory) noexcept { ::operator delete(memory, kAlignment); }

void AdviseHugePages([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t size) {
#ifdef __linux__
  constexpr std::size_t kPage = 4096;
  if (size < kHugePageSize) return;
  const std::size_t before = (kPage - reinterpret_cast<std::uintptr_t>(begin) % kPage) % kPage;
  madvise(static_cast<char*>(begin) + before, (size - before) / kPage * kPage, MADV_HUGEPAGE);
#endif
}

}  // namespace KelIFC
