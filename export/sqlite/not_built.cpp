#include "export/sqlite/write_sqlite.h"

namespace KelIFC::exporting {

ExportFormat SqliteFormat() { return {"sqlite", ".sqlite", "SQLite", nullptr}; }

}  // namespace KelIFC::exporting
