#include "tools/kelifc/write_export.h"

#include <system_error>

#include "kelifc/platform/program.h"

#include "tools/kelifc/failure.h"
#include "tools/kelifc/temporary_folder.h"

namespace command {

KelIFC::ExportResult WriteExport(const KelIFC::Building& building,
                                 const KelIFC::ExportFormat& format,
                                 const KelIFC::ExportOptions& options) {
  try {
    return ExportBuilding(building, format, options);
  } catch (const KelIFC::ExportError& error) {
    const bool isMissing = error.failure == KelIFC::ExportFailure::kNotBuilt;
    throw Failure(isMissing ? Status::kMissing : Status::kFile, error.what());
  }
}

std::vector<CountedExport> CountExports(const KelIFC::Building& building,
                                        const std::string& model) {
  std::vector<CountedExport> counted;
  for (const KelIFC::ExportFormat& format : KelIFC::ExportFormats()) {
    if (!format.missing.empty()) continue;
    const TemporaryFolder folder;  // one for each format, so that the outputs need little space
    KelIFC::ExportOptions options;
    options.path = folder.GetPath("output");
    options.source = model;
    options.progress = [](double /*share*/) { return !KelIFC::IsInterrupted(); };
    counted.push_back({format.name, WriteExport(building, format, options)});
  }
  return counted;
}

}  // namespace command
