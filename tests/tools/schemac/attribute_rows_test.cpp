#include "tools/schemac/attribute_rows.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

std::vector<AttributeRow> RowsOfA(const std::string& lines, std::size_t release = k2x3) {
  const Resolved resolved(
      "entity IfcT : IfcUnknown all abstract\n  doc T.\n  Kind label\n  ops GetKind, SetKind\n"
      "entity IfcA : IfcT all\n  doc A.\n" +
          lines,
      release);
  return RowsOf(resolved.model, *resolved.model.Find("IfcA"));
}

TEST(RowsOf, CountsPositionsAfterThoseOfTheBase) {
  const auto rows = RowsOfA("  X real\n  drop Y enum .N.\n  literal Z ref $\n  unread W integer\n");
  ASSERT_EQ(rows.size(), 4u);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(rows[static_cast<std::size_t>(i)].position, i + 1);
  EXPECT_EQ(rows[1].kind, "kEnumeration");
  EXPECT_EQ(rows[2].kind, "kReference");
  EXPECT_EQ(rows[3].kind, "kInteger");
  EXPECT_EQ(rows[0].use, "kKept");
  EXPECT_EQ(rows[3].use, "kDropped");
}

TEST(RowsOf, NamesTheOperationsOnAnAttribute) {
  const auto rows = RowsOfA(
      "  X real\n  HasYs set IfcT\n  Z ref IfcT\n"
      "  ops GetX, SetX, AddY, _GetZ, SetZ(number)\n  tell SetZ Z.\n");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].getter, "GetX");
  EXPECT_EQ(rows[0].setter, "SetX");
  EXPECT_EQ(rows[1].setter, "AddY");
  EXPECT_EQ(rows[1].type, "IfcT");
  EXPECT_EQ(rows[2].getter, "");
  EXPECT_EQ(rows[2].setter, "SetZ");
}

TEST(RowsOf, MarksAnAttributeAsKeptIfBothOrdersAgree) {
  const auto rows = RowsOfA("  X string\n  Y string\n  Z string\n  reads Y Z\n");
  ASSERT_EQ(rows.size(), 3u);
  for (const auto& row : rows) EXPECT_EQ(row.use, "kDropped") << row.name;
  EXPECT_EQ(RowsOfA("  X string\n  Y string\n  reads X\n")[0].use, "kKept");
  EXPECT_EQ(RowsOfA("  X string\n  without Parse\n")[0].use, "kDropped");
  EXPECT_EQ(RowsOfA("  X string ignored\n")[0].use, "kDropped");
}

TEST(RowsOf, SaysWhatASaveWrites) {
  EXPECT_TRUE(RowsOfA("  X string\n")[0].isWritten);
  EXPECT_FALSE(RowsOfA("  X string as $\n")[0].isWritten);
  EXPECT_FALSE(RowsOfA("  X string\n  without Write\n")[0].isWritten);
}

TEST(RowsOf, DescribesARedeclaredAttributeFromItsBase) {
  const auto rows = RowsOfA("  X real\n  chain IfcUnknown\n  order *Kind X\n");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].name, "Kind");
  EXPECT_EQ(rows[0].kind, "kText");
  EXPECT_EQ(rows[0].use, "kDerived");
  EXPECT_EQ(rows[0].getter, "");
  EXPECT_EQ(rows[0].position, 0);
}

TEST(RowsOf, NamesTheReadersOfKeptAttributes) {
  const auto rows = RowsOfA(
      "  X real\n  Z enum IfcKind\n  drop Y enum .N.\n"
      "enum IfcKind\n  doc K.\n  all A 0\n");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].reader, "ReadMember<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kX>");
  EXPECT_EQ(rows[0].pointer, "kX");
  EXPECT_EQ(rows[0].member, "x");
  EXPECT_EQ(rows[1].reader,
            "ReadEnumeration<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kZ, "
            "KelIFC2x3::kIfcKindTable>");
  EXPECT_EQ(rows[0].setting, "WriteMember<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kX>");
  EXPECT_EQ(rows[1].setting,
            "WriteEnumeration<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kZ, "
            "KelIFC2x3::kIfcKindTable, KelIFC2x3::IfcKind_A>");
  EXPECT_EQ(rows[2].reader, "");
  EXPECT_EQ(rows[2].setting, "");
  EXPECT_EQ(rows[2].pointer, "");
}

TEST(RowsOf, AddsAnAttributeOutsideTheStatementIfAGetterReturnsIt) {
  const auto rows = RowsOfA(
      "  X set IfcT inverse\n  Y set IfcT memory\n  C cache IfcT\n  Z enum IfcKind memory\n"
      "  drop Z enum .A.\n  ops GetX, GetC, GetZ\nenum IfcKind\n  doc K.\n  all A 0\n");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].name, "Z");
  EXPECT_EQ(rows[0].getter, "GetZ");
  EXPECT_EQ(rows[0].type, "IfcKind");
  EXPECT_EQ(rows[0].use, "kDropped");
  EXPECT_EQ(rows[1].name, "X");
  EXPECT_EQ(rows[1].use, "kInverse");
  EXPECT_EQ(rows[1].position, AttributeRow::kNoPosition);
}

TEST(RowsOf, TakesTheNameAndTheRuleOfTheSchema) {
  const std::string lines = "  X string published Description required 2x3\n";
  EXPECT_EQ(RowsOfA(lines)[0].name, "Description");
  EXPECT_TRUE(RowsOfA(lines)[0].isRequired);
  EXPECT_FALSE(RowsOfA(lines, k2x2)[0].isRequired);
  EXPECT_TRUE(RowsOfA("  drop X enum $ required\n")[0].isRequired);
}

TEST(PositionCount, KnowsTheClassesOfTheCore) {
  const Resolved resolved("entity IfcA : IfcUnknown all\n  doc A.\n  X real\n");
  EXPECT_EQ(PositionCount(resolved.model, "IfcBoundingBox"), 4u);
  EXPECT_EQ(PositionCount(resolved.model, "IfcUnknown"), 0u);
  EXPECT_EQ(PositionCount(resolved.model, "IfcA"), 1u);
  EXPECT_EQ(PositionCount(resolved.model, "IfcB"), 0u);
}

}  // namespace
}  // namespace schemac
