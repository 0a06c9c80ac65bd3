#include "kelifc/server/name_table.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

IfcUnknown* MakeNothing() { return nullptr; }

constexpr NameRow kRows[] = {
    {"IFCWALL", MakeNothing},
    {"IFCWALLSTANDARDCASE", MakeNothing},
    {"IFC2DCOMPOSITECURVE", MakeNothing},
    {"A", MakeNothing},
};
constexpr NameTable kTable(kRows);

static_assert(kTable.Find("IfcWall") != nullptr, "the compiler builds and reads the table");

TEST(NameTable, FindsANameInAnyCase) {
  EXPECT_EQ(kTable.Find("IFCWALL")->name, "IFCWALL");
  EXPECT_EQ(kTable.Find("ifcwall")->name, "IFCWALL");
  EXPECT_EQ(kTable.Find("IfcWallStandardCase")->name, "IFCWALLSTANDARDCASE");
  EXPECT_EQ(kTable.Find("a")->name, "A");
}

TEST(NameTable, KnowsNoOtherName) {
  for (const char* name : {"", "IFCWAL", "IFCWALLS", "IFCWALL ", " IFCWALL", "B"}) {
    EXPECT_EQ(kTable.Find(name), nullptr) << name;
  }
}

TEST(NameTable, FoldsNothingButAsciiLetters) {
  EXPECT_EQ(kTable.Find("!"), nullptr);
  EXPECT_EQ(kTable.Find("\x01"), nullptr);
  EXPECT_EQ(kTable.Find("IFC\x12"
                        "DCOMPOSITECURVE"),
            nullptr);
  EXPECT_EQ(kTable.Find("\xC9"
                        "FCWALL"),
            nullptr);
}

TEST(NameTable, RejectsANameOfAnyLength) {
  EXPECT_EQ(kTable.Find(std::string(1000000, 'A').c_str()), nullptr);
}

TEST(NameTable, FindsEachOfManyNames) {
  static constexpr NameRow kDigits[] = {
      {"A0", MakeNothing}, {"A1", MakeNothing}, {"A2", MakeNothing}, {"A3", MakeNothing},
      {"A4", MakeNothing}, {"A5", MakeNothing}, {"A6", MakeNothing}, {"A7", MakeNothing},
      {"B0", MakeNothing}, {"B1", MakeNothing}, {"B2", MakeNothing}, {"B3", MakeNothing},
  };
  static constexpr NameTable kMany(kDigits);
  for (const NameRow& row : kDigits) {
    EXPECT_EQ(kMany.Find(std::string(row.name).c_str())->name, row.name);
  }
}

}  // namespace
}  // namespace KelIFC
