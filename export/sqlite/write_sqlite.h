#ifndef EXPORT_SQLITE_WRITE_SQLITE_H_
#define EXPORT_SQLITE_WRITE_SQLITE_H_

#include "export/export.h"

namespace KelIFC::exporting {

/// The format "sqlite": a database with the tables of the building and with views for a take-off.
/// In a build without SQLite it cannot be written.
ExportFormat SqliteFormat();

}  // namespace KelIFC::exporting

#endif  // EXPORT_SQLITE_WRITE_SQLITE_H_
