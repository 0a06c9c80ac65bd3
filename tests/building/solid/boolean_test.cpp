#include "kelifc/building/solid/boolean.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/vector_math.h"

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

void ExpectSolid(const Mesh& mesh, double volume, double tolerance = 1e-9) {
  EXPECT_TRUE(IsClosed(mesh));
  EXPECT_NEAR(VolumeOf(mesh), volume, tolerance);
}

TEST(CutByPlane, KeepsTheSideThatTheNormalPointsAwayFrom) {
  const Mesh cut =
      CutByPlane(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 4.0}), {0.0, 0.0, 3.0}, {0.0, 0.0, 2.0});
  ExpectSolid(cut, 3.0);
  EXPECT_EQ(cut.FaceCount(), 6U);
  EXPECT_NEAR(BoxOf(cut).max.z, 3.0, 1e-12);
}

TEST(CutByPlane, ClosesATubeByAFaceWithAHole) {
  const Mesh cut = CutByPlane(TubeMesh(), {1.0, 1.0, 1.5}, {0.0, 0.6, 0.8});
  // The plane passes through the centre of the tube.
  ExpectSolid(cut, 4.5);
  EXPECT_EQ(cut.FaceCount(), 10U);
}

TEST(CutByPlane, MayLeaveSeveralParts) {
  const ProfilePointer comb = ProfileOf({{ContourOf({{0.0, 0.0},
                                                     {5.0, 0.0},
                                                     {5.0, 2.0},
                                                     {4.0, 2.0},
                                                     {4.0, 1.0},
                                                     {3.0, 1.0},
                                                     {3.0, 2.0},
                                                     {2.0, 2.0},
                                                     {2.0, 1.0},
                                                     {1.0, 1.0},
                                                     {1.0, 2.0},
                                                     {0.0, 2.0}}),
                                          {}}});
  const Mesh mesh = Evaluate(Prism(comb, 3.0)).body.mesh;
  ExpectSolid(CutByPlane(mesh, {0.0, 1.5, 0.0}, {0.0, 1.0, 0.0}), 19.5);
  ExpectSolid(CutByPlane(mesh, {0.0, 1.5, 0.0}, {0.0, -1.0, 0.0}), 4.5);
  // In the plane of the roots of the teeth: faces of the comb lie in the cut.
  ExpectSolid(CutByPlane(mesh, {0.0, 1.0, 0.0}, {0.0, 1.0, 0.0}), 15.0);
  ExpectSolid(CutByPlane(mesh, {0.0, 1.0, 0.0}, {0.0, -1.0, 0.0}), 9.0);
}

TEST(CutByPlane, ThroughVerticesAndEdgesStaysClosed) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  ExpectSolid(CutByPlane(box, {0.0, 0.0, 0.0}, {1.0, -1.0, 0.0}), 0.5);
  ExpectSolid(CutByPlane(box, {1.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), 1.0 / 6.0);
  ExpectSolid(CutByPlane(box, {1.0, 0.0, 0.0}, {-1.0, -1.0, -1.0}), 5.0 / 6.0);
}

TEST(CutByPlane, BesideTheMeshLeavesAllOrNothing) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  ExpectSolid(CutByPlane(box, {0.0, 0.0, 1.0}, {0.0, 0.0, 1.0}), 1.0);
  EXPECT_TRUE(CutByPlane(box, {0.0, 0.0, 1.0}, {0.0, 0.0, -1.0}).IsEmpty());
  ExpectSolid(CutByPlane(box, {0.0, 0.0, 5.0}, {0.0, 0.0, 0.0}), 1.0);
  ExpectSolid(CutByPlane(box, {0.0, std::numeric_limits<double>::quiet_NaN(), 5.0}, {0, 0, 1}),
              1.0);
}

