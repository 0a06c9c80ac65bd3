#include "kelifc/building/solid/slice.h"

#include <gtest/gtest.h>

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

PlaneFrame Horizontal(double z) {
  PlaneFrame plane;
  plane.origin = {0.0, 0.0, z};
  return plane;
}

double AreaOf(const Outline& outline) {
  double sum = 0.0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point2& a = outline[i];
    const Point2& b = outline[(i + 1) % outline.size()];
    sum += a.x * b.y - a.y * b.x;
  }
  return sum / 2.0;
}

TEST(Slice, OfABoxIsARectangle) {
  const auto regions = Slice(BoxMesh({1.0, 2.0, 0.0}, {3.0, 5.0, 4.0}), Horizontal(1.0));
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_EQ(regions[0].outer.size(), 4U);
  EXPECT_NEAR(AreaOf(regions[0].outer), 6.0, 1e-12);
  EXPECT_TRUE(regions[0].holes.empty());
}

TEST(Slice, OfATubeHasAClockwiseHole) {
  const auto regions = Slice(TubeMesh(), Horizontal(1.0));
  ASSERT_EQ(regions.size(), 1U);
  ASSERT_EQ(regions[0].holes.size(), 1U);
  EXPECT_NEAR(AreaOf(regions[0].outer), 4.0, 1e-12);
  EXPECT_NEAR(AreaOf(regions[0].holes[0]), -1.0, 1e-12);
}

TEST(Slice, AlongATubeHasTwoRegionsLargestFirst) {
  PlaneFrame plane;
  plane.origin = {0.0, 1.0, 0.0};
  plane.x = {0.0, 0.0, 1.0};
  plane.y = {1.0, 0.0, 0.0};
  const Region region = {Rectangle(0.0, 0.0, 2.0, 2.0), {Rectangle(0.25, 0.5, 1.5, 1.5)}};
  const Mesh tube = Evaluate(Prism(ProfileOf({region}), 3.0)).body.mesh;
  const auto regions = Slice(tube, plane);
  ASSERT_EQ(regions.size(), 2U);
  EXPECT_NEAR(AreaOf(regions[0].outer), 1.5, 1e-12);
  EXPECT_NEAR(AreaOf(regions[1].outer), 0.75, 1e-12);
}

TEST(Slice, InAFaceIsThatOfOneSide) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  const auto below = Slice(box, Horizontal(1.0));
  const auto above = Slice(box, Horizontal(0.0));
  EXPECT_EQ(below.size() + above.size(), 1U);
}

TEST(Slice, MergesCollinearPoints) {
  Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  // The front face as two triangles.
  Mesh cut;
  cut.points = box.points;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    if (face == 2) {
      cut.AddFace({loop[0], loop[1], loop[2]});
      cut.AddFace({loop[0], loop[2], loop[3]});
    } else {
      cut.AddFace({loop.begin(), loop.end()});
    }
  }
  const auto regions = Slice(cut, Horizontal(0.3));
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_EQ(regions[0].outer.size(), 4U);
}

TEST(Slice, JoinsFacesThatDoNotShareTheirPoints) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  Mesh loose;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    std::vector<Mesh::Index> points;
    for (const Mesh::Index p : box.LoopOf(face, 0)) {
      points.push_back(static_cast<Mesh::Index>(loose.points.size()));
      loose.points.push_back(box.points[p]);
    }
    loose.AddFace(points);
  }
  EXPECT_EQ(Slice(loose, Horizontal(0.5)).size(), 1U);
}

TEST(Slice, OfANonConvexPrismAlongItsLegsHasARegionForEach) {
  // A comb with three teeth.
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
  PlaneFrame plane;
  plane.origin = {0.0, 1.5, 0.0};
  plane.x = {0.0, 0.0, 1.0};
  plane.y = {1.0, 0.0, 0.0};
  const auto regions = Slice(mesh, plane);
  ASSERT_EQ(regions.size(), 3U);
  for (const FlatRegion& region : regions) EXPECT_NEAR(AreaOf(region.outer), 3.0, 1e-12);
}

TEST(Slice, BesideAMeshOrOfNothingIsEmpty) {
  EXPECT_TRUE(Slice(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), Horizontal(2.0)).empty());
  EXPECT_TRUE(Slice(Mesh(), Horizontal(2.0)).empty());
  PlaneFrame bad;
  bad.x = {0.0, 0.0, 0.0};
  EXPECT_TRUE(Slice(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), bad).empty());
}

TEST(Slice, OfATorusIsARing) {
  SweptDisk form;
  form.directrix.points = {{1.0, 0.0, 0.0}, {-1.0, 0.0, 0.0}};
  form.directrix.arcs = {{0, {0.0, 1.0, 0.0}}, {1, {0.0, -1.0, 0.0}}};
  form.directrix.isClosed = true;
  form.radius = 0.1;
  const auto regions = Slice(Evaluate(SolidOf(form)).body.mesh, Horizontal(0.01));
  ASSERT_EQ(regions.size(), 1U);
  EXPECT_EQ(regions[0].holes.size(), 1U);
}

}  // namespace
}  // namespace KelIFC::building
