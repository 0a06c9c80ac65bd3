#include "export/csv/write_csv.h"
#include "export/export.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"csv", "", "", exporting::WriteCsv},
  };
  return formats;
}

}  // namespace KelIFC