TEST(CutByPlane, OfAnOpenMeshStaysOpen) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  Mesh open;
  open.points = box.points;
  for (std::size_t face = 1; face < box.FaceCount() - 1; ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    open.AddFace({loop.begin(), loop.end()});
  }
  const Mesh cut = CutByPlane(open, {0.0, 0.0, 0.5}, {0.0, 0.0, 1.0});
  EXPECT_FALSE(cut.IsEmpty());
  EXPECT_FALSE(IsClosed(cut));
}

TEST(Clipping, OfAWallByThreeRoofPlanes) {
  // A gable wall 10 m long, 0.3 m thick, 8 m high: two slopes of 45 degrees from 3 m up, and a
  // level cut at 7 m. Area: 10 * 3 + 5 * 5 - 1 * 1.
  SolidPointer wall = Block({0.0, 0.0, 0.0}, {10.0, 0.3, 8.0});
  const double d = std::sqrt(0.5);
  wall = Minus(wall, SolidOf(Below({0.0, 0.0, 3.0}, {d, 0.0, -d})));
  wall = Minus(wall, SolidOf(Below({10.0, 0.0, 3.0}, {-d, 0.0, -d})));
  wall = Minus(wall, SolidOf(Below({0.0, 0.0, 7.0}, {0.0, 0.0, -1.0})));
  const BodyResult result = Evaluate(wall);
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_TRUE(result.body.hasBoolean);
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 0.3 * 54.0);
  EXPECT_EQ(result.body.mesh.FaceCount(), 8U);
}

TEST(Clipping, ByAnIntersectionKeepsTheHalfSpace) {
  const BodyResult result = Evaluate(Operation(BooleanOperation::kIntersection,
                                               SolidOf(Below({0.0, 0.0, 1.0}, {0.0, 0.0, 1.0})),
                                               Block({0.0, 0.0, 0.0}, {1.0, 1.0, 4.0})));
  ExpectSolid(result.body.mesh, 1.0);
}

TEST(Clipping, OfEverythingIsDegenerate) {
  const BodyResult result = Evaluate(Minus(Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}),
                                           SolidOf(Below({0.0, 0.0, 2.0}, {0.0, 0.0, 1.0}))));
  ASSERT_TRUE(result.fault.has_value());
  EXPECT_EQ(result.fault->reason, LossReason::kDegenerate);
  EXPECT_EQ(result.fault->at, 50U);
}

TEST(Clipping, ByWhatCannotBeReadKeepsTheFirstOperand) {
  const BodyResult result = Evaluate(Minus(Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}),
                                           SolidOf(Unreadable{LossReason::kUnsupportedItem, 9})));
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_FALSE(result.body.isExact);
  ExpectSolid(result.body.mesh, 1.0);
}

TEST(Clipping, OfWhatCannotBeReadHasItsFault) {
  const BodyResult result = Evaluate(
      Minus(SolidOf(Unreadable{LossReason::kCycle, 9}), Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})));
  ASSERT_TRUE(result.fault.has_value());
  EXPECT_EQ(result.fault->reason, LossReason::kCycle);
  EXPECT_EQ(result.fault->at, 9U);
}

TEST(Clipping, ByABoundedHalfSpaceAroundTheBodyIsACut) {
  HalfSpace cutter = Below({0.0, 0.0, 1.0}, {0.0, 0.0, -1.0});
  cutter.boundary = Region{Rectangle(-1.0, -1.0, 2.0, 2.0), {}};
  const BodyResult result =
      Evaluate(Minus(Block({0.0, 0.0, 0.0}, {1.0, 1.0, 3.0}), SolidOf(cutter)));
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 1.0);
}

Mesh Combined(const Mesh& a, const Mesh& b, BooleanOperation operation) {
  Mesh result;
  EXPECT_TRUE(Combine(a, b, operation, result));
  return result;
}

