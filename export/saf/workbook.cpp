#include "export/saf/workbook.h"

#include <xlsxwriter.h>

#include <cmath>
#include <cstdio>
#include <ctime>
#include <new>

#include "export/export.h"
#include "export/saf/cell_text.h"

namespace KelIFC::exporting::saf {
namespace {

// The time of creation in the document properties. The entries of the archive have the same time.
constexpr std::time_t kCreated = 315532800;  // 1980-01-01

constexpr std::size_t kPropertyNameColumn = 0;
constexpr std::size_t kPropertyValueColumn = 1;

[[noreturn]] void Fail(const std::string& path, const std::string& reason) {
  throw ExportError(ExportFailure::kFile, "cannot write " + path + ": " + reason);
}

void CheckError(const std::string& path, int error) {
  if (error == LXW_NO_ERROR) return;
  if (error == LXW_ERROR_MEMORY_MALLOC_FAILED) throw std::bad_alloc();
  Fail(path, lxw_strerror(static_cast<lxw_error>(error)));
}

// Rows that are written early go to a temporary file. The library does not report when that fails.
bool IsTemporaryFileGood(const lxw_worksheet& worksheet) {
  std::FILE* const file = worksheet.optimize_tmpfile;
  return !file || (std::fflush(file) == 0 && std::ferror(file) == 0);
}

}  // namespace

Table::Table(lxw_worksheet* worksheet, const SheetColumns& columns, const std::string& shownPath)
    : worksheet(worksheet), columns(&columns), shownPath(&shownPath) {
  for (const std::string_view column : columns.columns) {
    places.emplace(column, static_cast<std::uint16_t>(places.size()));
  }
}

void Table::Check(int error) const { CheckError(*shownPath, error); }

void Table::WriteHeaders() {
  for (std::size_t i = 0; i < columns->columns.size(); ++i) WriteText(0, i, columns->columns[i]);
}

void Table::WriteProperties(const std::vector<Property>& values) {
  for (std::size_t i = 0; i < columns->columns.size(); ++i) {
    WriteText(i, kPropertyNameColumn, columns->columns[i]);
    for (const auto& [name, value] : values) {
      if (name == columns->columns[i]) WriteText(i, kPropertyValueColumn, value);
    }
  }
}

void Table::Set(std::string_view column, std::string_view text) {
  WriteText(used, places.at(column), text);
}

void Table::Set(std::string_view column, double value) {
  const std::uint16_t place = places.at(column);
  if (!std::isfinite(value)) return;
  const double written = value == 0.0 ? 0.0 : value;  // without the sign of a negative zero
  Check(worksheet_write_number(worksheet, static_cast<lxw_row_t>(used), place, written, nullptr));
}

void Table::WriteText(std::size_t row, std::size_t column, std::string_view text) {
  if (text.empty()) return;
  const FittedText fitted = CellText(text);
  if (fitted.isShortened) ++shortened;
  Check(worksheet_write_string(worksheet, static_cast<lxw_row_t>(row),
                               static_cast<lxw_col_t>(column), fitted.text.c_str(), nullptr));
}

Workbook::Workbook(const std::string& path, const std::string& shownPath, bool isLarge)
    : shownPath(shownPath) {
  lxw_workbook_options options = {};
  options.constant_memory = isLarge ? LXW_TRUE : LXW_FALSE;
  workbook = workbook_new_opt(path.c_str(), &options);
  if (!workbook) throw std::bad_alloc();
  lxw_doc_properties properties = {};
  properties.created = kCreated;
  workbook_set_properties(workbook, &properties);
  try {
    AddSheets();
  } catch (...) {
    lxw_workbook_free(workbook);
    throw;
  }
}

void Workbook::AddSheets() {
  for (const SheetColumns& sheet : Sheets()) {
    const std::string name(sheet.name);
    lxw_worksheet* const worksheet = workbook_add_worksheet(workbook, name.c_str());
    if (!worksheet) Fail(shownPath, "the sheet " + name + " cannot be added");
    tables.emplace(sheet.name, &storage.emplace_back(worksheet, sheet, shownPath));
  }
}

Workbook::~Workbook() {
  if (workbook) lxw_workbook_free(workbook);
}

void Workbook::Close() {
  for (const SheetColumns& sheet : Sheets()) {
    const std::string name(sheet.name);
    const lxw_worksheet* const worksheet = workbook_get_worksheet_by_name(workbook, name.c_str());
    if (worksheet && !IsTemporaryFileGood(*worksheet))
      Fail(shownPath, "a temporary file cannot be written");
  }
  lxw_workbook* const closed = workbook;
  workbook = nullptr;  // workbook_close frees it
  CheckError(shownPath, workbook_close(closed));
}

std::size_t Workbook::GetShortenedTexts() const {
  std::size_t count = 0;
  for (const Table& table : storage) count += table.GetShortenedTexts();
  return count;
}

}  // namespace KelIFC::exporting::saf
