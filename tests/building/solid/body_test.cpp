#include "kelifc/building/solid/body.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numbers>

#include "solid_samples.h"

namespace KelIFC::building {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

LossReason ReasonOf(const BodyResult& result) {
  EXPECT_TRUE(result.fault.has_value());
  EXPECT_TRUE(result.body.mesh.IsEmpty());
  return result.fault ? result.fault->reason : LossReason::kNoItems;
}

void ExpectClosed(const BodyResult& result, double volume, double tolerance = 1e-9) {
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_TRUE(result.body.isClosed);
  EXPECT_NEAR(result.body.volume, volume, tolerance);
}

TEST(Body, OfAnExtrusionIsAPrism) {
  const BodyResult result = Evaluate(Block({1.0, 2.0, 3.0}, {2.0, 4.0, 6.0}));
  ExpectClosed(result, 6.0);
  EXPECT_EQ(result.body.mesh.FaceCount(), 6U);
  EXPECT_NEAR(result.body.box.min.z, 3.0, 1e-12);
  EXPECT_NEAR(result.body.box.max.y, 4.0, 1e-12);
  EXPECT_EQ(result.body.solidCount, 1U);
  EXPECT_TRUE(result.body.isExact);
  EXPECT_FALSE(result.body.hasBoolean);
}

TEST(Body, OfAnExtrusionKeepsHolesInItsEnds) {
  const Region region = {Rectangle(0.0, 0.0, 2.0, 2.0), {Rectangle(0.5, 0.5, 1.5, 1.5)}};
  const BodyResult result = Evaluate(Prism(ProfileOf({region}), 3.0));
  ExpectClosed(result, 9.0);
  EXPECT_EQ(result.body.mesh.FaceCount(), 10U);
}

TEST(Body, OfASkewedExtrusionHasTheHeightOfItsDirection) {
  Extrusion form;
  form.profile = RectangleProfile(0.0, 0.0, 1.0, 1.0);
  form.direction = {0.6, 0.0, 0.8};
  form.depth = 5.0;
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 4.0);
  EXPECT_NEAR(result.body.box.max.x, 4.0, 1e-12);
  EXPECT_NEAR(result.body.box.max.z, 4.0, 1e-12);
}

TEST(Body, OfAnExtrusionDownwardsFacesOutwards) {
  Extrusion form;
  form.profile = RectangleProfile(0.0, 0.0, 1.0, 1.0);
  form.direction = {0.0, 0.0, -1.0};
  form.depth = 2.0;
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 2.0);
  EXPECT_NEAR(result.body.box.min.z, -2.0, 1e-12);
}

TEST(Body, OfATaperedExtrusionIsAFrustum) {
  Extrusion form;
  form.profile = RectangleProfile(-1.0, -1.0, 1.0, 1.0);
  form.endProfile = RectangleProfile(-0.5, -0.5, 0.5, 0.5);
  form.depth = 3.0;
  // h / 3 (A1 + A2 + sqrt(A1 A2)) = 4 + 1 + 2.
  ExpectClosed(Evaluate(SolidOf(form)), 7.0);
}

TEST(Body, OfATaperBetweenOutlinesOfDifferentPointCountsMatchesThemByLength) {
  Extrusion form;
  form.profile = RectangleProfile(-1.0, -1.0, 1.0, 1.0);
  form.endProfile = ProfileOf(
      {{ContourOf({{-1.0, -1.0}, {0.0, -1.0}, {1.0, -1.0}, {1.0, 1.0}, {0.25, 1.0}, {-1.0, 1.0}}),
        {}}});
  form.depth = 3.0;
  ExpectClosed(Evaluate(SolidOf(form)), 12.0);
}

TEST(Body, OfSeveralRegionsHasSeveralPrisms) {
  const ProfilePointer profile =
      ProfileOf({{Rectangle(0.0, 0.0, 1.0, 1.0), {}}, {Rectangle(2.0, 0.0, 3.0, 2.0), {}}});
  const BodyResult result = Evaluate(Prism(profile, 2.0));
  ExpectClosed(result, 6.0);
  EXPECT_EQ(result.body.solidCount, 1U);
}

TEST(Body, OfAQuarterTurnIsASector) {
  Revolution form;
  form.profile = RectangleProfile(1.0, 0.0, 2.0, 1.0);
  form.axis = {0.0, 1.0, 0.0};
  form.angle = kPi / 2.0;
  // Pappus: area 1, centroid at 1.5, a quarter of a turn; chords are within 0.1 mm.
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 0.75 * kPi, 3e-4);
  // Counter-clockwise about y, x turns to -z.
  EXPECT_NEAR(result.body.box.min.z, -2.0, 1e-9);
  EXPECT_NEAR(result.body.box.max.z, 0.0, 1e-9);
}

