#include "kelifc/core/text/write_tolerance.h"

#include <atomic>

namespace KelIFC {

namespace {

// No other memory depends on this value, so no memory order is needed.
std::atomic<double> writeTolerance{0.001};

}  // namespace

double GetWriteTolerance() { return writeTolerance.load(std::memory_order_relaxed); }
void SetWriteTolerance(double tolerance) {
  writeTolerance.store(tolerance, std::memory_order_relaxed);
}

}  // namespace KelIFC
