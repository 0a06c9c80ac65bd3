#include "export/csv/cells.h"

namespace KelIFC::exporting {

void AppendCsvCell(std::string& row, std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    row += text;
    return;
  }
  row += '"';
  for (const char c : text) {
    if (c == '"') row += '"';
    row += c;
  }
  row += '"';
}

void AppendCsvText(std::string& row, std::string_view text, bool isRaw) {
  constexpr std::string_view kFormulaStarts = "=+-@\t\r";
  const bool isFormula = !text.empty() && kFormulaStarts.find(text[0]) != std::string_view::npos;
  AppendCsvCell(row, isFormula && !isRaw ? "'" + std::string(text) : text);
}

}  // namespace KelIFC::exporting
