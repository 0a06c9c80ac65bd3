#ifndef TOOLS_KELIFC_TEXT_TABLE_H_
#define TOOLS_KELIFC_TEXT_TABLE_H_

#include <string>
#include <vector>

namespace command {

/// A table of text for a person. Cells are UTF-8.
class TextTable {
 public:
  using Row = std::vector<std::string>;

  /// `heading` decides the number of columns. A column is right-aligned if its entry in
  /// `rightAligned` is true. Without an entry it is left-aligned.
  explicit TextTable(Row heading, std::vector<bool> rightAligned = {});

  /// Adds a row. It may be shorter than the heading; then its last cells are empty.
  void Add(Row row);

  /// The heading and the rows, one line each. A column is as wide as its widest cell. Lines have no
  /// blanks at their end.
  std::string ToText() const;

 private:
  std::vector<Row> rows;
  std::vector<bool> rightAligned;
};

/// A number with up to six significant digits. "-" for a number that is not finite.
std::string Brief(double value);

}  // namespace command

#endif  // TOOLS_KELIFC_TEXT_TABLE_H_
