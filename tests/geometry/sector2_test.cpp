#include "kelifc/geometry/sector2.h"

#include "tests/geometry/points.h"

namespace KelIFC {
namespace {

/// Checks that both ends are on the line of the equation.
void ExpectEquationHolds(const Sector2& s) {
  EXPECT_DOUBLE_EQ(s.a * s.start.x + s.b * s.start.y + s.c, 0);
  EXPECT_DOUBLE_EQ(s.a * s.end.x + s.b * s.end.y + s.c, 0);
}

TEST(Sector, HasTheEquationOfItsEnds) {
  const Sector2 sector(Point2(1, 2), Point2(4, 6));
  EXPECT_EQ(sector.a, 4);
  EXPECT_EQ(sector.b, -3);
  EXPECT_EQ(sector.c, 2);
  ExpectEquationHolds(sector);
}

TEST(Sector, UpdatesItsEquationWhenAnEndChanges) {
  Sector2 sector(Point2(1, 2), Point2(4, 6));
  sector.state = 1;
  sector.SetStart(Point2(0, 1));
  ExpectEquationHolds(sector);
  EXPECT_EQ(sector.state, 0);
  sector.SetEnd(Point2(5, 5));
  ExpectEquationHolds(sector);
}

TEST(Sector, ReversesItsEndsAndItsEquation) {
  Sector2 sector(Point2(1, 2), Point2(4, 6));
  sector.Reverse();
  EXPECT_THAT(sector.start, IsNear2(4, 6));
  EXPECT_THAT(sector.end, IsNear2(1, 2));
  EXPECT_EQ(sector.a, -4);
  EXPECT_EQ(sector.b, 3);
  EXPECT_EQ(sector.c, -2);
}

}  // namespace
}  // namespace KelIFC
