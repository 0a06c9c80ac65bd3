#include "export/export.h"

#include <algorithm>

namespace KelIFC {

const ExportFormat* FindExportFormat(std::string_view name) {
  const std::vector<ExportFormat>& formats = ExportFormats();
  const auto at = std::find_if(formats.begin(), formats.end(),
                               [&](const ExportFormat& format) { return format.name == name; });
  return at == formats.end() ? nullptr : &*at;
}

ExportResult ExportBuilding(const Building& building, const ExportFormat& format,
                            const ExportOptions& options) {
  if (!format.missing.empty() || !format.write) {
    throw ExportError(ExportFailure::kNotBuilt, "this build cannot write " +
                                                    std::string(format.name) + ": it lacks " +
                                                    std::string(format.missing));
  }
  return format.write(building, options);
}

}  // namespace KelIFC
