#ifndef EXPORT_TABLES_TABLE_PROGRESS_H_
#define EXPORT_TABLES_TABLE_PROGRESS_H_

#include <algorithm>

#include "export/export.h"
#include "export/report_progress.h"
#include "export/tables/tables.h"

namespace KelIFC::exporting {

/// Reports the progress of an export of all tables, by rows.
class TableProgress {
 public:
  TableProgress(const TableSource& source, const ExportOptions& options) : options(options) {
    if (!options.progress) return;
    for (const BuildingTable& table : BuildingTables()) all += CountRows(source, table);
  }

  /// Counts a row that was written. Throws ExportError if the user cancels the export.
  void CountRow() {
    constexpr std::size_t kRowsBetweenReports = 4096;
    if (++done % kRowsBetweenReports == 0 || done == all) ReportProgress(options, done, all);
  }

 private:
  const ExportOptions& options;
  std::size_t done = 0;
  std::size_t all = 0;
};

/// What the tables hold of a building: all elements, but not the boundaries of bodies.
inline ExportResult TableResult(const Building& building) {
  ExportResult result;
  result.elements = building.elements.size();
  const auto bodies = static_cast<std::size_t>(
      std::count_if(building.elements.begin(), building.elements.end(),
                    [](const BuildingElement& e) { return e.kind == ElementKind::kBody; }));
  if (bodies > 0) result.omissions.push_back({"boundaries of bodies", bodies});
  return result;
}

}  // namespace KelIFC::exporting

#endif  // EXPORT_TABLES_TABLE_PROGRESS_H_
