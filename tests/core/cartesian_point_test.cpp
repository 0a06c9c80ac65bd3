#include "kelifc/core/cartesian_point.h"

#include <gtest/gtest.h>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(CartesianPoint, ReadsAndWritesItsCoordinates) {
  IfcCartesianPoint point;
  EXPECT_EQ(Text(point), "IFCCARTESIANPOINT(()");
  EXPECT_EQ(RestOf(point, "IFCCARTESIANPOINT((1.,0.,2.5))"), "(null)");
  EXPECT_EQ(Text(point), "IFCCARTESIANPOINT((1.,0.,2.5)");
  EXPECT_EQ(point.GetDim(), 3);
}

TEST(CartesianPoint, IsMadeFromNumbers) {
  EXPECT_EQ(Text(IfcCartesianPoint(1.0, 2.0)), "IFCCARTESIANPOINT((1.,2.)");
  EXPECT_EQ(Text(IfcCartesianPoint(1.0, 2.0, REAL())), "IFCCARTESIANPOINT((1.,2.,$)");
}

TEST(CartesianPoint, IsMadeFromADimensionWithUnsetCoordinates) {
  EXPECT_EQ(Text(IfcCartesianPoint(INTEGER(3))), "IFCCARTESIANPOINT(($,$,$)");
  EXPECT_EQ(IfcCartesianPoint(INTEGER(0)).GetDim(), 0);
  EXPECT_EQ(IfcCartesianPoint(INTEGER(-3)).GetDim(), 0);
}

TEST(CartesianPoint, ReturnsItsCoordinatesAsMeasures) {
  IfcCartesianPoint point(1.5, REAL());
  const LIST<IfcLengthMeasure> measures = point.GetCoordinates();
  EXPECT_EQ(Text(measures), "(1.5, $)");
  EXPECT_EQ(Text(IfcCartesianPoint().GetCoordinates()), "$");
}

TEST(CartesianPoint, SetsOneCoordinate) {
  IfcCartesianPoint point(1.0, 2.0);
  point.SetCoordinates(2, 5.0);
  point.SetCoordinates(0, 9.0);
  point.SetCoordinates(3, 9.0);
  EXPECT_EQ(Text(point), "IFCCARTESIANPOINT((1.,5.)");
}

TEST(CartesianPoint, CopiesItsCoordinates) {
  const IfcCartesianPoint point(1.0, 2.0);
  IfcCartesianPoint copy(point);
  copy.SetCoordinates(1, 7.0);
  EXPECT_EQ(Text(point), "IFCCARTESIANPOINT((1.,2.)");
  copy = point;
  EXPECT_EQ(Text(copy), "IFCCARTESIANPOINT((1.,2.)");
}

}  // namespace
}  // namespace KelIFC
