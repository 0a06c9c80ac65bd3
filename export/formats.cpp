#include "export/export.h"
#ifdef KELIFC_HAS_XLSXWRITER
#include "export/saf/write_saf.h"
#endif

namespace KelIFC {
namespace {

#ifdef KELIFC_HAS_XLSXWRITER
constexpr ExportFormat kSaf = {"saf", ".xlsx", "", exporting::WriteSaf};
#else
constexpr ExportFormat kSaf = {"saf", ".xlsx", "libxlsxwriter", nullptr};
#endif

}  // namespace

const std::vector<ExportFormat>& ExportFormats() {
  // One row for each format: {name, extension, missing component, function}.
  static const std::vector<ExportFormat> formats = {
      kSaf,
  };
  return formats;
}

}  // namespace KelIFC
