#include "export/saf/columns.h"

#include <algorithm>

namespace KelIFC::exporting::saf {
namespace {

constexpr std::string_view kTable =
#include "export/saf/columns.inl"
    ;

// Returns the text up to the separator, and removes both from `text`.
std::string_view TakeUpTo(std::string_view& text, char separator) {
  const std::size_t length = std::min(text.find(separator), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(std::min(length + 1, text.size()));
  return taken;
}

std::vector<SheetColumns> ParseTable() {
  std::vector<SheetColumns> sheets;
  std::string_view rest = kTable;
  TakeUpTo(rest, '\n');  // the header
  while (!rest.empty()) {
    std::string_view line = TakeUpTo(rest, '\n');
    const std::string_view sheet = TakeUpTo(line, '\t');
    if (sheet.empty()) continue;
    if (sheets.empty() || sheets.back().name != sheet) sheets.push_back({sheet, {}});
    sheets.back().columns.push_back(TakeUpTo(line, '\t'));
  }
  return sheets;
}

}  // namespace

const std::vector<SheetColumns>& Sheets() {
  static const std::vector<SheetColumns> sheets = ParseTable();
  return sheets;
}

}  // namespace KelIFC::exporting::saf