TEST(Body, OfAFullTurnIsARingWithoutEnds) {
  Revolution form;
  form.profile = RectangleProfile(1.0, 0.0, 2.0, 1.0);
  form.axis = {0.0, 1.0, 0.0};
  form.angle = 2.0 * kPi;
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 3.0 * kPi, 1e-3);
  EXPECT_EQ(result.body.mesh.FaceCount() * 1, result.body.mesh.points.size());
}

TEST(Body, OfATurnAboutAnEdgeOfTheProfileIsACylinder) {
  Revolution form;
  form.profile = RectangleProfile(0.0, 0.0, 1.0, 2.0);
  form.axis = {0.0, 1.0, 0.0};
  form.angle = 2.0 * kPi;
  ExpectClosed(Evaluate(SolidOf(form)), 2.0 * kPi, 1e-3);
  form.angle = -kPi;
  ExpectClosed(Evaluate(SolidOf(form)), kPi, 1e-3);
}

TEST(Body, OfATurnAboutAnAxisThroughTheProfileCrossesItself) {
  Revolution form;
  form.profile = RectangleProfile(-1.0, 0.0, 1.0, 2.0);
  form.axis = {0.0, 1.0, 0.0};
  form.angle = 1.0;
  EXPECT_EQ(ReasonOf(Evaluate(SolidOf(form))), LossReason::kSelfIntersecting);
}

TEST(Body, OfADiskAlongALineIsACylinder) {
  SweptDisk form;
  form.directrix.points = {{0.0, 0.0, 0.0}, {0.0, 0.0, 3.0}};
  form.radius = 1.0;
  ExpectClosed(Evaluate(SolidOf(form)), 3.0 * kPi, 2e-3);
  form.innerRadius = 0.5;
  ExpectClosed(Evaluate(SolidOf(form)), 2.25 * kPi, 2e-3);
}

TEST(Body, OfADiskRoundACornerIsMitred) {
  SweptDisk form;
  form.directrix.points = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 3.0, 0.0}};
  form.radius = 0.1;
  const BodyResult result = Evaluate(SolidOf(form));
  // A mitre takes on one side what it adds on the other.
  ExpectClosed(result, 0.05 * kPi, 3e-4);
  EXPECT_NEAR(result.body.box.max.x, 2.1, 1e-4);
  EXPECT_NEAR(result.body.box.min.y, -0.1, 1e-4);
}

TEST(Body, OfADiskAlongACircleIsATorus) {
  SweptDisk form;
  form.directrix.points = {{1.0, 0.0, 0.0}, {-1.0, 0.0, 0.0}};
  form.directrix.arcs = {{0, {0.0, 1.0, 0.0}}, {1, {0.0, -1.0, 0.0}}};
  form.directrix.isClosed = true;
  form.radius = 0.1;
  form.innerRadius = 0.05;
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 2.0 * kPi * kPi * 0.0075, 1e-3);
}

TEST(Body, OfAProfileAlongACurveKeepsItsXAxisSquareToTheReference) {
  SweptCurve form;
  form.profile = RectangleProfile(-0.1, 0.0, 0.1, 1.0);
  form.directrix.points = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 3.0, 0.0}};
  const BodyResult result = Evaluate(SolidOf(form));
  ExpectClosed(result, 1.0, 1e-9);
  EXPECT_NEAR(result.body.box.max.z, 1.0, 1e-9);
  EXPECT_NEAR(result.body.box.min.y, -0.1, 1e-9);
}

TEST(Body, OfACurveAlongTheReferenceIsDegenerate) {
  SweptCurve form;
  form.profile = RectangleProfile(-0.1, 0.0, 0.1, 1.0);
  form.directrix.points = {{0.0, 0.0, 0.0}, {0.0, 0.0, 2.0}};
  EXPECT_EQ(ReasonOf(Evaluate(SolidOf(form))), LossReason::kDegenerate);
}

TEST(Body, OfShellsSubtractsVoids) {
  Shells form;
  form.shells = {BoxMesh({0.0, 0.0, 0.0}, {3.0, 3.0, 3.0}),
                 BoxMesh({1.0, 1.0, 1.0}, {2.0, 2.0, 2.0})};
  ExpectClosed(Evaluate(SolidOf(form)), 26.0);
}

