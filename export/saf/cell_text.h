#ifndef EXPORT_SAF_CELL_TEXT_H_
#define EXPORT_SAF_CELL_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace KelIFC::exporting::saf {

/// The largest number of UTF-16 units of a cell.
inline constexpr std::size_t kLongestCell = 32'767;

/// The largest number of UTF-16 units of a name. Other rows repeat the name, so a longer limit
/// would make a workbook of an unbounded size.
inline constexpr std::size_t kLongestName = 128;

/// A text that was made fit for a place in the workbook.
struct FittedText {
  std::string text;          ///< valid UTF-8
  bool isShortened = false;  ///< true if the end of the text was left out
};

/// The text of a cell. Control characters, except tabs and line feeds, and bytes that are not UTF-8
/// become U+FFFD. A sequence such as "_x0041_", which stands for a character in a workbook, is
/// escaped, so that it is read as it is.
FittedText CellText(std::string_view text);

/// The name of an object. A semicolon becomes a comma, because semicolons separate the names of a
/// list. Control characters become spaces. Spaces at both ends are removed. The name may be empty.
FittedText ObjectName(std::string_view text);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_CELL_TEXT_H_
