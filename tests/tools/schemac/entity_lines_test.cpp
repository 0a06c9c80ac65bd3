#include "tools/schemac/entity_lines.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(ReadEntityLine, ReadsAttributesWithModifiersAndReasons) {
  const auto description = Describe(
      "entity IfcA : IfcUnknown all\n"
      "  [2x..] Depth measure absent 0.1\n"
      "  Links set IfcA inverse\n"
      "  Kind enum IfcKind = FIRST as .X.   -- never kept\n"
      "  Held cache IfcB\n");
  const auto& attributes = description.entities.front().attributes;
  ASSERT_EQ(attributes.size(), 4u);
  EXPECT_EQ(attributes[0].absent, "0.1");
  EXPECT_EQ(attributes[0].releases, *ReleaseSet::Read("2x.."));
  EXPECT_FALSE(attributes[1].inFile);
  EXPECT_TRUE(attributes[1].isInverse);
  EXPECT_EQ(attributes[2].initial, "FIRST");
  EXPECT_EQ(attributes[2].writtenAs, ".X.");
  EXPECT_EQ(attributes[2].reason, "never kept");
  EXPECT_FALSE(attributes[3].inFile);
  EXPECT_EQ(description.entities.front().steps.size(), 2u);
}

TEST(ReadEntityLine, ReadsOperationsInOrder) {
  const auto description = Describe(
      "entity IfcA : IfcUnknown all\n"
      "  ops GetX~, AddY=HasYs, [2x] Turn(index, real) const: list IfcA, SetZ const\n");
  const auto& operations = description.entities.front().operations;
  ASSERT_EQ(operations.size(), 4u);
  EXPECT_TRUE(operations[0].bothForms);
  EXPECT_EQ(operations[1].attribute, "HasYs");
  EXPECT_EQ(operations[2].parameters, "index, real");
  EXPECT_EQ(operations[2].result, "list IfcA");
  EXPECT_TRUE(operations[2].isConst);
  EXPECT_EQ(operations[2].releases, *ReleaseSet::Read("2x"));
  EXPECT_FALSE(operations[3].hasSignature);
}

struct Fault {
  const char* body;
  const char* message;
};

class RefusedEntityLine : public testing::TestWithParam<Fault> {};

TEST_P(RefusedEntityLine, IsReportedWithItsPlace) {
  EXPECT_EQ(Refusal(GetParam().body), std::string("f.schema:") + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    EntityLines, RefusedEntityLine,
    testing::Values(
        Fault{"entity IfcA : IfcUnknown 2x\n  [151] Name string\n",
              "3:3: error: a release that the entity does not have"},
        Fault{"entity IfcA : IfcUnknown all\n  Name word\n", "3:8: error: 'word' is no kind"},
        Fault{"entity IfcA : IfcUnknown all\n  Name ref\n",
              "3:11: error: expected the class or enumeration"},
        Fault{"entity IfcA : IfcUnknown all\n  Name string odd\n",
              "3:15: error: expected '=', 'inverse', 'memory', 'ownerless', 'absent' or 'as'"},
        Fault{"entity IfcA : IfcUnknown all\n  drop value $\n",
              "3:8: error: 'value' cannot be read and dropped"},
        Fault{"entity IfcA : IfcUnknown all\n  custom Read\n",
              "3:10: error: expected 'Parse' or 'Write'"},
        Fault{"entity IfcA : IfcUnknown all\n  link X IfcA AddX\n", "3:10: error: expected 'as'"},
        Fault{"entity IfcA : IfcUnknown all\n  chain IfcA IfcB\n",
              "3:14: error: expected the end of the line"}));

}  // namespace
}  // namespace schemac
