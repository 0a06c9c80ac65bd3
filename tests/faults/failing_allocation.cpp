#include "tests/faults/failing_allocation.h"

#include <atomic>
#include <cstdlib>
#include <new>

// The program's own operator new. The forms for large alignments are not replaced; nothing here
// uses them. All other forms are, because AddressSanitizer would serve a missing form itself.

namespace KelIFC {
namespace {

std::atomic<std::size_t> liveBlocks = 0;
std::atomic<bool> isCounting = false;
std::atomic<std::size_t> asked = 0;
std::size_t firstToFail = 0;
std::size_t lastToFail = 0;

bool IsToFail() {
  if (!isCounting) return false;
  const std::size_t number = ++asked;
  return firstToFail <= number && number <= lastToFail;
}

}  // namespace

FailingAllocation::FailingAllocation(std::size_t nth, Shortage shortage) {
  asked = 0;
  firstToFail = nth == 0 ? SIZE_MAX : nth;
  lastToFail = shortage == Shortage::kOne ? nth : SIZE_MAX - 1;
  isCounting = true;
}

FailingAllocation::~FailingAllocation() { isCounting = false; }

std::size_t FailingAllocation::GetCount() { return asked; }

std::size_t CountLiveBlocks() { return liveBlocks; }

}  // namespace KelIFC

// NOLINTBEGIN(cppcoreguidelines-no-malloc, misc-new-delete-overloads)
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* const block = KelIFC::IsToFail() ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++KelIFC::liveBlocks;
  return block;
}

void* operator new(std::size_t size) {
  void* const block = ::operator new(size, std::nothrow);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return ::operator new(size, std::nothrow);
}

void* operator new[](std::size_t size) { return ::operator new(size); }

void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  --KelIFC::liveBlocks;
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { ::operator delete(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { ::operator delete(block); }
void operator delete[](void* block) noexcept { ::operator delete(block); }
void operator delete[](void* block, std::size_t) noexcept { ::operator delete(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { ::operator delete(block); }
// NOLINTEND(cppcoreguidelines-no-malloc, misc-new-delete-overloads)
