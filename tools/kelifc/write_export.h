#ifndef TOOLS_KELIFC_WRITE_EXPORT_H_
#define TOOLS_KELIFC_WRITE_EXPORT_H_

#include <string>
#include <string_view>
#include <vector>

#include "export/export.h"

namespace command {

/// Writes a building in a format. Throws Failure with Status::kFile if the output cannot be
/// written, and with Status::kMissing if this build lacks the component of the format.
KelIFC::ExportResult WriteExport(const KelIFC::Building& building,
                                 const KelIFC::ExportFormat& format,
                                 const KelIFC::ExportOptions& options);

/// What the output of a format holds of a building.
struct CountedExport {
  std::string_view format;
  KelIFC::ExportResult result;
};

/// Writes the building in each format of this build to a temporary folder, which is removed, and
/// returns what the formats hold. Throws like WriteExport. `model` is the path as the user gave it.
std::vector<CountedExport> CountExports(const KelIFC::Building& building, const std::string& model);

}  // namespace command

#endif  // TOOLS_KELIFC_WRITE_EXPORT_H_
