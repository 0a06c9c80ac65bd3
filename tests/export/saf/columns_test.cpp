#include "export/saf/columns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace KelIFC::exporting::saf {
namespace {

using testing::ElementsAre;

TEST(Columns, AreThoseOfTheTableInItsOrder) {
  ASSERT_EQ(Sheets().size(), 14U);
  EXPECT_EQ(Sheets()[0].name, "Project");
  EXPECT_EQ(Sheets()[6].name, "StructuralPointConnection");
  EXPECT_THAT(Sheets()[6].columns, ElementsAre("Name", "Coordinate X [m]", "Coordinate Y [m]",
                                               "Coordinate Z [m]", "Id"));
  EXPECT_EQ(Sheets()[13].name, "StructuralProxyElementFaces");
  EXPECT_THAT(Sheets()[13].columns, ElementsAre("Structural proxy element", "Index", "Definition"));
}

TEST(Columns, AreDifferentWithinASheet) {
  std::set<std::string_view> names;
  for (const SheetColumns& sheet : Sheets()) {
    EXPECT_TRUE(names.insert(sheet.name).second) << sheet.name;
    EXPECT_LE(sheet.name.size(), 31U) << "a sheet of a workbook cannot have a longer name";
    const std::set<std::string_view> columns(sheet.columns.begin(), sheet.columns.end());
    EXPECT_EQ(columns.size(), sheet.columns.size()) << sheet.name;
  }
}

}  // namespace
}  // namespace KelIFC::exporting::saf
