#ifndef EXPORT_SAF_COLUMNS_H_
#define EXPORT_SAF_COLUMNS_H_

#include <string_view>
#include <vector>

namespace KelIFC::exporting::saf {

/// A sheet of the workbook.
struct SheetColumns {
  std::string_view name;                  ///< the name of the sheet
  std::vector<std::string_view> columns;  ///< the headers, from left to right
};

/// The sheets in their order, as the file columns.tsv lists them. On the sheets "Project" and
/// "Model" the columns are properties: each is a row with a name and a value.
const std::vector<SheetColumns>& Sheets();

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_COLUMNS_H_
