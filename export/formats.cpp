#include "export/csv/write_csv.h"
#include "export/export.h"
#include "export/sqlite/write_sqlite.h"
#include "export/svg/write_svg.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"svg", "", "", exporting::WriteSvg},
      {"csv", "", "", exporting::WriteCsv},
      exporting::SqliteFormat(),
  };
  return formats;
}

}  // namespace KelIFC
