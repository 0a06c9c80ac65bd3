#include "export/csv/write_csv.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "export/csv/cells.h"
#include "tests/building/made_building.h"
#include "tests/export/test_path.h"
#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

namespace fs = std::filesystem;

std::string Cell(std::string_view text, bool isRaw = false) {
  std::string row;
  AppendCsvText(row, text, isRaw);
  return row;
}

TEST(CsvCell, IsQuotedIfItHasACommaAQuoteOrALineEnd) {
  EXPECT_EQ(Cell("plain text;"), "plain text;");
  EXPECT_EQ(Cell("a,b"), "\"a,b\"");
  EXPECT_EQ(Cell("say \"x\""), "\"say \"\"x\"\"\"");
  EXPECT_EQ(Cell("a\nb"), "\"a\nb\"");
  EXPECT_EQ(Cell(""), "");
}

TEST(CsvCell, OfAFormulaGetsAnApostrophe) {
  for (const char* text : {"=1", "+1", "-1", "@x", "\tx"}) {
    EXPECT_EQ(Cell(text), "'" + std::string(text));
    EXPECT_EQ(Cell(text, true), text);
  }
  EXPECT_EQ(Cell("\r1"), "\"'\r1\"");
  EXPECT_EQ(Cell("a=1"), "a=1");
}

class Csv : public testing::Test {
 protected:
  Csv() : folder(PathOfTest()) { fs::remove_all(folder); }
  ~Csv() override { fs::remove_all(folder); }

  ExportOptions Options() const {
    ExportOptions options;
    options.path = (folder / "out").string();
    options.source = "a,b.ifc";
    return options;
  }

  std::string Read(const std::string& name) const { return ReadFile(folder / "out" / name); }

  const fs::path folder;
};

Building TwoStoreys() {
  Building building;
  building.storeys = {{1, "g", "=A", 0.0, true, 2.75}, {2, "", "B\nb", 2.75, true, std::nullopt}};
  building.elements = {Slab(3, 1.0, 2.0), MemberFrom(4, {0.0, 0.0, 0.0})};
  return building;
}

TEST_F(Csv, WritesAFileForEachTable) {
  const ExportResult result = WriteCsv(TwoStoreys(), Options());
  EXPECT_EQ(result.elements, 2u);
  EXPECT_TRUE(result.omissions.empty());
  EXPECT_EQ(Read("storeys.csv"),
            "id,guid,name,elevation,height\r\n1,g,'=A,0,2.75\r\n2,,\"B\nb\",2.75,\r\n");
  EXPECT_EQ(Read("model.csv").find("file,release,"), 0u);
  EXPECT_NE(Read("model.csv").find("\r\n\"a,b.ifc\","), std::string::npos);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder / "out"), fs::directory_iterator()), 10);
}

TEST_F(Csv, CountsTheBoundariesThatItLeavesOut) {
  Building building = TwoStoreys();
  building.elements.emplace_back().id = 5;
  const ExportResult result = WriteCsv(building, Options());
  EXPECT_EQ(result.elements, 3u);
  ASSERT_EQ(result.omissions.size(), 1u);
  EXPECT_EQ(result.omissions[0].what, "boundaries of bodies");
  EXPECT_EQ(result.omissions[0].count, 1u);
}

TEST_F(Csv, ACancelledExportLeavesTheOldFiles) {
  WriteCsv(TwoStoreys(), Options());
  const std::string before = Read("storeys.csv");
  ExportOptions options = Options();
  options.progress = [](double) { return false; };
  try {
    WriteCsv(Building(), options);
    FAIL();
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kCancelled);
  }
  EXPECT_EQ(Read("storeys.csv"), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder / "out"), fs::directory_iterator()), 10);
}

TEST_F(Csv, ACancelledExportLeavesNoNewFolder) {
  ExportOptions options = Options();
  options.progress = [](double) { return false; };
  EXPECT_THROW(WriteCsv(TwoStoreys(), options), ExportError);
  EXPECT_FALSE(fs::exists(folder / "out"));
}

TEST_F(Csv, ReportsProgressUpToTheEnd) {
  double last = 0.0;
  ExportOptions options = Options();
  options.progress = [&last](double share) {
    EXPECT_GE(share, last);
    last = share;
    return true;
  };
  WriteCsv(TwoStoreys(), options);
  EXPECT_EQ(last, 1.0);
}

TEST_F(Csv, AFileInThePlaceOfTheFolderIsAFailure) {
  fs::create_directories(folder);
  std::ofstream(folder / "out") << "x";
  try {
    WriteCsv(TwoStoreys(), Options());
    FAIL();
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kFile);
    EXPECT_NE(std::string(error.what()).find("out"), std::string::npos);
  }
}

}  // namespace
}  // namespace KelIFC::exporting