TEST(Body, OfAShellTurnsItsFacesOutwards) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 2.0, 3.0});
  Mesh mixed;
  mixed.points = box.points;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    std::vector<Mesh::Index> points(loop.begin(), loop.end());
    if (face != 2) std::reverse(points.begin(), points.end());
    mixed.AddFace(points);
  }
  EXPECT_FALSE(IsClosed(mixed));
  ExpectClosed(Evaluate(SolidOf(Shells{{mixed}, false})), 6.0);
}

TEST(Body, OfAShellWeldsPointsThatEachFaceHasForItself) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 2.0, 3.0});
  Mesh loose;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    std::vector<Mesh::Index> points;
    for (const Mesh::Index p : box.LoopOf(face, 0)) {
      points.push_back(static_cast<Mesh::Index>(loose.points.size()));
      loose.points.push_back(box.points[p] + Vector3(1e6, 2e-8 * static_cast<double>(face), 0.0));
    }
    loose.AddFace(points);
  }
  const BodyResult result = Evaluate(SolidOf(Shells{{loose}, false}));
  ExpectClosed(result, 6.0, 1e-6);
  EXPECT_EQ(result.body.mesh.points.size(), 8U);
}

TEST(Body, OfAShellTurnsHolesAgainstTheirFace) {
  const Mesh tube = TubeMesh();
  Mesh wrong;
  wrong.points = tube.points;
  for (std::size_t face = 0; face < tube.FaceCount(); ++face) {
    wrong.BeginFace();
    for (std::size_t i = 0; i < tube.LoopCount(face); ++i) {
      const Mesh::Loop loop = tube.LoopOf(face, i);
      std::vector<Mesh::Index> points(loop.begin(), loop.end());
      if (i > 0) std::reverse(points.begin(), points.end());
      wrong.AddLoop(points);
    }
  }
  ExpectClosed(Evaluate(SolidOf(Shells{{wrong}, false})), 9.0);
}

TEST(Body, OfAShellWhoseNeighboursDivideAnEdgeIsClosed) {
  Mesh mesh = BoxMesh({0.0, 0.0, 0.0}, {2.0, 1.0, 1.0});
  Mesh divided;
  divided.points = mesh.points;
  divided.points.insert(divided.points.end(), {{1.0, 0.0, 0.0}, {1.0, 0.0, 1.0}});
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Mesh::Loop loop = mesh.LoopOf(face, 0);
    if (face != 2) {
      divided.AddFace({loop.begin(), loop.end()});
    } else {
      divided.AddFace({0, 8, 9, 4});
      divided.AddFace({8, 1, 5, 9});
    }
  }
  EXPECT_FALSE(IsClosed(divided));
  ExpectClosed(Evaluate(SolidOf(Shells{{divided}, false})), 2.0);
}

TEST(Body, OfAShellWithRoundedCoordinatesIsClosed) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 2.0, 3.0});
  Mesh loose;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    std::vector<Mesh::Index> points;
    for (const Mesh::Index p : box.LoopOf(face, 0)) {
      points.push_back(static_cast<Mesh::Index>(loose.points.size()));
      loose.points.push_back(box.points[p] + Vector3(2e-6 * static_cast<double>(face % 3), 0, 0));
    }
    loose.AddFace(points);
  }
  ExpectClosed(Evaluate(SolidOf(Shells{{loose}, false})), 6.0, 1e-4);
}

TEST(Body, OfAnOpenShellIsNotClosed) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  Mesh open;
  open.points = box.points;
  for (std::size_t face = 0; face < 5; ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    open.AddFace({loop.begin(), loop.end()});
  }
  const BodyResult result = Evaluate(SolidOf(Shells{{open}, false}));
  ASSERT_FALSE(result.fault.has_value());
  EXPECT_FALSE(result.body.isClosed);
  EXPECT_EQ(result.body.mesh.FaceCount(), 5U);
  EXPECT_NEAR(result.body.box.max.x, 1.0, 1e-12);
}

TEST(Body, OfSurfaceModelsThatHoldOneFaceEachIsClosed) {
  const Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 2.0, 3.0});
  std::vector<SolidPointer> items;
  for (std::size_t face = 0; face < box.FaceCount(); ++face) {
    const Mesh::Loop loop = box.LoopOf(face, 0);
    std::vector<Mesh::Index> points(loop.begin(), loop.end());
    if (face % 2 == 1) std::reverse(points.begin(), points.end());
    Shells form;
    form.isSurface = true;
    Mesh& shell = form.shells.emplace_back();
    shell.points = box.points;
    shell.AddFace(points);
    items.push_back(SolidOf(std::move(form)));
  }
  const BodyResult result = EvaluateBody(items, Transform3());
  ExpectClosed(result, 6.0);
  EXPECT_EQ(result.body.solidCount, 1U);
  items.pop_back();
  EXPECT_FALSE(EvaluateBody(items, Transform3()).body.isClosed);
}

