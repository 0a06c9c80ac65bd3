#include "kelifc/core/unit_assignment.h"

#include <gtest/gtest.h>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

class UnitAssignment : public testing::Test {
 protected:
  UnitAssignment() {
    server.SetRelease(IFC_RELEASE_2X3);
    server.InsertItem(1, metre);
    server.InsertItem(2, new IfcCartesianPoint);
    server.InsertItem(3, units);
  }

  IfcServer server;
  KelIFC2x3::IfcSiUnit* metre = new KelIFC2x3::IfcSiUnit;
  IfcUnitAssignment* units = new IfcUnitAssignment;
};

TEST_F(UnitAssignment, ReadsAndWritesItsUnits) {
  EXPECT_EQ(RestOf(*units, "IFCUNITASSIGNMENT((#1,#2))"), "(null)");
  EXPECT_EQ(Text(*units), "IFCUNITASSIGNMENT((#1, #2)");
}

TEST_F(UnitAssignment, ReturnsAViewAsLongAsItsSet) {
  units->Parse("IFCUNITASSIGNMENT((#1,#2,#99,#1))");
  for (int look = 0; look < 2; ++look) {
    const SET<const IfcUnit*> view = units->GetUnits();
    ASSERT_EQ(view.GetSize(), 4U);
    EXPECT_EQ(view[1], metre);
    EXPECT_EQ(view[2], nullptr) << "another class";
    EXPECT_EQ(view[3], nullptr) << "no such instance";
    EXPECT_EQ(view[4], metre);
  }
}

TEST_F(UnitAssignment, ReturnsAnEmptySetWithoutAModel) {
  IfcUnitAssignment outside;
  outside.Parse("IFCUNITASSIGNMENT((#1))");
  EXPECT_TRUE(outside.GetUnits().GetEmpty());
}

TEST_F(UnitAssignment, AddsAUnitOfItsModelOnce) {
  units->AddUnit(metre);
  units->AddUnit(metre);
  KelIFC2x3::IfcSiUnit stranger;
  units->AddUnit(&stranger);
  units->AddUnit(nullptr);
  EXPECT_EQ(Text(*units), "IFCUNITASSIGNMENT((#1)");
  EXPECT_EQ(units->GetUnits()[1], metre);
}

TEST_F(UnitAssignment, DropsAUnitWithoutAModel) {
  IfcUnitAssignment outside;
  outside.AddUnit(metre);
  EXPECT_EQ(Text(outside), "IFCUNITASSIGNMENT(()");
}

}  // namespace
}  // namespace KelIFC
