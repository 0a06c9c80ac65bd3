#include "export/saf/workbook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <limits>
#include <stdexcept>

#include "export/export.h"
#include "tests/export/saf/opened_workbook.h"
#include "tests/read_file.h"

namespace KelIFC::exporting::saf {
namespace {

void WriteTwoStoreys(const std::string& path, bool isLarge) {
  Workbook workbook(path, path, isLarge);
  Table& table = workbook["StructuralStorey"];
  table.WriteHeaders();
  table.BeginRow();
  table.Set("Name", "=1+1 <_x0041_> http://host");
  table.Set("Height level [m]", -0.5);
  table.BeginRow();
  table.Set("Name", "1.5");
  table.Set("Height level [m]", -0.0);
  table.Set("Id", "");
  workbook.Close();
}

TEST(Workbook, HoldsTextAsTextAndNumbersAsNumbers) {
  const TestFolder folder;
  for (const bool isLarge : {false, true}) {
    WriteTwoStoreys(folder / "a.xlsx", isLarge);
    const OpenedWorkbook opened(folder / "a.xlsx");
    const std::vector<OpenedWorkbook::Row> rows = opened.RowsOf("StructuralStorey");
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].at("Name"), "=1+1 <_x005F_x0041_> http://host");
    EXPECT_EQ(rows[0].at("Height level [m]"), "-0.5");
    EXPECT_EQ(rows[1].at("Name"), "1.5");
    EXPECT_EQ(rows[1].at("Height level [m]"), "0");
    EXPECT_EQ(rows[1].at("Id"), "");
  }
}

TEST(Workbook, HasTheSameBytesEachTime) {
  const TestFolder folder;
  for (const bool isLarge : {false, true}) {
    WriteTwoStoreys(folder / "a.xlsx", isLarge);
    WriteTwoStoreys(folder / "b.xlsx", isLarge);
    EXPECT_EQ(ReadFile(folder / "a.xlsx"), ReadFile(folder / "b.xlsx"));
    EXPECT_THAT(OpenedWorkbook(folder / "a.xlsx").FileOf("docProps/core.xml"),
                testing::HasSubstr("1980-01-01T00:00:00Z"));
  }
}

TEST(Workbook, HasDecimalPointsInEachLocale) {
  // One of these locales, which write a decimal comma, is often installed.
  constexpr auto kLocales = std::to_array<const char*>({"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE"});
  const std::string previous = std::setlocale(LC_ALL, nullptr);
  bool isSet = false;
  for (const char* const name : kLocales) {
    isSet = isSet || std::setlocale(LC_ALL, name) != nullptr;
  }
  if (!isSet) GTEST_SKIP() << "no locale with a decimal comma is installed";
  const TestFolder folder;
  WriteTwoStoreys(folder / "a.xlsx", false);
  std::setlocale(LC_ALL, previous.c_str());
  EXPECT_EQ(OpenedWorkbook(folder / "a.xlsx").RowsOf("StructuralStorey")[0].at("Height level [m]"),
            "-0.5");
}

TEST(Workbook, WritesNothingIfItIsNotClosed) {
  const TestFolder folder;
  { Workbook workbook(folder / "a.xlsx", "a.xlsx", true); }
  EXPECT_EQ(folder.CountFiles(), 0U);
}

TEST(Workbook, ReportsAFolderThatDoesNotExist) {
  const TestFolder folder;
  Workbook workbook(folder / "no/a.xlsx", "no/a.xlsx", false);
  try {
    workbook.Close();
    FAIL() << "the file cannot be written";
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kFile);
    EXPECT_THAT(error.what(), testing::HasSubstr("no/a.xlsx"));
  }
}

TEST(Table, CountsShortenedTexts) {
  const TestFolder folder;
  Workbook workbook(folder / "a.xlsx", "a.xlsx", false);
  Table& table = workbook["StructuralStorey"];
  table.BeginRow();
  table.Set("Name", std::string(40'000, 'a'));
  EXPECT_EQ(workbook.GetShortenedTexts(), 1U);
}

TEST(Table, LeavesACellEmptyForANumberThatIsNotFinite) {
  const TestFolder folder;
  Workbook workbook(folder / "a.xlsx", "a.xlsx", false);
  Table& table = workbook["StructuralStorey"];
  table.WriteHeaders();
  table.BeginRow();
  table.Set("Name", "a");
  table.Set("Height level [m]", std::numeric_limits<double>::infinity());
  workbook.Close();
  EXPECT_EQ(OpenedWorkbook(folder / "a.xlsx").RowsOf("StructuralStorey")[0].at("Height level [m]"),
            "");
}

TEST(Table, HasRoomForTheRowsOfASheet) {
  const TestFolder folder;
  Workbook workbook(folder / "a.xlsx", "a.xlsx", true);
  Table& table = workbook["StructuralStorey"];
  EXPECT_TRUE(table.HasRoomFor(1'048'575));
  EXPECT_FALSE(table.HasRoomFor(1'048'576));
  table.BeginRow();
  EXPECT_TRUE(table.HasRoomFor(1'048'574));
  EXPECT_FALSE(table.HasRoomFor(1'048'575));
}

TEST(Table, ThrowsForAColumnThatItDoesNotHave) {
  const TestFolder folder;
  Workbook workbook(folder / "a.xlsx", "a.xlsx", false);
  EXPECT_THROW(workbook["StructuralStorey"].Set("Height", 1.0), std::out_of_range);
  EXPECT_THROW(workbook["Storey"], std::out_of_range);
}

}  // namespace
}  // namespace KelIFC::exporting::saf