TEST(Body, OfASurfaceModelSaysSo) {
  const BodyResult result =
      Evaluate(SolidOf(Shells{{BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 2.0})}, true}));
  ExpectClosed(result, 2.0);
  EXPECT_TRUE(result.body.isSurfaceModel);
}

TEST(Body, OfPrimitivesHasTheVolumeOfTheirFormulas) {
  const auto volume = [](Primitive::Form form, double tolerance, double expected) {
    Primitive solid;
    solid.form = form;
    solid.sizes = {1.0, 1.0, 3.0};
    if (form == Primitive::Form::kBlock) solid.sizes[1] = 2.0;
    ExpectClosed(Evaluate(SolidOf(solid)), expected, tolerance);
  };
  volume(Primitive::Form::kBlock, 1e-12, 6.0);
  volume(Primitive::Form::kPyramid, 1e-12, 1.0);
  volume(Primitive::Form::kCylinder, 2e-3, 3.0 * kPi);
  volume(Primitive::Form::kCone, 2e-3, kPi);
  volume(Primitive::Form::kSphere, 2e-3, 4.0 / 3.0 * kPi);
}

TEST(Body, OfAMirroredMapHasAPositiveVolume) {
  MappedItems mirrored;
  mirrored.transform.x = {-2.0, 0.0, 0.0};
  mirrored.items = {Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})};
  MappedItems outer;
  outer.transform = At(10.0, 0.0, 0.0);
  outer.items = {SolidOf(mirrored)};
  const BodyResult result = Evaluate(SolidOf(outer));
  ExpectClosed(result, 2.0);
  EXPECT_NEAR(result.body.box.min.x, 8.0, 1e-12);
  EXPECT_EQ(result.body.mappedDepth, 2U);
}

TEST(Body, OfAMapThatFlattensIsDegenerate) {
  MappedItems flat;
  flat.transform.z = {0.0, 0.0, 0.0};
  flat.items = {Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})};
  EXPECT_EQ(ReasonOf(Evaluate(SolidOf(flat))), LossReason::kDegenerate);
}

TEST(Body, OfSeveralItemsAddsTheirVolumes) {
  const BodyResult result = EvaluateBody(
      {Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0}), Block({5.0, 0.0, 0.0}, {6.0, 1.0, 2.0})},
      At(100.0, 0.0, 0.0));
  ExpectClosed(result, 3.0);
  EXPECT_EQ(result.body.solidCount, 2U);
  EXPECT_NEAR(result.body.box.max.x, 106.0, 1e-12);
}

TEST(Body, LeavesOutItemsThatCannotBeMade) {
  const BodyResult result = EvaluateBody({SolidOf(Unreadable{LossReason::kUnsupportedItem, 3}),
                                          Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})},
                                         Transform3());
  ExpectClosed(result, 1.0);
  EXPECT_FALSE(result.body.isExact);
}

TEST(Body, NamesTheFirstFault) {
  const BodyResult result = EvaluateBody({SolidOf(Unreadable{LossReason::kDangling, 3}),
                                          Prism(RectangleProfile(0.0, 0.0, 1.0, 1.0), 0.0)},
                                         Transform3());
  EXPECT_EQ(ReasonOf(result), LossReason::kDangling);
  EXPECT_EQ(result.fault->at, 3U);
}

TEST(Body, WithoutADepthOrAnAreaIsDegenerate) {
  EXPECT_EQ(ReasonOf(Evaluate(Prism(RectangleProfile(0.0, 0.0, 1.0, 1.0), 0.0))),
            LossReason::kDegenerate);
  const BodyResult result = Evaluate(Prism(RectangleProfile(0.0, 0.0, 1.0, 0.0), 1.0));
  EXPECT_EQ(ReasonOf(result), LossReason::kDegenerate);
  EXPECT_EQ(result.fault->at, 7U);
}

TEST(Body, OfAnOutlineLikeAnEightCrossesItself) {
  const ProfilePointer eight =
      ProfileOf({{ContourOf({{0.0, 0.0}, {1.0, 1.0}, {1.0, 0.0}, {0.0, 1.0}}), {}}});
  EXPECT_EQ(ReasonOf(Evaluate(Prism(eight, 1.0))), LossReason::kSelfIntersecting);
}

