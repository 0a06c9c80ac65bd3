#ifndef KELIFC_SERVER_PROGRESS_STEPS_H_
#define KELIFC_SERVER_PROGRESS_STEPS_H_

#include <algorithm>
#include <cstdint>

#include "kelifc/server/progress_handler.h"

namespace KelIFC {

/// Reports the progress of an operation that does its work in many small parts. The handler is
/// called for the first part, then at most once for each `step` of the work, and for the last part.
class ProgressSteps {
 public:
  /// Calls no handler.
  ProgressSteps() = default;

  /// `receiver` must outlive this object. `step` is in the unit of `work`. No work is not reported.
  ProgressSteps(const ProgressHandler& receiver, std::uint64_t work, std::uint64_t step)
      : handler(receiver && work != 0 ? &receiver : nullptr), total(work), distance(step) {}

  /// Reports that `done` of the work is done. Returns false if the handler has stopped the
  /// operation, now or at an earlier call.
  bool Reach(std::uint64_t done) {
    if (handler == nullptr || isStopped || done < next) return !isStopped;
    next = done < total ? std::min(done + distance, total) : UINT64_MAX;
    isStopped = !(*handler)(std::min(done, total), total);
    return !isStopped;
  }

  /// Returns true if the handler has stopped the operation.
  bool IsStopped() const { return isStopped; }

 private:
  const ProgressHandler* handler = nullptr;
  std::uint64_t total = 0;
  std::uint64_t distance = 0;
  std::uint64_t next = 0;
  bool isStopped = false;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_PROGRESS_STEPS_H_
