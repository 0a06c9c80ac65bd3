#include "export/csv/write_csv.h"
#include "export/export.h"
#include "export/sqlite/write_sqlite.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"csv", "", "", exporting::WriteCsv},
      exporting::SqliteFormat(),
  };
  return formats;
}

}  // namespace KelIFC
