#include "tools/kelifc/csv.h"

#include <utility>

#include "tools/kelifc/json.h"

namespace command {

void CsvRow::Add(std::string_view text) {
  constexpr std::string_view kFormulaStarts = "=+-@\t\r";
  const bool isFormula = !text.empty() && kFormulaStarts.find(text[0]) != std::string_view::npos;
  AddCell(isFormula && !isRaw ? "'" + std::string(text) : std::string(text));
}

void CsvRow::Add(double number) { AddCell(NumberText(number)); }
void CsvRow::Add(std::size_t number) { AddCell(std::to_string(number)); }
void CsvRow::Add(bool value) { AddCell(value ? "true" : "false"); }

void CsvRow::AddCell(std::string_view text) {
  if (!isFirst) row += ',';
  isFirst = false;
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    row += text;
    return;
  }
  row += '"';
  for (const char c : text) row += c == '"' ? std::string("\"\"") : std::string(1, c);
  row += '"';
}

std::string CsvRow::Take() {
  isFirst = true;
  return std::exchange(row, std::string()) + "\r\n";
}

}  // namespace command
