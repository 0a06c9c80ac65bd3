#include "tools/kelifc/csv.h"

#include <utility>

#include "export/csv/cells.h"
#include "tools/kelifc/json.h"

namespace command {

using KelIFC::exporting::AppendCsvCell;
using KelIFC::exporting::AppendCsvText;

void CsvRow::Add(std::string_view text) {
  BeginCell();
  AppendCsvText(row, text, isRaw);
}

void CsvRow::Add(double number) { AddCell(NumberText(number)); }
void CsvRow::Add(std::size_t number) { AddCell(std::to_string(number)); }
void CsvRow::Add(bool value) { AddCell(value ? "true" : "false"); }

void CsvRow::BeginCell() {
  if (!isFirst) row += ',';
  isFirst = false;
}

void CsvRow::AddCell(std::string_view text) {
  BeginCell();
  AppendCsvCell(row, text);
}

std::string CsvRow::Take() {
  isFirst = true;
  return std::exchange(row, std::string()) + "\r\n";
}

}  // namespace command
