#ifndef TOOLS_KELIFC_TEXT_TABLE_H_
#define TOOLS_KELIFC_TEXT_TABLE_H_

#include <string>
#include <vector>

namespace command {

/// Rows of cells for a person to read. Cells are UTF-8.
class TextTable {
 public:
  using Row = std::vector<std::string>;

  /// `heading` fixes the number of columns. The columns marked true in `rightAligned` hold
  /// numbers; a missing mark means left.
  explicit TextTable(Row heading, std::vector<bool> rightAligned = {});

  /// A row may be shorter than the heading; its missing cells are empty.
  void Add(Row row);

  /// The heading and the rows, each column as wide as its widest cell, without trailing blanks.
  std::string ToText() const;

 private:
  std::vector<Row> rows;
  std::vector<bool> rightAligned;
};

/// A number as short as it can be told to six digits, "-" for one that is not finite.
std::string Brief(double value);

}  // namespace command

#endif  // TOOLS_KELIFC_TEXT_TABLE_H_
