#include "kelifc/geo/section.h"

#include <atomic>

namespace KelIFC {

namespace {

std::atomic<std::uint64_t> changes{0};

}  // namespace

std::uint64_t SectionChanges() { return changes.load(std::memory_order_relaxed); }

HRESULT PutSize(double value, double* size) {
  *size = value;
  changes.fetch_add(1, std::memory_order_relaxed);
  return S_OK;
}

}  // namespace KelIFC
