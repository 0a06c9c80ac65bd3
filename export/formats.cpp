#include "export/export.h"
#include "export/svg/write_svg.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"svg", "", "", exporting::WriteSvg},
  };
  return formats;
}

}  // namespace KelIFC
