#include "export/svg/sheet.h"

#include <gtest/gtest.h>

namespace KelIFC::exporting::svg {
namespace {

Sheet SheetFor(double width, double depth) { return Sheet({{0.0, 0.0, 0.0}, {width, depth, 0.0}}); }

TEST(Sheet, OfASmallHouseIsA3AtOneToFifty) {
  const Sheet sheet = SheetFor(12.0, 9.0);
  EXPECT_EQ(sheet.GetPaper().name, "A3");
  EXPECT_EQ(sheet.GetScale(), 50.0);
}

TEST(Sheet, GrowsBeforeTheScaleBecomesSmaller) {
  EXPECT_EQ(SheetFor(30.0, 20.0).GetPaper().name, "A3");
  EXPECT_EQ(SheetFor(30.0, 20.0).GetScale(), 100.0);
  EXPECT_EQ(SheetFor(50.0, 30.0).GetPaper().name, "A2");
  EXPECT_EQ(SheetFor(50.0, 30.0).GetScale(), 100.0);
  EXPECT_EQ(SheetFor(75.0, 50.0).GetPaper().name, "A1");
  EXPECT_EQ(SheetFor(75.0, 50.0).GetScale(), 100.0);
  EXPECT_EQ(SheetFor(150.0, 90.0).GetScale(), 200.0);
  EXPECT_EQ(SheetFor(390.0, 200.0).GetScale(), 500.0);
}

TEST(Sheet, IsNeverLargerThanA1) {
  for (const double width : {1e3, 1e5, 1e9, 2e9}) {
    const Sheet sheet = SheetFor(width, 0.7 * width);
    EXPECT_LE(sheet.GetPaper().width, 841.0);
    const PaperBox frame = sheet.Frame();
    const Point2 corner = sheet.ToPaper(Point2(width, 0.0));
    EXPECT_LT(corner.x, frame.right);
    EXPECT_LT(corner.y, sheet.Strip().top);
  }
}

TEST(Sheet, HasTheBuildingInTheMiddleAndNorthUp) {
  const Sheet sheet({{100.0, 200.0, 0.0}, {110.0, 206.0, 0.0}});
  ASSERT_EQ(sheet.GetScale(), 50.0);
  // The drawing of A3 is from 32 to 398 and from 22 to 235.
  const Point2 centre = sheet.ToPaper(Point2(105.0, 203.0));
  EXPECT_DOUBLE_EQ(centre.x, 215.0);
  EXPECT_DOUBLE_EQ(centre.y, 128.5);
  const Point2 corner = sheet.ToPaper(Point2(100.0, 206.0));
  EXPECT_DOUBLE_EQ(corner.x, 115.0);
  EXPECT_DOUBLE_EQ(corner.y, 68.5);
  EXPECT_DOUBLE_EQ(sheet.ToPaper(2.0), 40.0);
}

TEST(Sheet, ReturnsToTheWorld) {
  const Sheet sheet({{100.0, 200.0, 0.0}, {110.0, 206.0, 0.0}});
  const Point2 world = sheet.ToWorld(sheet.ToPaper(Point2(101.25, 204.5)));
  EXPECT_NEAR(world.x, 101.25, 1e-12);
  EXPECT_NEAR(world.y, 204.5, 1e-12);
}

TEST(Sheet, OfNothingIsTheSmallestPaper) {
  const Sheet sheet((BuildingBox()));
  EXPECT_EQ(sheet.GetPaper().name, "A3");
  EXPECT_EQ(sheet.GetScale(), 100.0);
}

TEST(Sheet, HasThinnerLinesAtSmallerScales) {
  EXPECT_EQ(SheetFor(12.0, 9.0).Widths().cut, 0.5);
  EXPECT_EQ(SheetFor(150.0, 90.0).Widths().cut, 0.35);
  EXPECT_EQ(SheetFor(390.0, 200.0).Widths().cut, 0.25);
}

}  // namespace
}  // namespace KelIFC::exporting::svg
