#include "export/sqlite/write_sqlite.h"

#include <string>
#include <vector>

#include "export/output_file.h"
#include "export/sqlite/database.h"
#include "export/sqlite/schema.h"
#include "export/tables/table_progress.h"
#include "export/tables/tables.h"

namespace KelIFC::exporting {
namespace {

/// The settings of a file that is written once. Its bytes depend on nothing but the statements:
/// the size of a page is fixed, and unused parts of pages are zero. No journal is needed, because
/// a file that is not complete is removed.
constexpr const char* kSettings =
    "PRAGMA encoding = 'UTF-8'; PRAGMA page_size = 4096; PRAGMA auto_vacuum = NONE;"
    "PRAGMA secure_delete = ON; PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF;"
    "PRAGMA locking_mode = EXCLUSIVE; PRAGMA user_version = 1;";

void FillTable(Database& database, const TableSource& source, const BuildingTable& table,
               TableProgress& progress) {
  Statement insert(database, InsertStatement(table));
  ForEachRow(source, table, [&](const std::vector<TableCell>& cells) {
    insert.Run(cells);
    progress.CountRow();
  });
}

ExportResult WriteSqlite(const Building& building, const ExportOptions& options) {
  const TableSource source = {building, options.source};
  TableProgress progress(source, options);
  OutputPath target(options.path);
  {
    Database database(target.GetPath(), options.path);
    database.Run(kSettings);
    database.Run("BEGIN");
    for (const BuildingTable& table : BuildingTables()) {
      database.Run(CreateStatement(table));
      FillTable(database, source, table, progress);
    }
    for (const std::string& statement : IndexStatements()) database.Run(statement);
    for (const TakeoffView& view : TakeoffViews()) database.Run(CreateStatement(view));
    database.Run("COMMIT");
    database.Close();
  }
  target.Commit();
  return TableResult(building);
}

}  // namespace

ExportFormat SqliteFormat() { return {"sqlite", ".sqlite", "", WriteSqlite}; }

}  // namespace KelIFC::exporting
