#include "kelifc/core/other.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Other, KeepsTheTextBetweenTheOutermostParentheses) {
  IfcOther other;
  other.SetStepEntityName("IFCFOO");
  const char* text = "IFCFOO(1,'a)',(#3));";
  EXPECT_EQ(other.Parse(text), text + 7);
  EXPECT_EQ(Text(other), "IFCFOO(1,'a)',(#3)");
}

TEST(Other, WritesItsNameInUpperCase) {
  IfcOther other;
  other.SetStepEntityName("ifcfoo");
  other.Parse("ifcfoo(1)");
  EXPECT_EQ(Text(other), "IFCFOO(1");
  EXPECT_EQ(other.GetStepEntityName(), "ifcfoo");
}

TEST(Other, NamesItselfAsTheBase) {
  IfcOther other;
  other.SetStepEntityName("IFCFOO");
  EXPECT_STREQ(other.GetStepName(), "IfcUnknown");
}

TEST(Other, AppendsWhatASecondParseReads) {
  IfcOther other;
  other.Parse("(1)");
  other.Parse("(2)");
  EXPECT_EQ(Text(other), "(12");
}

TEST(Other, KeepsNothingWithoutParentheses) {
  IfcOther other;
  EXPECT_EQ(other.Parse("IFCFOO"), nullptr);
  EXPECT_EQ(other.Parse(nullptr), nullptr);
  const char* text = "(1,2";
  EXPECT_EQ(other.Parse(text), text + 1);
  EXPECT_EQ(Text(other), "(");
}

TEST(Other, TreatsNullAsAnEmptyName) {
  IfcOther other;
  other.SetStepEntityName("IFCFOO");
  other.SetStepEntityName(nullptr);
  EXPECT_EQ(other.GetStepEntityName(), "");
}

}  // namespace
}  // namespace KelIFC
