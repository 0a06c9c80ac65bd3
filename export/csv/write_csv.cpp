#include "export/csv/write_csv.h"

#include <string>
#include <vector>

#include "export/csv/cells.h"
#include "export/output_file.h"
#include "export/tables/table_progress.h"
#include "export/tables/tables.h"
#include "export/text.h"

namespace KelIFC::exporting {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Appends the cell of any type.
class CellWriter {
 public:
  CellWriter(std::string& row, bool isRaw) : row(row), isRaw(isRaw) {}

  void operator()(std::monostate) const {}
  void operator()(std::string_view text) const { AppendCsvText(row, text, isRaw); }
  void operator()(std::int64_t number) const { row += std::to_string(number); }
  void operator()(double number) const { AppendNumber(row, number); }
  void operator()(bool value) const { row += value ? "true" : "false"; }

 private:
  std::string& row;
  bool isRaw;
};

void WriteHeading(OutputFile& file, const BuildingTable& table) {
  std::string row;
  for (const TableColumn& column : table.columns) {
    if (!row.empty()) row += ',';
    AppendCsvCell(row, column.name);
  }
  file.Write(row.append(kLineEnd));
}

void WriteRow(OutputFile& file, const std::vector<TableCell>& cells, bool isRaw) {
  std::string row;
  bool isFirst = true;
  for (const TableCell& cell : cells) {
    if (!isFirst) row += ',';
    isFirst = false;
    std::visit(CellWriter(row, isRaw), cell);
  }
  file.Write(row.append(kLineEnd));
}

}  // namespace

ExportResult WriteCsv(const Building& building, const ExportOptions& options) {
  OutputFolder folder(options.path);  // declared before the files, which are removed first
  const TableSource source = {building, options.source};
  TableProgress progress(source, options);
  std::vector<std::unique_ptr<OutputFile>> files;
  for (const BuildingTable& table : BuildingTables()) {
    const std::string path = options.path + "/" + std::string(table.name) + ".csv";
    OutputFile& file = *files.emplace_back(std::make_unique<OutputFile>(path));
    WriteHeading(file, table);
    ForEachRow(source, table, [&](const std::vector<TableCell>& cells) {
      WriteRow(file, cells, options.rawCells);
      progress.CountRow();
    });
  }
  for (const std::unique_ptr<OutputFile>& file : files) file->Commit();
  folder.Commit();
  return TableResult(building);
}

}  // namespace KelIFC::exporting
