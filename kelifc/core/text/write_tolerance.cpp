#include "kelifc/core/text/write_tolerance.h"

#include <atomic>

namespace KelIFC {

namespace {

// One value of its own, so no order with other memory is asked for.
std::atomic<double> writeTolerance{0.001};

}  // namespace

double GetWriteTolerance() { return writeTolerance.load(std::memory_order_relaxed); }
void SetWriteTolerance(double tolerance) {
  writeTolerance.store(tolerance, std::memory_order_relaxed);
}

}  // namespace KelIFC
