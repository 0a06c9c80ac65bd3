#include "kelifc/building/build/openings.h"

#include <gtest/gtest.h>

#include "tests/building/build/made_facts.h"

namespace KelIFC::building {
namespace {

OpeningFacts Window(std::vector<SolidPointer> items, const Transform3& placement = {}) {
  OpeningFacts facts;
  facts.id = 5;
  facts.guid = "g";
  facts.fill = 6;
  facts.kind = OpeningKind::kWindow;
  facts.items = std::move(items);
  facts.placement = placement;
  return facts;
}

/// A wall in the plane of x and z whose middle plane is y = 0.
SurfaceRegion Wall() {
  SurfaceRegion wall;
  wall.outline = {{0.0, 0.0, 0.0}, {5.0, 0.0, 0.0}, {5.0, 0.0, 3.0}, {0.0, 0.0, 3.0}};
  wall.normal = {0.0, -1.0, 0.0};
  wall.thickness = 0.2;
  return wall;
}

BuildingOpening Make(const OpeningFacts& facts, const std::optional<SurfaceRegion>& surface) {
  BodyMaker bodies(ReadingOptions{});
  return MakeOpening(facts, surface, bodies);
}

void ExpectWindowOutline(const std::vector<Point3>& outline) {
  ASSERT_EQ(outline.size(), 4u);
  BuildingBox box;
  for (const Point3& p : outline) {
    EXPECT_NEAR(p.y, 0.0, 1e-9);
    box.min = {std::min(box.min.x, p.x), 0.0, std::min(box.min.z, p.z)};
    box.max = {std::max(box.max.x, p.x), 0.0, std::max(box.max.z, p.z)};
  }
  EXPECT_NEAR(box.min.x, 1.5, 1e-9);
  EXPECT_NEAR(box.max.x, 2.5, 1e-9);
  EXPECT_NEAR(box.min.z, 1.0, 1e-9);
  EXPECT_NEAR(box.max.z, 2.2, 1e-9);
}

TEST(Openings, OutlineIsTheSectionWithTheMiddlePlaneOfASurface) {
  // The block is upright: its extrusion is not the direction of the opening.
  const BuildingOpening opening =
      Make(Window({Block(1.0, 0.3, 1.2)}, MovedTo(2.0, 0.05, 1.0)), Wall());
  EXPECT_EQ(opening.id, 5u);
  EXPECT_EQ(opening.guid, "g");
  EXPECT_EQ(opening.fill, 6u);
  EXPECT_EQ(opening.kind, OpeningKind::kWindow);
  EXPECT_NEAR(opening.depth, 0.3, 1e-9);
  ExpectWindowOutline(opening.outline);
}

TEST(Openings, ANicheIsMovedToTheMiddlePlane) {
  const BuildingOpening opening =
      Make(Window({Block(1.0, 0.1, 1.2)}, MovedTo(2.0, 0.3, 1.0)), Wall());
  EXPECT_NEAR(opening.depth, 0.1, 1e-9);
  ExpectWindowOutline(opening.outline);
}

TEST(Openings, InAMemberTheExtrusionIsTheDirection) {
  const BuildingOpening opening = Make(Window({Block(1.0, 2.0, 0.4)}, MovedTo(0.0, 0.0, 3.0)), {});
  EXPECT_NEAR(opening.depth, 0.4, 1e-9);
  ASSERT_EQ(opening.outline.size(), 4u);
  for (const Point3& p : opening.outline) EXPECT_NEAR(p.z, 3.2, 1e-9);
}

TEST(Openings, InAMemberABodyOfAnotherKindGoesSquareToItsLargestFace) {
  BooleanResult joined;
  joined.operation = BooleanOperation::kIntersection;
  joined.first = Block(0.2, 2.0, 3.0);
  joined.second = Block(0.2, 2.0, 3.0);
  const BuildingOpening opening = Make(Window({Share({1, joined})}), {});
  EXPECT_NEAR(opening.depth, 0.2, 1e-9);
  for (const Point3& p : opening.outline) EXPECT_NEAR(p.x, 0.0, 1e-9);
}

TEST(Openings, WithoutABodyAnOpeningIsListedAllTheSame) {
  for (const auto& items : {std::vector<SolidPointer>(),
                            std::vector<SolidPointer>{Unknown(LossReason::kUnsupportedItem, 8)}}) {
    const BuildingOpening opening = Make(Window(items), Wall());
    EXPECT_EQ(opening.id, 5u);
    EXPECT_TRUE(opening.outline.empty());
    EXPECT_EQ(opening.depth, 0.0);
  }
}

}  // namespace
}  // namespace KelIFC::building
