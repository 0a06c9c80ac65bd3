#include "tools/kelifc/text_table.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <utility>

namespace command {
namespace {

/// The number of characters of a UTF-8 text. Continuation bytes do not count.
std::size_t Width(const std::string& cell) {
  return static_cast<std::size_t>(std::count_if(
      cell.begin(), cell.end(), [](char c) { return (static_cast<unsigned char>(c) >> 6) != 2; }));
}

}  // namespace

TextTable::TextTable(Row heading, std::vector<bool> rightAligned)
    : rightAligned(std::move(rightAligned)) {
  this->rightAligned.resize(heading.size());
  rows.push_back(std::move(heading));
}

void TextTable::Add(Row row) {
  row.resize(rows.front().size());
  rows.push_back(std::move(row));
}

std::string TextTable::ToText() const {
  std::vector<std::size_t> widths(rightAligned.size());
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], Width(row[i]));
  }
  std::string text;
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string fill(widths[i] - Width(row[i]), ' ');
      line += (i == 0 ? "  " : "   ") + (rightAligned[i] ? fill + row[i] : row[i] + fill);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + "\n";
  }
  return text;
}

std::string Brief(double value) {
  if (!std::isfinite(value)) return "-";
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.6g", value);
  return digits;
}

}  // namespace command
