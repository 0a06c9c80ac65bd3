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

TEST(ReadEntityLine, ReadsPositionsThatAreNotStored) {
  const auto description = Describe(
      "entity IfcA : IfcUnknown all\n"
      "  drop enum .X.\n  drop Kind enum .Y. required 2x..   -- why\n"
      "  literal $ ()\n  [2x] literal Area real $   Site ref () required\n"
      "  unread Place ref, Type enum required\n  redeclared Name\n");
  const auto& steps = description.entities.front().steps;
  ASSERT_EQ(steps.size(), 9u);
  EXPECT_EQ(steps[0].name, "");
  EXPECT_EQ(steps[0].kind, Kind::kEnum);
  EXPECT_EQ(steps[1].name, "Kind");
  EXPECT_EQ(steps[1].literal, ".Y.");
  EXPECT_EQ(steps[1].required, *ReleaseSet::Read("2x.."));
  EXPECT_EQ(steps[3].literal, "()");
  EXPECT_EQ(steps[3].kind, std::nullopt);
  EXPECT_EQ(steps[5].name, "Site");
  EXPECT_EQ(steps[5].kind, Kind::kReference);
  EXPECT_EQ(steps[5].required, *ReleaseSet::Read("2x"));
  EXPECT_EQ(steps[7].name, "Type");
  EXPECT_EQ(steps[7].act, Step::Act::kUnread);
  EXPECT_EQ(steps[8].act, Step::Act::kStar);
  EXPECT_EQ(steps[8].name, "Name");
}

TEST(ReadEntityLine, ReadsTheNameAndTheRuleOfTheSchema) {
  const auto description = Describe(
      "entity IfcA : IfcUnknown all\n  Text label published Description required 2x..\n"
      "  Kind enum IfcKind ignored\n");
  const auto& attributes = description.entities.front().attributes;
  EXPECT_EQ(attributes[0].published, "Description");
  EXPECT_EQ(attributes[0].required, *ReleaseSet::Read("2x.."));
  EXPECT_TRUE(attributes[1].isIgnored);
  EXPECT_TRUE(attributes[1].required.IsEmpty());
}

TEST(ReadEntityLine, ReadsAnInverseAttribute) {
  const auto description =
      Describe("entity IfcA : IfcUnknown all\n  [2x..] inverse HasOpenings of IfcRel Relating\n");
  const auto& inverses = description.entities.front().inverses;
  ASSERT_EQ(inverses.size(), 1u);
  EXPECT_EQ(inverses[0].name, "HasOpenings");
  EXPECT_EQ(inverses[0].entity, "IfcRel");
  EXPECT_EQ(inverses[0].attribute, "Relating");
  EXPECT_EQ(inverses[0].releases, *ReleaseSet::Read("2x.."));
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
        Fault{"entity IfcA : IfcUnknown all\n  Name word\n", "3:8: error: 'word' is not a kind"},
        Fault{"entity IfcA : IfcUnknown all\n  Name ref\n",
              "3:11: error: expected the class or enumeration"},
        Fault{"entity IfcA : IfcUnknown all\n  Name string odd\n",
              "3:15: error: expected the end of the line or a word such as 'inverse' or 'as'"},
        Fault{"entity IfcA : IfcUnknown all\n  inverse Parts IfcRel\n",
              "3:17: error: expected 'of'"},
        Fault{"entity IfcA : IfcUnknown all\n  drop value $\n",
              "3:8: error: 'value' cannot be read and dropped"},
        Fault{"entity IfcA : IfcUnknown all\n  drop Name word $\n",
              "3:13: error: 'word' is not a kind for a position"},
        Fault{"entity IfcA : IfcUnknown all\n  literal Name cache $\n",
              "3:16: error: 'cache' is not a kind for a position"},
        Fault{"entity IfcA : IfcUnknown all\n  unread enum\n", "3:14: error: expected a kind"},
        Fault{"entity IfcA : IfcUnknown all\n  order Name $\n",
              "3:14: error: expected the name of an attribute"},
        Fault{"entity IfcA : IfcUnknown 2x..\n  Name string required 151\n",
              "3:24: error: a release that the entry does not have"},
        Fault{"entity IfcA : IfcUnknown all\n  custom Read\n",
              "3:10: error: expected 'Parse' or 'Write'"},
        Fault{"entity IfcA : IfcUnknown all\n  link X IfcA AddX\n", "3:10: error: expected 'as'"},
        Fault{"entity IfcA : IfcUnknown all\n  chain IfcA IfcB\n",
              "3:14: error: expected the end of the line"}));

}  // namespace
}  // namespace schemac
