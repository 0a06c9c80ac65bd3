#ifndef EXPORT_CSV_WRITE_CSV_H_
#define EXPORT_CSV_WRITE_CSV_H_

#include "export/export.h"

namespace KelIFC::exporting {

/// Writes a folder with a file of comma-separated values for each table of the building. If the
/// export fails before all tables are written, files that existed before are unchanged.
ExportResult WriteCsv(const Building& building, const ExportOptions& options);

}  // namespace KelIFC::exporting

#endif  // EXPORT_CSV_WRITE_CSV_H_
