#include "kelifc/core/references/resolve.h"

#include <gtest/gtest.h>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/list_of_members.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

class Resolve : public testing::Test {
 protected:
  Resolve() {
    server.SetRelease(IFC_RELEASE_2X3);
    server.InsertItem(1, owner);
    server.InsertItem(2, point);
  }

  IfcServer server;
  IfcUnitAssignment* owner = new IfcUnitAssignment;
  IfcCartesianPoint* point = new IfcCartesianPoint;
  LIST_OF_MEMBERS members{owner};
};

TEST_F(Resolve, KeepsTheLengthAndHoldsNullForOtherClasses) {
  members.Parse("(#2,#1,#99,#2)");
  LIST<const IfcCartesianPoint*> view;
  ResolveMemberSet(view, members, &server);
  ASSERT_EQ(view.GetSize(), 4U);
  EXPECT_EQ(view[1], point);
  EXPECT_EQ(view[2], nullptr);
  EXPECT_EQ(view[3], nullptr);
  EXPECT_EQ(view[4], point);
}

TEST_F(Resolve, KeepsEqualElementsInASetToo) {
  members.Parse("(#2,#2,#99,#98)");
  SET<IfcCartesianPoint*> view;
  ResolveMemberSet(view, members, &server);
  EXPECT_EQ(view.GetSize(), 4U);
  EXPECT_EQ(view[2], point);
}

TEST_F(Resolve, LeavesTheViewEmptyWithoutAServer) {
  members.Parse("(#2)");
  LIST<const IfcCartesianPoint*> view;
  ResolveMemberSet(view, members, nullptr);
  EXPECT_TRUE(view.GetEmpty());
}

TEST_F(Resolve, ResolvesInlineValuesRepeatedly) {
  members.Parse("(IFCPARAMETERVALUE(0.5),#2)");
  for (int look = 0; look < 2; ++look) {
    LIST<const IfcTrimmingSelect*> view;
    ResolveMemberSet(view, members, &server);
    ASSERT_EQ(view.GetSize(), 2U);
    const auto* value = dynamic_cast<const IfcParameterValue*>(view[1]);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(*value, 0.5);
    EXPECT_EQ(view[2], point);
  }
}

TEST_F(Resolve, ResolvesNumbersWithoutAnOwner) {
  EXPECT_EQ(ResolveMember(MEMBER(std::size_t{2}), &server), point);
  EXPECT_EQ(ResolveMember(MEMBER(std::size_t{2}), nullptr), nullptr);
  EXPECT_EQ(ResolveMember(MEMBER(owner, 2), nullptr), point) << "through the owner";
  EXPECT_EQ(ResolveMember(MEMBER(), &server), nullptr);
}

}  // namespace
}  // namespace KelIFC
