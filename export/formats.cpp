#include "export/export.h"
#include "export/glb/write_glb.h"

namespace KelIFC {

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      {"glb", ".glb", "", exporting::WriteGlb},
  };
  return formats;
}

}  // namespace KelIFC
