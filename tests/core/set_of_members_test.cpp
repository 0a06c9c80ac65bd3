#include "kelifc/core/set_of_members.h"

#include <gtest/gtest.h>

#include "kelifc/core/cartesian_point.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(SetOfMembers, WritesParenthesesEvenIfUnset) {
  SET_OF_MEMBERS set;
  EXPECT_EQ(Text(set), "()");
  EXPECT_EQ(RestOf(set, "$,5"), "5");
  EXPECT_FALSE(set.GetExists());
  EXPECT_EQ(Text(set), "()");
}

TEST(SetOfMembers, ReadsEqualReferencesTwice) {
  SET_OF_MEMBERS set;
  EXPECT_EQ(RestOf(set, "(#1,#1),5"), "5");
  EXPECT_EQ(Text(set), "(#1, #1)");
  EXPECT_EQ(set.Add(MEMBER(std::size_t{1})), 1U);
  EXPECT_EQ(set.GetSize(), 2U);
}

TEST(SetOfMembers, KeepsItsMarkThroughAParse) {
  SET_OF_MEMBERS set;
  set.Parse("(#1)");
  EXPECT_FALSE(set.GetExists());
  set.SetExists(true);
  for (const char* text : {"(#1)", "$", "x"}) {
    set.Parse(text);
    EXPECT_TRUE(set.GetExists()) << text;
  }
}

TEST(SetOfMembers, StaysWithoutAParenthesis) {
  SET_OF_MEMBERS set;
  set.Parse("(#1)");
  EXPECT_EQ(RestOf(set, "#1,#2"), "#1,#2");
  EXPECT_EQ(Text(set), "()");
}

TEST(SetOfMembers, IsEmptiedByANullCursor) {
  SET_OF_MEMBERS set;
  set.Parse("(#1)");
  EXPECT_EQ(set.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(set), "()");
}

TEST(SetOfMembers, IgnoresTheContentsOfAnAssignedVector) {
  IfcCartesianPoint point;
  SET_OF_MEMBERS set;
  set = std::vector<IfcUnknown*>{&point};
  EXPECT_TRUE(set.GetExists());
  EXPECT_TRUE(set.GetEmpty());
}

TEST(SetOfMembers, AddsToWhatALongParseHasRead) {
  std::string text = "(#1";
  for (int i = 2; i <= 1000; ++i) text += ",#" + std::to_string(i);
  SET_OF_MEMBERS set;
  set.Parse((text + ")").c_str());
  EXPECT_EQ(set.Add(MEMBER(std::size_t{500})), 500U);
  EXPECT_EQ(set.Add(MEMBER(std::size_t{2000})), 1001U);
  set.Parse("(#2000,#1)");
  EXPECT_EQ(set.Add(MEMBER(std::size_t{1})), 2U);
}

}  // namespace
}  // namespace KelIFC