void ExpectAll(const Mesh& a, const Mesh& b, double common) {
  const double first = VolumeOf(a);
  const double second = VolumeOf(b);
  const double slack = 1e-6 * (first + second);
  const Mesh both = Combined(a, b, BooleanOperation::kIntersection);
  if (common > 0.0) {
    ExpectSolid(both, common, slack);
  } else {
    EXPECT_NEAR(VolumeOf(both), 0.0, slack);
  }
  const Mesh difference = Combined(a, b, BooleanOperation::kDifference);
  EXPECT_NEAR(VolumeOf(difference), first - common, slack);
  EXPECT_TRUE(difference.IsEmpty() || IsClosed(difference));
  ExpectSolid(Combined(a, b, BooleanOperation::kUnion), first + second - common, slack);
}

TEST(Combine, OfBoxesThatOverlapAtACorner) {
  ExpectAll(BoxMesh({0.0, 0.0, 0.0}, {2.0, 2.0, 2.0}), BoxMesh({1.0, 1.0, 1.0}, {3.0, 3.0, 3.0}),
            1.0);
}

TEST(Combine, OfABoxInsideOfAnotherLeavesACavity) {
  ExpectAll(BoxMesh({0.0, 0.0, 0.0}, {3.0, 3.0, 3.0}), BoxMesh({1.0, 1.0, 1.0}, {2.0, 2.0, 2.0}),
            1.0);
}

TEST(Combine, OfABoxThroughAnotherLeavesATube) {
  const Mesh a = BoxMesh({0.0, 0.0, 0.0}, {3.0, 3.0, 3.0});
  const Mesh b = BoxMesh({1.0, 1.0, -1.0}, {2.0, 2.0, 4.0});
  ExpectAll(a, b, 3.0);
  EXPECT_EQ(Combined(a, b, BooleanOperation::kDifference).FaceCount(), 10U);
}

TEST(Combine, OfAFlushNotchHasNoSkin) {
  const Mesh a = BoxMesh({0.0, 0.0, 0.0}, {4.0, 1.0, 3.0});
  // Flush with the top and with both sides.
  const Mesh b = BoxMesh({1.0, 0.0, 2.0}, {2.0, 1.0, 3.0});
  ExpectAll(a, b, 1.0);
  const Mesh notched = Combined(a, b, BooleanOperation::kDifference);
  EXPECT_EQ(notched.points.size(), 16U);
}

TEST(Combine, OfIdenticalBoxes) {
  const Mesh a = BoxMesh({0.0, 0.0, 0.0}, {4.0, 1.0, 3.0});
  ExpectAll(a, a, 12.0);
  EXPECT_TRUE(Combined(a, a, BooleanOperation::kDifference).IsEmpty());
}

TEST(Combine, OfBoxesThatOnlyTouch) {
  const Mesh a = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  ExpectAll(a, BoxMesh({1.0, 0.0, 0.0}, {2.0, 1.0, 1.0}), 0.0);  // a whole face
  ExpectAll(a, BoxMesh({1.0, 0.5, 0.5}, {2.0, 2.0, 2.0}), 0.0);  // a part of a face
  ExpectAll(a, BoxMesh({1.0, 1.0, 0.0}, {2.0, 2.0, 1.0}), 0.0);  // an edge
  ExpectAll(a, BoxMesh({1.0, 1.0, 1.0}, {2.0, 2.0, 2.0}), 0.0);  // a corner
  ExpectAll(a, BoxMesh({5.0, 1.0, 1.0}, {6.0, 2.0, 2.0}), 0.0);  // nothing
}

TEST(Combine, OfFacesThatDifferByLessThanTheDigitsOfAFile) {
  const Mesh a = BoxMesh({0.0, 0.0, 0.0}, {4.0, 1.0, 3.0});
  const Mesh b = BoxMesh({1.0, 3e-7, 2.0}, {2.0, 1.0 - 4e-7, 3.0 - 5e-7});
  ExpectAll(a, b, 1.0);
  EXPECT_EQ(Combined(a, b, BooleanOperation::kDifference).points.size(), 16U);
}

