#include "tests/export/saf/opened_workbook.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <iterator>
#include <utility>

#include "export/saf/write_saf.h"
#include "tests/export/test_path.h"

namespace KelIFC::exporting::saf {
namespace {

namespace fs = std::filesystem;

std::map<std::string, std::string> ReadArchive(const std::string& path) {
  std::map<std::string, std::string> files;
  zip_t* const archive = zip_open(path.c_str(), ZIP_RDONLY, nullptr);
  if (archive == nullptr) {
    ADD_FAILURE() << path << " is no archive";
    return files;
  }
  const zip_int64_t count = zip_get_num_entries(archive, 0);
  for (zip_int64_t i = 0; i < count; ++i) {
    const auto index = static_cast<zip_uint64_t>(i);
    zip_stat_t stat;
    zip_file_t* const file = zip_fopen_index(archive, index, 0);
    if (file == nullptr || zip_stat_index(archive, index, 0, &stat) != 0) continue;
    std::string text(stat.size, '\0');
    EXPECT_EQ(zip_fread(file, text.data(), text.size()), static_cast<zip_int64_t>(text.size()));
    zip_fclose(file);
    files[stat.name] = std::move(text);
  }
  zip_close(archive);
  return files;
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
    text.replace(at, what.size(), by);
    at += by.size();
  }
  return text;
}

std::string Unescaped(std::string text) {
  text = Replaced(std::move(text), "&lt;", "<");
  text = Replaced(std::move(text), "&gt;", ">");
  text = Replaced(std::move(text), "&quot;", "\"");
  return Replaced(std::move(text), "&amp;", "&");
}

// The content of each element of a name, without elements that have this one in their name.
std::vector<std::string> ContentsOf(const std::string& xml, const std::string& name) {
  std::vector<std::string> contents;
  const std::string end = "</" + name + ">";
  for (std::size_t at = xml.find("<" + name); at != std::string::npos;
       at = xml.find("<" + name, at + 1)) {
    const char next = xml[at + name.size() + 1];
    if (next != '>' && next != ' ') continue;
    contents.push_back(xml.substr(at, xml.find(end, at) - at));
  }
  return contents;
}

// The text after the first tag of a name.
std::string TextIn(const std::string& xml, const std::string& name) {
  const std::vector<std::string> contents = ContentsOf(xml, name);
  if (contents.empty()) return {};
  return Unescaped(contents[0].substr(contents[0].find('>') + 1));
}

std::string AttributeOf(const std::string& xml, const std::string& name) {
  const std::size_t at = xml.find(" " + name + "=\"");
  if (at == std::string::npos || at > xml.find('>')) return {};
  const std::size_t begin = at + name.size() + 3;
  return xml.substr(begin, xml.find('"', begin) - begin);
}

std::size_t ColumnOf(const std::string& reference) {
  std::size_t column = 0;
  for (const char c : reference) {
    if (c >= 'A' && c <= 'Z') column = column * 26 + static_cast<std::size_t>(c - 'A') + 1;
  }
  return column - 1;
}

}  // namespace

OpenedWorkbook::OpenedWorkbook(const std::string& path) : files(ReadArchive(path)) {
  Line shared;
  for (const std::string& item : ContentsOf(files["xl/sharedStrings.xml"], "si")) {
    shared.push_back(TextIn(item, "t"));
  }
  std::size_t number = 0;
  const std::string names = files["xl/workbook.xml"];
  for (std::size_t at = names.find("<sheet "); at != std::string::npos;
       at = names.find("<sheet ", at + 1)) {
    const std::string file = "xl/worksheets/sheet" + std::to_string(++number) + ".xml";
    Parse(AttributeOf(names.substr(at, names.find('>', at) - at + 1), "name"), files[file], shared);
  }
}

void OpenedWorkbook::Parse(const std::string& sheet, const std::string& xml, const Line& shared) {
  std::vector<Line>& lines = sheets[sheet];
  for (const std::string& row : ContentsOf(xml, "row")) {
    Line& line = lines.emplace_back();
    for (const std::string& cell : ContentsOf(row, "c")) {
      const std::size_t column = ColumnOf(AttributeOf(cell, "r"));
      if (line.size() <= column) line.resize(column + 1);
      const std::string type = AttributeOf(cell, "t");
      EXPECT_TRUE(ContentsOf(cell, "f").empty()) << "a formula: " << cell;
      line[column] = TextIn(cell, type == "inlineStr" ? "t" : "v");
      if (type == "s") line[column] = shared.at(std::stoul(line[column]));
    }
  }
}

std::vector<OpenedWorkbook::Row> OpenedWorkbook::RowsOf(const std::string& sheet) const {
  const std::vector<Line>& lines = sheets.at(sheet);
  std::vector<Row> rows;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    Row& row = rows.emplace_back();
    for (std::size_t j = 0; j < lines[0].size(); ++j) {
      row[lines[0][j]] = j < lines[i].size() ? lines[i][j] : "";
    }
  }
  return rows;
}

OpenedWorkbook::Row OpenedWorkbook::PropertiesOf(const std::string& sheet) const {
  Row row;
  for (const Line& line : sheets.at(sheet)) row[line.at(0)] = line.size() > 1 ? line[1] : "";
  return row;
}

std::vector<std::string> OpenedWorkbook::HeadersOf(const std::string& sheet) const {
  return sheets.at(sheet).at(0);
}

std::string OpenedWorkbook::FileOf(const std::string& name) const { return files.at(name); }

TestFolder::TestFolder() : path(PathOfTest().string()) {
  fs::remove_all(path);
  fs::create_directories(path);
}

TestFolder::~TestFolder() { fs::remove_all(path); }

std::size_t TestFolder::CountFiles() const {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(path), fs::directory_iterator()));
}

std::size_t ExportedBuilding::CountOmissions(const std::string& what) const {
  for (const ExportOmission& omission : result.omissions) {
    if (omission.what == what) return omission.count;
  }
  return 0;
}

ExportedBuilding Exported(const Building& building, const ExportOptions& options) {
  const TestFolder folder;
  ExportOptions used = options;
  used.path = folder / "house.xlsx";
  used.source = "models/house.ifc";
  ExportResult result = SafFormat().write(building, used);
  return {std::move(result), OpenedWorkbook(used.path)};
}

}  // namespace KelIFC::exporting::saf
