#include "tools/schemac/resolver.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

const std::string kRootAndLeaf =
    "entity IfcA : IfcUnknown all abstract\n  doc A.\n  Name string\n"
    "entity IfcB : IfcA all abstract\n  doc B.\n"
    "entity IfcC : IfcB 2x.. file\n  doc C.\n  Size real\n  [2x3] Extra integer\n";

TEST(Resolve, LeavesOutEntriesThatTheReleaseDoesNotHave) {
  EXPECT_EQ(Resolved(kRootAndLeaf, k20).model.Find("IfcC"), nullptr);
  EXPECT_EQ(Resolved(kRootAndLeaf, k2x2).model.Find("IfcC")->attributes.size(), 1u);
  EXPECT_EQ(Resolved(kRootAndLeaf, k2x3).model.Find("IfcC")->attributes.size(), 2u);
}

TEST(Resolve, SkipsClassesWithoutAttributesInTheChain) {
  const Resolved resolved(kRootAndLeaf);
  EXPECT_FALSE(resolved.model.Find("IfcB")->hasParse);
  EXPECT_EQ(resolved.model.Find("IfcC")->readBase, "IfcA");
  EXPECT_EQ(resolved.model.Find("IfcA")->readBase, "IfcUnknown");
}

TEST(Resolve, SkipsABaseThatDoesNotWrite) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all abstract\n  doc A.\n  Name string\n  [2x] without Write\n"
      "entity IfcB : IfcA all file\n  doc B.\n  Size real\n",
      k2x);
  EXPECT_EQ(resolved.model.Find("IfcB")->readBase, "IfcA");
  EXPECT_EQ(resolved.model.Find("IfcB")->writeBase, "IfcUnknown");
}

TEST(Resolve, ReplacesBasesAndChainsForTheirReleases) {
  const std::string body =
      "entity IfcA : IfcUnknown all abstract\n  doc A.\n  Name string\n"
      "entity IfcB : IfcUnknown all\n  doc B.\n  [..20] base IfcA\n  [151] chain IfcUnknown\n"
      "  Size real\n";
  EXPECT_EQ(Resolved(body, k2x).model.Find("IfcB")->bases.front(), "IfcUnknown");
  EXPECT_EQ(Resolved(body, k20).model.Find("IfcB")->readBase, "IfcA");
  EXPECT_EQ(Resolved(body, k151).model.Find("IfcB")->readBase, "IfcUnknown");
}

TEST(Resolve, UsesAnExplicitOrderForReadingAndWriting) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all file\n  doc A.\n  First string\n  Second string\n"
      "  drop Third enum .X.\n  order Second Third First *Fourth\n  link First as IfcA Touch\n"
      "  ops Touch(IfcA*)\n  tell Touch Touches.\n");
  const ResolvedClass& type = *resolved.model.Find("IfcA");
  ASSERT_EQ(type.reads.size(), 5u);
  EXPECT_EQ(type.reads[0].name, "Second");
  EXPECT_EQ(type.reads[1].act, Step::Act::kDrop);
  EXPECT_EQ(type.reads[3].act, Step::Act::kStar);
  EXPECT_EQ(type.reads[4].act, Step::Act::kLink);
  EXPECT_EQ(type.writes.size(), 4u);
}

TEST(Resolve, KeepsTheOrderOfAStatementIfOnlyReadingDiffers) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all file\n  doc A.\n  First string\n  Second string\n"
      "  reads Second\n  unread Third integer\n");
  const ResolvedClass& type = *resolved.model.Find("IfcA");
  ASSERT_EQ(type.positions.size(), 3u);
  EXPECT_EQ(type.positions[0].name, "First");
  EXPECT_EQ(type.positions[2].act, Step::Act::kUnread);
  EXPECT_EQ(type.reads.size(), 1u);
  EXPECT_EQ(type.writes.size(), 2u);
}

TEST(Resolve, ContinuesAStatementWithTheNearestClassThatHasPositions) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all abstract\n  doc A.\n  Name string\n"
      "entity IfcB : IfcA all\n  doc B.\n  unread Kind enum\n"
      "entity IfcC : IfcB all\n  doc C.\n  Size real\n"
      "entity IfcD : IfcC all\n  doc D.\n  chain IfcA\n  Size real\n");
  EXPECT_EQ(resolved.model.Find("IfcC")->recordBase, "IfcB");
  EXPECT_EQ(resolved.model.Find("IfcC")->readBase, "IfcA");
  EXPECT_EQ(resolved.model.Find("IfcD")->recordBase, "IfcA");
}

TEST(Resolve, UsesDifferentOrdersForReadingAndWriting) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all file\n  doc A.\n  First string\n  Second string\n"
      "  reads Second\n");
  EXPECT_EQ(resolved.model.Find("IfcA")->reads.size(), 1u);
  EXPECT_EQ(resolved.model.Find("IfcA")->writes.size(), 2u);
}

TEST(Resolve, LetsAClassWithoutAttributesReadAndWriteItsName) {
  const Resolved resolved("entity IfcA : IfcUnknown all file\n  doc A.\n");
  EXPECT_TRUE(resolved.model.Find("IfcA")->hasParse);
}

struct Fault {
  const char* body;
  const char* message;
};

class UnresolvableDescription : public testing::TestWithParam<Fault> {};

TEST_P(UnresolvableDescription, IsReportedWithItsPlace) {
  EXPECT_EQ(Refusal(GetParam().body), std::string("f.schema:") + GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Resolver, UnresolvableDescription,
    testing::Values(
        Fault{"entity IfcA : IfcB all\n  doc A.\n", "2:1: error: the base IfcB is not described"},
        Fault{"entity IfcA : IfcB all\n  doc A.\nentity IfcB : IfcUnknown all\n  doc B.\n",
              "2:1: error: the base IfcB is described after it"},
        Fault{"entity IfcA : IfcUnknown all\n", "2:1: error: IfcA has no doc line"},
        Fault{"entity IfcA : IfcUnknown all\n  doc A.\nentity IfcA : IfcUnknown all\n  doc A.\n",
              "4:1: error: IfcA is described twice"},
        Fault{"entity IfcCartesianPoint : IfcPoint all\n  doc A.\n",
              "2:1: error: IfcCartesianPoint is described twice"},
        Fault{"entity IfcA : IfcUnknown all\n  doc A.\n  Name ref IfcX\n",
              "4:3: error: IfcX is not described in release 2x3"},
        Fault{"entity IfcA : IfcUnknown all\n  doc A.\n  Name enum IfcX\n",
              "4:3: error: IfcX is not described in release 2x3"},
        Fault{"entity IfcA : IfcUnknown all\n  doc A.\n  order Name\n",
              "4:9: error: no attribute Name in this release"},
        Fault{"entity IfcA : IfcUnknown all\n  doc A.\n  Name ref any\n  link Name as IfcX Add\n",
              "5:8: error: the class IfcX is not described"}));

}  // namespace
}  // namespace schemac
