#ifndef EXPORT_CSV_CELLS_H_
#define EXPORT_CSV_CELLS_H_

#include <string>
#include <string_view>

namespace KelIFC::exporting {

/// Appends a cell to a row of comma-separated values as RFC 4180 defines it, without a comma. It is
/// quoted if it has a comma, a quote or a line end.
void AppendCsvCell(std::string& row, std::string_view text);

/// Appends a cell of text. Unless `isRaw` is set, text that begins with = + - @ TAB or CR, which a
/// spreadsheet would run as a formula, gets a leading apostrophe.
void AppendCsvText(std::string& row, std::string_view text, bool isRaw);

}  // namespace KelIFC::exporting

#endif  // EXPORT_CSV_CELLS_H_
