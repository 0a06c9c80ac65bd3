#include "export/csv/write_csv.h"
#include "export/export.h"
#include "export/glb/write_glb.h"
#include "export/sqlite/write_sqlite.h"
#include "export/svg/write_svg.h"
#include "export/view/write_page.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"glb", ".glb", "", exporting::WriteGlb},
      {"svg", "", "", exporting::WriteSvg},
      {"csv", "", "", exporting::WriteCsv},
      exporting::SqliteFormat(),
      exporting::PageFormat(),
  };
  return formats;
}

}  // namespace KelIFC
