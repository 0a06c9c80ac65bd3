#ifndef TESTS_EXPORT_SAF_OPENED_WORKBOOK_H_
#define TESTS_EXPORT_SAF_OPENED_WORKBOOK_H_

#include <map>
#include <string>
#include <vector>

#include "kelifc/building/building.h"

#include "export/export.h"

namespace KelIFC::exporting::saf {

/// The sheets of a workbook. A cell is its text, with XML resolved; a number is as it is written.
class OpenedWorkbook {
 public:
  using Row = std::map<std::string, std::string>;  ///< by header

  explicit OpenedWorkbook(const std::string& path);

  /// The rows below the headers.
  std::vector<Row> RowsOf(const std::string& sheet) const;

  /// The values of a sheet that has a property in each row.
  Row PropertiesOf(const std::string& sheet) const;

  /// The headers of a sheet, from left to right.
  std::vector<std::string> HeadersOf(const std::string& sheet) const;

  /// The text of a file of the archive, such as "docProps/core.xml".
  std::string FileOf(const std::string& name) const;

 private:
  using Line = std::vector<std::string>;

  void Parse(const std::string& sheet, const std::string& xml, const Line& shared);

  std::map<std::string, std::string> files;
  std::map<std::string, std::vector<Line>> sheets;
};

/// A folder for one test, which is removed at the end.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  /// The path of a file in the folder.
  std::string operator/(const std::string& name) const { return path + "/" + name; }

  /// How many files the folder has.
  std::size_t CountFiles() const;

 private:
  std::string path;
};

/// An export of a building: what the writer returns, and what the workbook holds.
struct ExportedBuilding {
  ExportResult result;
  OpenedWorkbook workbook;

  /// How often something was left out; 0 if it was not.
  std::size_t CountOmissions(const std::string& what) const;
};

/// Writes the building as "house.ifc" and reads the workbook.
ExportedBuilding Exported(const Building& building, const ExportOptions& options = {});

}  // namespace KelIFC::exporting::saf

#endif  // TESTS_EXPORT_SAF_OPENED_WORKBOOK_H_
