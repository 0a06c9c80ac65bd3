#include "kelifc/core/list_of_members.h"

#include <gtest/gtest.h>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(ListOfMembers, IsUnsetAtFirst) { EXPECT_EQ(Text(LIST_OF_MEMBERS(nullptr)), "$"); }

TEST(ListOfMembers, ReadsReferencesUpToTheClosingParenthesis) {
  LIST_OF_MEMBERS list;
  EXPECT_EQ(RestOf(list, " ( #1, #2 ,#3),5"), "5");
  EXPECT_TRUE(list.GetExists());
  EXPECT_EQ(Text(list), "(#1, #2, #3)");
  EXPECT_EQ(RestOf(list, "(#7)"), "(null)");
  EXPECT_EQ(Text(list), "(#7)");
}

TEST(ListOfMembers, KeepsEqualReferences) {
  EXPECT_EQ(TextOf<LIST_OF_MEMBERS>("(#1,#1)"), "(#1, #1)");
}

TEST(ListOfMembers, ExistsEmpty) {
  LIST_OF_MEMBERS list;
  EXPECT_EQ(RestOf(list, "(),5"), "5");
  EXPECT_TRUE(list.GetExists());
  EXPECT_TRUE(list.GetEmpty());
  EXPECT_EQ(Text(list), "()");
}

TEST(ListOfMembers, BecomesUnsetByOmittedValues) {
  LIST_OF_MEMBERS list;
  list.Parse("(#1)");
  EXPECT_EQ(RestOf(list, "$,5"), "5");
  EXPECT_FALSE(list.GetExists());
  EXPECT_TRUE(list.GetEmpty());
  EXPECT_EQ(Text(list), "$");
  list.Parse("(#1)");
  EXPECT_EQ(list.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(list), "$");
}

TEST(ListOfMembers, LeavesUnsetElementsOut) {
  EXPECT_EQ(TextOf<LIST_OF_MEMBERS>("(#1,$,#2)"), "(#1, #2)");
  EXPECT_EQ(TextOf<LIST_OF_MEMBERS>("($,*)"), "()");
}

TEST(ListOfMembers, StaysExistingAndEmptyWithoutAParenthesis) {
  LIST_OF_MEMBERS list;
  list.Parse("(#1)");
  EXPECT_EQ(RestOf(list, "#1,#2"), "#1,#2");
  EXPECT_EQ(Text(list), "()");
  EXPECT_EQ(RestOf(list, ""), "");
  EXPECT_EQ(Text(list), "()");
}

TEST(ListOfMembers, EndsAtTheEndOfTheStatementIfItIsNotClosed) {
  LIST_OF_MEMBERS list;
  EXPECT_EQ(RestOf(list, "(#1,#2"), "(null)");
  EXPECT_EQ(Text(list), "(#1, #2)");
  EXPECT_EQ(RestOf(list, "("), "(null)");
  EXPECT_EQ(Text(list), "()");
}

TEST(ListOfMembers, EndsAtAnElementThatIsNotAReference) {
  LIST_OF_MEMBERS list;
  EXPECT_EQ(RestOf(list, "(#1,x,#2),5"), "5");
  EXPECT_EQ(Text(list), "(#1)");
}

TEST(ListOfMembers, DoesNotReadTheElementsOfANestedList) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  IfcUnitAssignment owner;
  owner.SetServer(&server);
  LIST_OF_MEMBERS list(&owner);
  EXPECT_EQ(RestOf(list, "((#1,#2),(#3)),5"), "5");
  EXPECT_EQ(list.GetSize(), 1U);
  server.SetRelease(IFC_RELEASE_2X);
  EXPECT_EQ(RestOf(list, "((#1,#2),(#3)),5"), "5");
  EXPECT_TRUE(list.GetEmpty());
}

TEST(ListOfMembers, SetsItsOwnerInTheReferencesThatItReads) {
  IfcServer server;
  auto* owner = new IfcUnitAssignment;
  auto* point = new IfcCartesianPoint;
  server.InsertItem(1, owner);
  server.InsertItem(2, point);
  LIST_OF_MEMBERS list(owner);
  list.Parse("(#2)");
  EXPECT_EQ(list[1].GetInstance(), point);
  EXPECT_EQ(list[1].GetInstance(), point) << "a second look is the same";
}

TEST(ListOfMembers, IgnoresTheContentsOfAnAssignedVector) {
  IfcCartesianPoint point;
  LIST_OF_MEMBERS list;
  list = std::vector<IfcUnknown*>{&point};
  EXPECT_TRUE(list.GetExists());
  EXPECT_EQ(Text(list), "()");
  list.Parse("(#1)");
  list = std::vector<IfcUnknown*>();
  EXPECT_EQ(Text(list), "(#1)");
}

}  // namespace
}  // namespace KelIFC