TEST(Combine, OfATubeAndABar) {
  ExpectAll(TubeMesh(), BoxMesh({-1.0, 0.75, 1.0}, {3.0, 1.25, 2.0}), 0.5);
}

/// A rotation about an axis that is parallel to no edge, and a place far from the origin.
Transform3 Skew(double x, double y, double z) {
  Transform3 map;
  map.x = Unit(Vector3(0.36, 0.48, -0.8));
  map.y = Unit(Vector3(-0.8, 0.6, 0.0));
  map.z = Cross(map.x, map.y);
  map.origin = {x, y, z};
  return map;
}

TEST(Combine, OfRotatedBoxesFarFromTheOrigin) {
  const Transform3 map = Skew(3.1e5, -2.7e5, 1e3);
  const Mesh a = Moved(BoxMesh({0.0, 0.0, 0.0}, {4.0, 1.0, 3.0}), map);
  ExpectAll(a, Moved(BoxMesh({1.0, 0.0, 2.0}, {2.0, 1.0, 3.0}), map), 1.0);
  ExpectAll(a, Moved(BoxMesh({1.0, -1.0, 2.0}, {2.0, 0.5, 5.0}), map), 0.5);
  ExpectAll(a, Moved(BoxMesh({4.0, 0.0, 0.0}, {5.0, 1.0, 3.0}), map), 0.0);
}

TEST(Combine, OfACopedBeamByABoundedHalfSpace) {
  // A beam 6 m long whose upper corner at x = 0 is cut out: 0.2 m long, 0.1 m deep.
  HalfSpace cutter = Below({0.0, 0.0, 0.2}, {0.0, 0.0, -1.0});
  cutter.boundary = Region{Rectangle(-1.0, -1.0, 0.2, 1.0), {}};
  const BodyResult result =
      Evaluate(Minus(Block({0.0, 0.0, 0.0}, {6.0, 0.1, 0.3}), SolidOf(cutter)));
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 6.0 * 0.1 * 0.3 - 0.2 * 0.1 * 0.1);
  EXPECT_EQ(result.body.mesh.points.size(), 12U);
}

TEST(Combine, OfNestedDifferencesStaysSmall) {
  SolidPointer wall = Block({0.0, 0.0, 0.0}, {20.0, 0.3, 3.0});
  for (int i = 0; i < 15; ++i) {
    const double x = 1.0 + i;
    wall = Minus(wall, Block({x, -0.1 * (i % 2), 1.0}, {x + 0.5, 0.3 + 0.1 * (i % 2), 2.0}));
  }
  const BodyResult result = Evaluate(wall);
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 18.0 - 15.0 * 0.15);
  EXPECT_EQ(result.body.mesh.points.size(), 8U + 15U * 8U);
}

TEST(Combine, OfADifferenceWithADifference) {
  const SolidPointer plug =
      Minus(Block({1.0, -1.0, 1.0}, {3.0, 2.0, 3.0}), Block({1.5, -1.0, 1.5}, {2.5, 2.0, 2.5}));
  const BodyResult result = Evaluate(Minus(Block({0.0, 0.0, 0.0}, {4.0, 1.0, 4.0}), plug));
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 16.0 - 3.0);
}

TEST(Combine, OfRandomBoxesKeepsTheSumOfVolumes) {
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    // Small whole numbers, so that faces are often flush.
    const auto next = [&](int count) { return static_cast<double>(random() % count); };
    const auto box = [&] {
      const Point3 min = {next(4), next(4), next(4)};
      return std::pair(min, min + Vector3(1.0 + next(3), 1.0 + next(3), 1.0 + next(3)));
    };
    const auto [a, b] = box();
    const auto [c, d] = box();
    const auto overlap = [](double l, double h, double m, double i) {
      return std::max(0.0, std::min(h, i) - std::max(l, m));
    };
    const double common =
        overlap(a.x, b.x, c.x, d.x) * overlap(a.y, b.y, c.y, d.y) * overlap(a.z, b.z, c.z, d.z);
    SCOPED_TRACE(round);
    const Transform3 map = round % 2 == 0 ? Transform3() : Skew(17.3, -1234.5, 99.1);
    ExpectAll(Moved(BoxMesh(a, b), map), Moved(BoxMesh(c, d), map), common);
  }
}

