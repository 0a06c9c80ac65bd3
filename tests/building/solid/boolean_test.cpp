#include "kelifc/building/solid/boolean.h"

#include <gtest/gtest.h>

#include <limits>

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

void ExpectSolid(const Mesh& mesh, double volume, double tolerance = 1e-9) {
  EXPECT_TRUE(IsClosed(mesh));
  EXPECT_NEAR(VolumeOf(mesh), volume, tolerance);
}

TEST(CutByPlane, KeepsTheSideThatTheNormalPointsAwayFrom) {
  const Mesh cut = CutByPlane(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 4.0}), {0.0, 0.0, 3.0},
                              {0.0, 0.0, 2.0});
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
  const ProfilePointer comb =
      ProfileOf({{ContourOf({{0.0, 0.0}, {5.0, 0.0}, {5.0, 2.0}, {4.0, 2.0}, {4.0, 1.0},
                             {3.0, 1.0}, {3.0, 2.0}, {2.0, 2.0}, {2.0, 1.0}, {1.0, 1.0},
                             {1.0, 2.0}, {0.0, 2.0}}),
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
  const BodyResult result =
      Evaluate(Operation(BooleanOperation::kIntersection,
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
  const BodyResult result = Evaluate(Minus(SolidOf(Unreadable{LossReason::kCycle, 9}),
                                           Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})));
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

}  // namespace
}  // namespace KelIFC::building
