#ifndef KELIFC_BUILDING_READING_PROGRESS_H_
#define KELIFC_BUILDING_READING_PROGRESS_H_

#include <cstddef>
#include <cstdint>

#include "kelifc/building/read_building.h"
#include "kelifc/server/progress_steps.h"

namespace KelIFC::building {

/// Reports the progress of ReadBuilding. Its work is two steps for each product: the first half of
/// the work reads the values of all products, the second half makes their bodies.
class ReadingProgress {
 public:
  /// `options` must outlive this object.
  ReadingProgress(const ReadingOptions& options, std::size_t products)
      : steps(options.progress, 2 * static_cast<std::uint64_t>(products), 1) {}

  /// Reports that `done` steps are done. Throws ReadingCancelled if the handler stops the reading.
  void Reach(std::size_t done) {
    if (!steps.Reach(done)) throw ReadingCancelled();
  }

 private:
  ProgressSteps steps;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READING_PROGRESS_H_
