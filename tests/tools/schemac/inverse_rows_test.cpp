#include "tools/schemac/inverse_rows.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

constexpr char kRelation[] =
    "entity IfcBase : IfcUnknown all abstract\n  doc B.\n  Parts set IfcA\n  Name label\n"
    "  drop Kind ref $\n"
    "entity IfcRel : IfcBase 2x..\n  doc R.\n";

std::vector<InverseRow> RowsOfA(const std::string& lines, std::size_t release = k2x3) {
  const Resolved resolved(
      std::string(kRelation) + "entity IfcA : IfcUnknown all\n  doc A.\n" + lines, release);
  return InverseRowsOf(resolved.model, *resolved.model.Find("IfcA"));
}

std::string RefusalOf(const std::string& lines) {
  try {
    RowsOfA(lines);
  } catch (const DescriptionError& error) {
    return error.what();
  }
  return "";
}

TEST(InverseRowsOf, NameTheEntityAndItsAttribute) {
  const auto rows = RowsOfA("  inverse IsPart of IfcBase Parts\n");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].name, "IsPart");
  EXPECT_EQ(rows[0].entity, "IfcBase");
  EXPECT_EQ(rows[0].attribute, "Parts");
}

TEST(InverseRowsOf, FindAnAttributeThatTheEntityInherits) {
  EXPECT_EQ(RowsOfA("  inverse IsPart of IfcRel Parts\n").size(), 1u);
}

TEST(InverseRowsOf, LeaveOutLinesOfOtherReleases) {
  const std::string line = "  [2x..] inverse IsPart of IfcRel Parts\n";
  EXPECT_EQ(RowsOfA(line, k2x).size(), 1u);
  EXPECT_EQ(RowsOfA(line, k20).size(), 0u);
}

TEST(InverseRowsOf, RefuseAnEntityThatTheReleaseDoesNotHave) {
  EXPECT_EQ(RefusalOf("  inverse IsPart of IfcNone Parts\n"),
            "f.schema:11:11: error: unknown entity 'IfcNone'");
}

TEST(InverseRowsOf, RefuseAnAttributeThatHoldsNoReferences) {
  for (const char* name : {"Name", "Kind", "None"}) {
    EXPECT_EQ(RefusalOf(std::string("  inverse IsPart of IfcRel ") + name + "\n"),
              std::string("f.schema:11:11: error: IfcRel keeps no references in '") + name + "'");
  }
}

}  // namespace
}  // namespace schemac
