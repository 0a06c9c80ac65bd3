#include "export/saf/write_saf.h"

namespace KelIFC::exporting {

ExportFormat SafFormat() { return {"saf", ".xlsx", "libxlsxwriter", nullptr}; }

}  // namespace KelIFC::exporting
