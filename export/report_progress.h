#ifndef EXPORT_REPORT_PROGRESS_H_
#define EXPORT_REPORT_PROGRESS_H_

#include <cstddef>

#include "export/export.h"

namespace KelIFC::exporting {

/// Calls the progress function of `options`, if there is one, with done / all. Throws ExportError
/// with ExportFailure::kCancelled if the function returns false.
inline void ReportProgress(const ExportOptions& options, std::size_t done, std::size_t all) {
  if (!options.progress) return;
  const double share = all == 0 ? 1.0 : static_cast<double>(done) / static_cast<double>(all);
  if (!options.progress(share)) {
    throw ExportError(ExportFailure::kCancelled, "The export was cancelled");
  }
}

}  // namespace KelIFC::exporting

#endif  // EXPORT_REPORT_PROGRESS_H_
