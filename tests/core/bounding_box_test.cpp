#include "kelifc/core/bounding_box.h"

#include <gtest/gtest.h>

#include "kelifc/core/exception.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

class BoundingBox : public testing::Test {
 protected:
  BoundingBox() {
    server.InsertItem(1, corner);
    server.InsertItem(2, new IfcUnitAssignment);
    server.InsertItem(3, box);
  }

  IfcServer server;
  IfcCartesianPoint* corner = new IfcCartesianPoint(1.0, 2.0, 3.0);
  IfcBoundingBox* box = new IfcBoundingBox;
};

TEST_F(BoundingBox, ReadsAndWritesItsAttributes) {
  EXPECT_EQ(RestOf(*box, "IFCBOUNDINGBOX(#1,1.5,2.5,3.5)"), "(null)");
  EXPECT_EQ(Text(*box), "IFCBOUNDINGBOX(#1,1.5,2.5,3.5");
  EXPECT_EQ(box->GetCorner(), corner);
  EXPECT_EQ(box->GetCorner(), corner) << "a second look is the same";
  EXPECT_EQ(box->GetXDim(), 1.5);
  EXPECT_EQ(box->GetYDim(), 2.5);
  EXPECT_EQ(box->GetZDim(), 3.5);
  EXPECT_EQ(box->GetDim(), 3);
}

TEST_F(BoundingBox, ThrowsForAMissingCorner) {
  for (const char* text : {"(*,1.)", "($,1.)", "(#99,1.)", "(#2,1.)"}) {
    box->Parse(text);
    try {
      box->GetCorner();
      ADD_FAILURE() << text;
    } catch (const IfcException& exception) {
      EXPECT_EQ(exception.GetCause(), CAUSE_MISSING_REFERENCE);
    }
    EXPECT_THROW(box->GetDim(), IfcException);
  }
}

TEST_F(BoundingBox, AcceptsOnlyACornerOfItsModel) {
  box->SetCorner(corner);
  EXPECT_EQ(box->GetCorner(), corner);
  IfcCartesianPoint outside;
  box->SetCorner(&outside);
  EXPECT_EQ(box->GetCorner(), corner) << "nothing changes";
  IfcBoundingBox stranger;
  stranger.SetCorner(corner);
  EXPECT_EQ(Text(stranger), "IFCBOUNDINGBOX($,$,$,$");
}

TEST_F(BoundingBox, AcceptsMeasures) {
  box->SetXDim(1.0);
  box->SetYDim(2.0);
  box->SetZDim(IfcLengthMeasure());
  EXPECT_EQ(Text(*box), "IFCBOUNDINGBOX($,1.,2.,$");
}

TEST_F(BoundingBox, ResolvesThroughTheSourceWhenItIsACopy) {
  box->SetCorner(corner);
  const IfcBoundingBox copy(*box);
  EXPECT_EQ(copy.GetCorner(), corner);
}

}  // namespace
}  // namespace KelIFC
