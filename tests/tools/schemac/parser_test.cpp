#include "tools/schemac/parser.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(ParseDescription, ReadsAnEntityWithItsReleases) {
  const auto description = Describe(
      "entity IfcA : IfcUnknown   20..   abstract   file 2x..   new 2x3\n  doc What it is.\n");
  const Entity& entity = description.entities.front();
  EXPECT_EQ(entity.name, "IfcA");
  EXPECT_EQ(entity.doc, "What it is.");
  EXPECT_TRUE(entity.isAbstract);
  EXPECT_EQ(entity.releases, *ReleaseSet::Read("20.."));
  EXPECT_EQ(entity.file, *ReleaseSet::Read("2x.."));
  EXPECT_EQ(entity.made, *ReleaseSet::Read("2x3"));
}

TEST(ParseDescription, ReadsEnumerationsFunctionsAndDefinedTypes) {
  const auto description = Describe(
      "enum IfcKind core\n  doc Kinds.\n  all FIRST 1 SECOND -2\n"
      "type IfcText : IfcValue string 2x2.. file\n  doc A text.\n"
      "function IfcTurn(const IfcA& a): IfcB*   [..20]\n  doc Turns.\n");
  EXPECT_TRUE(description.enumerations.front().isCore);
  EXPECT_EQ(description.enumerations.front().tables.front().rows[1].second, -2);
  EXPECT_EQ(description.definedTypes.front().file, *ReleaseSet::Read("2x2.."));
  EXPECT_EQ(description.functions.front().parameters, "(const IfcA& a)");
  EXPECT_EQ(description.functions.front().result, "IfcB*");
  EXPECT_EQ(description.functions.front().releases, *ReleaseSet::Read("..20"));
}

struct Fault {
  const char* body;
  const char* message;
};

class RefusedDescription : public testing::TestWithParam<Fault> {};

TEST_P(RefusedDescription, IsReportedWithItsPlace) {
  EXPECT_EQ(Refusal(GetParam().body), std::string("f.schema:") + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Parser, RefusedDescription,
    testing::Values(
        Fault{"thing A\n", "2:1: error: expected 'entity', 'type', 'enum' or 'function'"},
        Fault{"family g : G\n", "2:8: error: a file can describe only one family"},
        Fault{"entity : IfcUnknown all\n", "2:8: error: expected the name of the entity"},
        Fault{"entity IfcA : IfcUnknown 3x\n", "2:26: error: '3x' does not name releases"},
        Fault{"entity IfcA : IfcUnknown all odd\n",
              "2:30: error: expected 'abstract', 'file' or 'new'"},
        Fault{"entity IfcA : IfcUnknown 2x file 151\n",
              "2:34: error: a release that the entry does not have"},
        Fault{"enum IfcKind\n  all FIRST one\n", "3:13: error: 'one' is not a whole number"},
        Fault{"  Name string\n", "2:3: error: this line does not belong to an entry"},
        Fault{"type IfcA : IfcValue word all\n", "2:22: error: no such kind"}));

TEST(ParseDescription, RefusesAFileWithoutItsFamily) {
  Description description;
  EXPECT_THROW(ParseDescription("f", "entity IfcA : IfcUnknown all\n", description),
               DescriptionError);
}

}  // namespace
}  // namespace schemac