TEST(Body, WithNumbersThatAreNotFiniteIsRefused) {
  EXPECT_EQ(ReasonOf(Evaluate(Prism(RectangleProfile(0.0, 0.0, kNan, 1.0), 1.0))),
            LossReason::kNotFinite);
  EXPECT_EQ(ReasonOf(Evaluate(Prism(RectangleProfile(0.0, 0.0, 1.0, 1.0), kNan))),
            LossReason::kNotFinite);
  EXPECT_EQ(ReasonOf(Evaluate(Prism(RectangleProfile(0.0, 0.0, 1.0, 1.0), 1e300))),
            LossReason::kNotFinite);
  EXPECT_EQ(ReasonOf(EvaluateBody({Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})}, At(0.0, kNan, 0.0))),
            LossReason::kNotFinite);
  Mesh box = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  box.points[3].x = kNan;
  EXPECT_EQ(ReasonOf(Evaluate(SolidOf(Shells{{box}, false}))), LossReason::kNotFinite);
}

TEST(Body, OfNothingHasNoItems) {
  EXPECT_EQ(ReasonOf(EvaluateBody({}, Transform3())), LossReason::kNoItems);
}

TEST(Body, EndsAtTheLimitOfPoints) {
  BodyLimits limits;
  limits.maxPoints = 7;
  const BodyResult result =
      EvaluateBody({Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})}, Transform3(), limits);
  EXPECT_EQ(ReasonOf(result), LossReason::kLimit);
}

TEST(Body, OfMapsThatDoubleAtEachLevelEndsAtTheLimit) {
  SolidPointer item = SolidOf(Unreadable{LossReason::kUnsupportedItem, 3});
  for (int level = 0; level < 50; ++level) item = SolidOf(MappedItems{Transform3(), {item, item}});
  BodyLimits limits;
  limits.maxPoints = 1000;
  EXPECT_EQ(ReasonOf(EvaluateBody({item}, Transform3(), limits)), LossReason::kLimit);
}

TEST(Body, OfADeepNestingEndsAtTheLimit) {
  SolidPointer item = Block({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  for (int level = 0; level < 100'000; ++level) item = SolidOf(MappedItems{Transform3(), {item}});
  EXPECT_EQ(ReasonOf(EvaluateBody({item}, Transform3())), LossReason::kLimit);
  // The destructor of a deep chain would recurse as deep.
  while (item.use_count() == 1 && std::holds_alternative<MappedItems>(item->form)) {
    item = SolidPointer(std::get<MappedItems>(item->form).items[0]);
  }
}

TEST(Body, IsTheSameBitsForTheSameFacts) {
  const auto make = [] {
    return Evaluate(Minus(Block({0.0, 0.0, 0.0}, {5.0, 0.3, 3.0}),
                          SolidOf(Below({0.0, 0.0, 2.0}, {0.6, 0.0, -0.8}))));
  };
  const BodyResult a = make();
  const BodyResult b = make();
  ASSERT_EQ(a.body.mesh.points.size(), b.body.mesh.points.size());
  for (std::size_t i = 0; i < a.body.mesh.points.size(); ++i) {
    EXPECT_EQ(a.body.mesh.points[i].x, b.body.mesh.points[i].x);
    EXPECT_EQ(a.body.mesh.points[i].z, b.body.mesh.points[i].z);
  }
}

TEST(Closedness, NeedsEachEdgeOnceInEachDirection) {
  EXPECT_TRUE(IsClosed(BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0})));
  EXPECT_FALSE(IsClosed(Mesh()));
  Mesh triangle;
  triangle.points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
  triangle.AddFace({0, 1, 2});
  EXPECT_FALSE(IsClosed(triangle));
  triangle.AddFace({2, 1, 0});
  EXPECT_TRUE(IsClosed(triangle));
}

TEST(Volume, IsExactFarFromTheOrigin) {
  EXPECT_NEAR(VolumeOf(BoxMesh({1e6, 2e6, 5e5}, {1e6 + 1.0, 2e6 + 2.0, 5e5 + 3.0})), 6.0, 1e-8);
}

TEST(Box, CountsPointsThatFacesUse) {
  Mesh mesh = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, 1.0});
  mesh.points.emplace_back(50.0, 0.0, 0.0);
  EXPECT_EQ(BoxOf(mesh).max.x, 1.0);
  EXPECT_TRUE(BoxOf(Mesh()).IsEmpty());
}

}  // namespace
}  // namespace KelIFC::building
