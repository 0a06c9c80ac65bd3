#ifndef EXPORT_SAF_WORKBOOK_H_
#define EXPORT_SAF_WORKBOOK_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "export/saf/columns.h"
#include "export/saf/numeric_locale.h"

struct lxw_workbook;
struct lxw_worksheet;

namespace KelIFC::exporting::saf {

/// A property of the sheets "Project" and "Model", and its value.
using Property = std::pair<std::string_view, std::string_view>;

/// A sheet that is written row by row. Columns are named by their headers; a name that the sheet
/// does not have throws std::out_of_range. All functions throw ExportError with
/// ExportFailure::kFile and std::bad_alloc.
class Table {
 public:
  /// The largest number of rows below the headers.
  static constexpr std::size_t kMostRows = 1'048'575;

  Table(lxw_worksheet* worksheet, const SheetColumns& columns, const std::string& shownPath);

  /// Writes the headers into the first row.
  void WriteHeaders();

  /// Writes a row for each property of the sheet, with an empty value for those that are missing in
  /// `values`. It is called instead of WriteHeaders and BeginRow.
  void WriteProperties(const std::vector<Property>& values);

  /// True if the sheet has room for so many more rows.
  bool HasRoomFor(std::size_t rows) const { return rows <= kMostRows - used; }

  /// Begins a new row, which must have room.
  void BeginRow() { ++used; }

  /// Sets the text of a cell of the current row. It is written as text, whatever it looks like. An
  /// empty text leaves the cell empty.
  void Set(std::string_view column, std::string_view text);

  /// Sets a number. A value that is not finite leaves the cell empty.
  void Set(std::string_view column, double value);

  /// Does not accept text by mistake: a pointer would become a number otherwise.
  void Set(std::string_view column, const char* text) { Set(column, std::string_view(text)); }

  /// How many texts were too long for a cell.
  std::size_t GetShortenedTexts() const { return shortened; }

 private:
  void Check(int error) const;
  void WriteText(std::size_t row, std::size_t column, std::string_view text);

  lxw_worksheet* worksheet;
  const SheetColumns* columns;
  const std::string* shownPath;
  std::unordered_map<std::string_view, std::uint16_t> places;  // of the columns
  std::size_t used = 0;                                        // rows below the headers
  std::size_t shortened = 0;
};

/// A workbook with all sheets of Sheets(). The same calls give the same bytes.
class Workbook {
 public:
  /// Starts a workbook. A large one needs memory for one row of each sheet only; it stores each
  /// text in its cell instead of in a list of shared texts. `shownPath` is the path in messages.
  /// Throws ExportError and std::bad_alloc.
  Workbook(const std::string& path, const std::string& shownPath, bool isLarge);

  /// Frees the memory. Nothing is written if Close was not called.
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  /// The sheet of a name, which must be one of Sheets().
  Table& operator[](std::string_view sheet) { return *tables.at(sheet); }

  /// Writes the file. It is called once, at the end.
  void Close();

  /// How many texts were too long for a cell.
  std::size_t GetShortenedTexts() const;

 private:
  void AddSheets();

  NumericLocale locale;
  std::string shownPath;
  lxw_workbook* workbook;
  std::deque<Table> storage;
  std::unordered_map<std::string_view, Table*> tables;
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WORKBOOK_H_