TEST(Combine, OfRandomPrismsWithHolesKeepsTheSumOfVolumes) {
  std::mt19937 random(11);
  for (int round = 0; round < 100; ++round) {
    const auto next = [&] { return static_cast<double>(random() % 10001) / 10000.0; };
    const auto prism = [&] {
      Outline outline;
      for (int i = 0; i < 9; ++i) {
        const double angle = 0.698131700797732 * i;
        const double radius = 1.0 + next();
        outline.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
      }
      const Region region = {ContourOf(outline), {Rectangle(-0.3, -0.3, 0.3, 0.4)}};
      Transform3 map = At(next(), next(), next());
      map.x = Unit(Vector3(next() - 0.5, next() - 0.5, next() + 0.1));
      map.y = SquareTo(map.x);
      map.z = Cross(map.x, map.y);
      return Evaluate(Prism(ProfileOf({region}), 2.0, map)).body.mesh;
    };
    SCOPED_TRACE(round);
    const Mesh a = prism();
    const Mesh b = prism();
    const Mesh both = Combined(a, b, BooleanOperation::kIntersection);
    ExpectAll(a, b, VolumeOf(both));
    const Mesh again = Combined(both, b, BooleanOperation::kIntersection);
    EXPECT_NEAR(VolumeOf(again), VolumeOf(both), 1e-6);
  }
}

TEST(Combine, OfItemsThatOverlapWorksOnEach) {
  const SolidPointer cross = SolidOf(MappedItems{
      Transform3(),
      {Block({-2.0, -0.5, 0.0}, {2.0, 0.5, 1.0}), Block({-0.5, -2.0, 0.0}, {0.5, 2.0, 1.0})}});
  const BodyResult result = Evaluate(Minus(cross, Block({-0.2, -3.0, 0.5}, {0.3, 3.0, 2.0})));
  EXPECT_TRUE(result.body.isExact);
  // Each bar on its own: 4 - 0.5 * 1 * 0.5, and 4 - 0.5 * 4 * 0.5.
  ExpectSolid(result.body.mesh, 3.75 + 3.0);
}

TEST(Combine, ByItemsThatOverlapSubtractsAll) {
  const SolidPointer cross = SolidOf(MappedItems{
      Transform3(),
      {Block({-2.0, -0.5, 0.0}, {2.0, 0.5, 1.0}), Block({-0.5, -2.0, 0.0}, {0.5, 2.0, 1.0})}});
  const BodyResult result = Evaluate(Minus(Block({-3.0, -3.0, 0.0}, {3.0, 3.0, 1.0}), cross));
  EXPECT_TRUE(result.body.isExact);
  ExpectSolid(result.body.mesh, 36.0 - 7.0);
}

TEST(Combine, OfNumbersThatAreNotFiniteFails) {
  Mesh bad = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  bad.points[2].y = std::numeric_limits<double>::infinity();
  Mesh result;
  EXPECT_FALSE(
      Combine(bad, BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), BooleanOperation::kUnion, result));
}

TEST(Combine, OfOpenMeshesFailsAndKeepsTheFirstOperand) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  Mesh open;
  open.points = box.points;
  for (std::size_t face = 1; face < box.FaceCount(); ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    open.AddFace({loop.begin(), loop.end()});
  }
  const BodyResult result =
      Evaluate(Minus(SolidOf(Shells{{open}, false}), Block({0.5, 0.5, 0.5}, {2.0, 2.0, 2.0})));
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_FALSE(result.body.isExact);
  EXPECT_EQ(result.body.mesh.FaceCount(), 5U);
}

}  // namespace
}  // namespace KelIFC::building
