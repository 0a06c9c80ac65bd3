#include "kelifc/platform/huge_pages.h"

#include <new>

#ifdef __linux__
#include <sys/mman.h>

#include <cstdint>
#endif

namespace KelIFC {

#ifdef __linux__

namespace {

// Returns null if there is no memory.
char* Map(std::size_t size) {
  void* const memory =
      mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return memory == MAP_FAILED ? nullptr : static_cast<char*>(memory);
}

// The number of bytes from an address to the next multiple of kHugePageSize.
std::size_t GapAfter(const char* address) {
  return (kHugePageSize - reinterpret_cast<std::uintptr_t>(address) % kHugePageSize) %
         kHugePageSize;
}

void Unmap(char* memory, std::size_t size) noexcept {
  if (size != 0) munmap(memory, size);
}

}  // namespace

// The system places most ranges directly below the last one, so only the first of many ranges needs
// the larger range, of which the rest is given back.
void* AllocatePages(std::size_t size) {
  char* memory = Map(size);
  if (memory != nullptr && GapAfter(memory) != 0) {
    Unmap(memory, size);
    memory = Map(size + kHugePageSize);
    if (memory != nullptr) {
      const std::size_t gap = GapAfter(memory);
      Unmap(memory, gap);
      memory += gap;
      Unmap(memory + size, kHugePageSize - gap);
    }
  }
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void FreePages(void* memory, std::size_t size) noexcept {
  if (memory != nullptr) Unmap(static_cast<char*>(memory), size);
}

#else

namespace {

constexpr auto kAlignment = static_cast<std::align_val_t>(kHugePageSize);

}  // namespace

void* AllocatePages(std::size_t size) { return ::operator new(size, kAlignment); }
void FreePages(void* memory, std::size_t /*size*/) noexcept {
  ::operator delete(memory, kAlignment);
}

#endif

void AdviseHugePages([[maybe_unused]] void* begin, [[maybe_unused]] std::size_t size) {
#ifdef __linux__
  constexpr std::size_t kPage = 4096;
  if (size < kHugePageSize) return;
  const std::size_t before = (kPage - reinterpret_cast<std::uintptr_t>(begin) % kPage) % kPage;
  madvise(static_cast<char*>(begin) + before, (size - before) / kPage * kPage, MADV_HUGEPAGE);
#endif
}

}  // namespace KelIFC
