#include "tools/schemac/release_model.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

const std::string kBody =
    "enum IfcKind\n  doc K.\n  2x.. A 1\nenum IfcShared core\n  doc S.\n  all A 1\n"
    "entity IfcA : IfcUnknown all\n  doc A.\n  Name string\n"
    "entity IfcB : IfcA 2x..\n  doc B.\n  Size real\n";

TEST(ReleaseModel, KnowsTheClassesOfTheReleaseAndOfTheCore) {
  const Resolved resolved(kBody, k20);
  EXPECT_TRUE(resolved.model.KnowsClass("IfcA"));
  EXPECT_TRUE(resolved.model.KnowsClass("IfcPoint"));
  EXPECT_FALSE(resolved.model.KnowsClass("IfcB"));
  EXPECT_EQ(resolved.model.Find("IfcPoint"), nullptr);
}

TEST(ReleaseModel, FindsInheritedAttributes) {
  const Resolved resolved(kBody);
  const ResolvedClass& type = *resolved.model.Find("IfcB");
  ASSERT_NE(resolved.model.FindAttribute(type, "Name"), nullptr);
  EXPECT_EQ(resolved.model.FindAttribute(type, "Size")->kind, Kind::kReal);
  EXPECT_EQ(resolved.model.FindAttribute(type, "Other"), nullptr);
}

TEST(ReleaseModel, FindsTheTableOfTheRelease) {
  const Resolved resolved(kBody, k20);
  const auto& enumerations = resolved.description.enumerations;
  EXPECT_EQ(resolved.model.FindTable(enumerations[0]), nullptr);
  EXPECT_NE(resolved.model.FindTable(enumerations[1]), nullptr);
  Enumeration empty;
  empty.isCore = true;
  EXPECT_EQ(resolved.model.FindTable(empty), nullptr);
}

}  // namespace
}  // namespace schemac
