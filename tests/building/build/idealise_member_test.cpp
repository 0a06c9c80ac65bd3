#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>

#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/solid/mesh_tools.h"

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

constexpr double kTiny = 1e-6;

void ExpectPoint(const Point3& p, double x, double y, double z) {
  EXPECT_NEAR(p.x, x, kTiny);
  EXPECT_NEAR(p.y, y, kTiny);
  EXPECT_NEAR(p.z, z, kTiny);
}

void ExpectExact(const Idealisation& element) {
  EXPECT_NEAR(element.deviation, 0.0, kTiny);
  ASSERT_TRUE(element.volumeRatio);
  EXPECT_NEAR(*element.volumeRatio, 1.0, kTiny);
  EXPECT_FALSE(element.isApproximate);
  EXPECT_EQ(element.cutouts, 0u);
}

TEST(IdealiseMember, TakesAColumnFromItsExtrusion) {
  const Sample sample({Prism(RectangleProfile(-0.15, -0.2, 0.15, 0.2), 3.0)}, At(5.0, 6.0, 7.0));
  const Idealisation column = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  EXPECT_EQ(column.source, BodySource::kExtrusion);
  ExpectExact(column);
  ASSERT_EQ(column.member->points.size(), 2u);
  ExpectPoint(column.member->points[0], 5.0, 6.0, 7.0);
  ExpectPoint(column.member->points[1], 5.0, 6.0, 10.0);
  EXPECT_NEAR(column.member->y.x, 1.0, kTiny);
  EXPECT_FALSE(column.member->ends[0]);
  EXPECT_FALSE(column.member->ends[1]);
  EXPECT_NEAR(column.profile->area, 0.12, kTiny);
  EXPECT_NEAR(column.volume, 0.36, kTiny);
  ExpectPoint(column.box.min, 4.85, 5.8, 7.0);
  ExpectPoint(column.box.max, 5.15, 6.2, 10.0);
}

TEST(IdealiseMember, KeepsTheAxisAtTheOriginOfAnEccentricProfile) {
  const Sample sample({PrismAlongX(RectangleProfile(0.0, -0.4, 0.2, 0.0), 5.0)});
  const Idealisation beam = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ExpectExact(beam);
  ExpectPoint(beam.member->points[0], 0.0, 0.0, 0.0);
  ExpectPoint(beam.member->points[1], 5.0, 0.0, 0.0);
  // The axis runs along the left upper edge of the profile.
  EXPECT_NEAR(beam.member->offset.x, -0.1, kTiny);
  EXPECT_NEAR(beam.member->offset.y, 0.2, kTiny);
}

TEST(IdealiseMember, FindsAColumnInItsBoundary) {
  const Sample sample({Block({1.0, 2.0, 0.0}, {1.3, 2.4, 3.0})});
  const Idealisation column = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  ExpectExact(column);
  ExpectPoint(column.member->points[0], 1.15, 2.2, 0.0);
  ExpectPoint(column.member->points[1], 1.15, 2.2, 3.0);
  EXPECT_EQ(column.profile->shape, ProfileShape::kRectangle);
  EXPECT_NEAR((*column.profile)[ProfileParameter::kH], 0.4, kTiny);
  EXPECT_NEAR((*column.profile)[ProfileParameter::kB], 0.3, kTiny);
  EXPECT_NEAR(column.profile->iy, 0.3 * 0.4 * 0.4 * 0.4 / 12, kTiny);
}

TEST(IdealiseMember, FindsABeamFarFromTheOrigin) {
  const Sample sample({Block({0.0, 0.0, 0.0}, {6.0, 0.3, 0.5})}, At(5.2e5, 4.8e6, 100.0));
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ExpectExact(beam);
  ExpectPoint(beam.member->points[0], 5.2e5, 4.8e6 + 0.15, 100.25);
  ExpectPoint(beam.member->points[1], 5.2e5 + 6.0, 4.8e6 + 0.15, 100.25);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kH], 0.5, kTiny);
}

TEST(IdealiseMember, TurnsTheProfileWithARotatedColumn) {
  Transform3 placement;
  const double angle = std::numbers::pi / 6;
  placement.x = {std::cos(angle), std::sin(angle), 0.0};
  placement.y = {-std::sin(angle), std::cos(angle), 0.0};
  const Sample sample({Block({-0.2, -0.2, 0.0}, {0.2, 0.2, 3.0})}, placement);
  const Idealisation column = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  ExpectExact(column);
  EXPECT_EQ(column.profile->shape, ProfileShape::kRectangle);
  EXPECT_NEAR(std::fabs(Dot(column.member->y, placement.x)), 1.0, kTiny);
}

TEST(IdealiseMember, CutsSkewEndsByPlanes) {
  // Seen from the side the beam is a trapezium: 4 m below, 3 m above, 0.5 m high.
  const Sample sample(
      {PrismAlongY(PolygonProfile({{0.0, 0.0}, {4.0, 0.0}, {3.5, 0.5}, {0.5, 0.5}}), 0.3)});
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ExpectExact(beam);
  ASSERT_TRUE(beam.member->ends[0]);
  ASSERT_TRUE(beam.member->ends[1]);
  // At half its height the beam is 0.25 m shorter at both ends.
  ExpectPoint(beam.member->points[0], 0.25, 0.15, 0.25);
  ExpectPoint(beam.member->points[1], 3.75, 0.15, 0.25);
  const double diagonal = std::sqrt(0.5);
  EXPECT_NEAR(beam.member->ends[0]->normal.x, -diagonal, kTiny);
  EXPECT_NEAR(beam.member->ends[1]->normal.x, diagonal, kTiny);
  EXPECT_NEAR(beam.member->ends[1]->normal.z, diagonal, kTiny);
  EXPECT_NEAR(beam.volume, 3.5 * 0.5 * 0.3, kTiny);
}

TEST(IdealiseMember, CountsACopeAsACutOut) {
  // A column of 4 m with a block of 0.1 by 0.4 by 0.2 m cut off at its head.
  const Sample sample(
      {Minus(Block({0.0, 0.0, 0.0}, {0.4, 0.4, 4.0}), Block({0.3, -1.0, 3.8}, {1.0, 1.0, 5.0}))});
  for (const Idealisation& column :
       {sample.BySlices(ElementRole::kMember), sample.ByFacts(ElementRole::kMember)}) {
    ASSERT_EQ(column.kind, ElementKind::kMember);
    EXPECT_NEAR(column.deviation, 0.0, kTiny);
    EXPECT_EQ(column.cutouts, 1u);
    EXPECT_FALSE(column.isApproximate);
    EXPECT_NEAR(*column.volumeRatio, 0.64 / 0.632, kTiny);
    EXPECT_NEAR(column.member->points[1].z, 4.0, kTiny);
  }
  EXPECT_EQ(sample.ByFacts(ElementRole::kMember).source, BodySource::kBoolean);
}

TEST(IdealiseMember, TakesACutAlongTheWholeLengthIntoTheProfile) {
  // A beam of 0.1 by 0.2 m with a rabbet of 0.05 by 0.05 m.
  const Sample sample({Minus(PrismAlongX(RectangleProfile(0.0, 0.0, 0.1, 0.2), 4.0),
                             Block({-1.0, 0.05, 0.15}, {5.0, 1.0, 1.0}))});
  const Idealisation beam = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ExpectExact(beam);
  EXPECT_EQ(beam.source, BodySource::kBoolean);
  EXPECT_NEAR(beam.profile->area, 0.1 * 0.2 - 0.05 * 0.05, kTiny);
}

TEST(IdealiseMember, CountsHolesInTheWebAsCutOuts) {
  const Sample sample({Minus(
      Minus(Block({0.0, 0.0, 0.0}, {6.0, 0.1, 0.5}), Block({1.0, -1.0, 0.2}, {1.2, 1.0, 0.3})),
      Block({4.0, -1.0, 0.2}, {4.2, 1.0, 0.3}))});
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  EXPECT_NEAR(beam.deviation, 0.0, kTiny);
  EXPECT_EQ(beam.cutouts, 2u);
  EXPECT_FALSE(beam.isApproximate);
  EXPECT_NEAR(*beam.volumeRatio, 0.3 / 0.296, kTiny);
}

TEST(IdealiseMember, RecognisesAnIBeamWithFilletsInItsFacets) {
  auto facts = std::make_shared<ProfileFacts>();
  facts->shape = ProfileShape::kI;
  const auto set = [&](ProfileParameter parameter, double value) {
    facts->parameters[static_cast<std::size_t>(parameter)] = value;
  };
  set(ProfileParameter::kH, 0.22);
  set(ProfileParameter::kB, 0.22);
  set(ProfileParameter::kTw, 0.0095);
  set(ProfileParameter::kTf, 0.016);
  set(ProfileParameter::kR, 0.018);
  const Sample sample({PrismAlongX(facts, 5.0)});
  EXPECT_GE(sample.body.mesh.FaceCount(), 30u);
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ExpectExact(beam);
  EXPECT_EQ(beam.profile->shape, ProfileShape::kI);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kTw], 0.0095, 5e-4);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kR], 0.018, 5e-4);
  // The area is that of the plates, and of the fillets the square less a quarter disk.
  const double area = 2 * 0.22 * 0.016 + 0.188 * 0.0095 + (4.0 - std::numbers::pi) * 0.018 * 0.018;
  EXPECT_NEAR(beam.profile->area, area, 1e-5);
  EXPECT_NEAR(beam.member->y.y, 1.0, kTiny);
}

TEST(IdealiseMember, GivesATaperedBeamAProfileAtItsEnd) {
  // The beam is 0.8 m high at its start and 0.4 m at its end; its lower edge rises.
  const Sample sample(
      {PrismAlongY(PolygonProfile({{0.0, 0.0}, {8.0, 0.4}, {8.0, 0.8}, {0.0, 0.8}}), 0.2)});
  const Idealisation beam = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  ASSERT_TRUE(beam.endProfile);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kH], 0.8, kTiny);
  EXPECT_NEAR((*beam.endProfile)[ProfileParameter::kH], 0.4, kTiny);
  ExpectPoint(beam.member->points[0], 0.0, 0.1, 0.4);
  ExpectPoint(beam.member->points[1], 8.0, 0.1, 0.6);
  EXPECT_FALSE(beam.isApproximate);
  EXPECT_LT(beam.deviation, 1e-3);
}

TEST(IdealiseMember, ReadsABeamThatIsExtrudedSideways) {
  // The profile of the extrusion is the elevation: 6 by 0.5 m, with a notch below one end.
  const Sample sample({PrismAlongY(
      PolygonProfile({{0.0, 0.0}, {5.8, 0.0}, {5.8, 0.1}, {6.0, 0.1}, {6.0, 0.5}, {0.0, 0.5}}),
      0.25)});
  const Idealisation beam = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  EXPECT_NEAR(beam.deviation, 0.0, kTiny);
  EXPECT_EQ(beam.cutouts, 1u);
  EXPECT_FALSE(beam.isApproximate);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kH], 0.5, kTiny);
  EXPECT_NEAR((*beam.profile)[ProfileParameter::kB], 0.25, kTiny);
  EXPECT_NEAR(beam.member->points[1].x, 6.0, kTiny);
}

TEST(IdealiseMember, MirrorsTheOutlineAndNotTheAxes) {
  // An angle with legs of 0.1 m (along x) and 0.2 m (along y), 0.01 m thick.
  const ProfilePointer angle =
      PolygonProfile({{0.0, 0.0}, {0.1, 0.0}, {0.1, 0.01}, {0.01, 0.01}, {0.01, 0.2}, {0.0, 0.2}});
  MappedItems mapped;
  mapped.transform.x = {-1.0, 0.0, 0.0};
  mapped.items = {Prism(angle, 3.0)};
  const Sample sample({SolidOf(mapped)});
  const Idealisation column = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  ExpectExact(column);
  const Vector3 x = column.member->points[1] - column.member->points[0];
  EXPECT_NEAR(x.z, 3.0, kTiny);
  EXPECT_NEAR(Length(column.member->y), 1.0, kTiny);
  EXPECT_NEAR(column.profile->area, 0.01 * 0.29, kTiny);
  ExpectPoint(column.box.min, -0.1, 0.0, 0.0);
}

TEST(IdealiseMember, ScalesTheProfileOfAScaledMap) {
  MappedItems mapped;
  mapped.transform.x = {2.0, 0.0, 0.0};
  mapped.transform.y = {0.0, 2.0, 0.0};
  mapped.transform.z = {0.0, 0.0, 2.0};
  mapped.items = {Prism(RectangleProfile(-0.1, -0.1, 0.1, 0.1), 2.0)};
  const Sample sample({SolidOf(mapped)});
  const Idealisation column = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  ExpectExact(column);
  EXPECT_NEAR(column.profile->area, 0.16, kTiny);
  EXPECT_NEAR(column.member->points[1].z, 4.0, kTiny);
}

TEST(IdealiseMember, FollowsTheArcOfARevolvedBeam) {
  // A section of 0.2 by 0.2 m whose centre runs a quarter turn about y at 3 m.
  Revolution form;
  form.profile = RectangleProfile(2.9, -0.1, 3.1, 0.1);
  form.axis = {0.0, 1.0, 0.0};
  form.angle = std::numbers::pi / 2;
  const Sample sample({SolidOf(form)});
  const Idealisation beam = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  EXPECT_EQ(beam.source, BodySource::kRevolved);
  EXPECT_EQ(beam.member->curve, CurveForm::kArc);
  ASSERT_EQ(beam.member->points.size(), 3u);
  ExpectPoint(beam.member->points[0], 3.0, 0.0, 0.0);
  ExpectPoint(beam.member->points[1], 3.0 * std::sqrt(0.5), 0.0, -3.0 * std::sqrt(0.5));
  ExpectPoint(beam.member->points[2], 0.0, 0.0, -3.0);
  EXPECT_LT(beam.deviation, 3e-4);
  EXPECT_FALSE(beam.isApproximate);
  EXPECT_NEAR(*beam.volumeRatio, 1.0, 1e-3);
}

TEST(IdealiseMember, FollowsThePathOfASweptDisk) {
  SweptDisk form;
  form.radius = 0.05;
  form.directrix.points = {{0.0, 0.0, 0.0}, {3.0, 0.0, 0.0}, {3.0, 0.0, 2.0}};
  const Sample sample({SolidOf(form)});
  const Idealisation pipe = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(pipe.kind, ElementKind::kMember);
  EXPECT_EQ(pipe.source, BodySource::kSweptDisk);
  EXPECT_EQ(pipe.member->curve, CurveForm::kPolyline);
  ASSERT_EQ(pipe.member->points.size(), 3u);
  EXPECT_EQ(pipe.profile->shape, ProfileShape::kCircle);
  EXPECT_LT(pipe.deviation, 1e-3);
  EXPECT_FALSE(pipe.isApproximate);
}

// A closed polygonal bar along z whose sides are cut into triangles.
Mesh TriangulatedBar(double radius, Mesh::Index corners, double length) {
  Mesh mesh;
  std::vector<Mesh::Index> bottom;
  std::vector<Mesh::Index> top;
  for (Mesh::Index i = 0; i < corners; ++i) {
    const double angle = 2.0 * std::numbers::pi * i / corners;
    for (const double z : {0.0, length}) {
      mesh.points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), z);
    }
    bottom.insert(bottom.begin(), 2 * i);
    top.push_back(2 * i + 1);
  }
  for (Mesh::Index i = 0; i < corners; ++i) {
    const Mesh::Index low = 2 * i;
    const Mesh::Index next = 2 * ((i + 1) % corners);
    mesh.AddFace(std::vector<Mesh::Index>{low, next, next + 1});
    mesh.AddFace(std::vector<Mesh::Index>{low, next + 1, low + 1});
  }
  mesh.AddFace(bottom);
  mesh.AddFace(top);
  return mesh;
}

TEST(IdealiseMember, IsNotTurnedByTheDiagonalsOfNarrowFaces) {
  EvaluatedBody body;
  body.mesh = TriangulatedBar(0.3, 24, 12.0);
  body.volume = VolumeOf(body.mesh);
  body.isClosed = true;
  body.solidCount = 1;
  const Idealisation pile = Idealise({&body, nullptr, ElementRole::kMember});
  ASSERT_EQ(pile.kind, ElementKind::kMember);
  EXPECT_NEAR(Length(pile.member->points[1] - pile.member->points[0]), 12.0, 1e-6);
  EXPECT_FALSE(pile.member->ends[0]);
  EXPECT_FALSE(pile.member->ends[1]);
  EXPECT_NEAR(pile.deviation, 0.0, 1e-6);
}

TEST(IdealiseMember, UnitesPiecesThatStandOnEachOther) {
  // The lower piece has a corner more, so the faces between them differ.
  const Sample sample(
      {Prism(PolygonProfile({{0.0, 0.0}, {0.1, 0.0}, {0.3, 0.0}, {0.3, 0.4}, {0.0, 0.4}}), 1.0),
       Prism(RectangleProfile(0.0, 0.0, 0.3, 0.4), 2.0, At(0.0, 0.0, 1.0))});
  const Idealisation column = sample.BySlices(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  EXPECT_NEAR(Length(column.member->points[1] - column.member->points[0]), 3.0, 1e-6);
  EXPECT_NEAR(*column.volumeRatio, 1.0, 1e-6);
  EXPECT_EQ(column.cutouts, 0U);
}

TEST(IdealiseMember, EndsInTheOutermostPlaneThatCoversTheSection) {
  // The end face of the lower bar lies inside of the upper one.
  EvaluatedBody body;
  body.mesh = BoxMesh({0.0, 0.0, 0.0}, {0.21, 0.21, 2.0});
  Append(body.mesh, BoxMesh({0.0, 0.0, 1.0}, {0.2, 0.2, 3.0}));
  body.solidCount = 1;
  idealising::Boundary boundary(body);
  const idealising::FoundEnd end = idealising::FindEnd(boundary, {0.0, 0.0, 1.0}, 0.04);
  EXPECT_TRUE(end.isSquare);
  EXPECT_NEAR(end.point.z + boundary.Centre().z, 3.0, kTiny);
}

// A section in the plane of world x and z that turns about world z, cut into chords.
EvaluatedBody Turned(const Outline& section, double angle, int chords) {
  EvaluatedBody body;
  const auto count = static_cast<Mesh::Index>(section.size());
  std::vector<Mesh::Index> first;
  std::vector<Mesh::Index> last;
  for (int i = 0; i <= chords; ++i) {
    const double turn = angle * i / chords;
    for (const Point2& p : section) {
      body.mesh.points.emplace_back(p.x * std::cos(turn), p.x * std::sin(turn), p.y);
    }
    const Mesh::Index start = static_cast<Mesh::Index>(i) * count;
    for (Mesh::Index k = 0; i > 0 && k < count; ++k) {
      const Mesh::Index next = start + (k + 1) % count;
      body.mesh.AddFace(std::vector<Mesh::Index>{start + k, next, next - count, start + k - count});
    }
  }
  for (Mesh::Index k = 0; k < count; ++k) {
    first.push_back(k);
    last.insert(last.begin(), static_cast<Mesh::Index>(chords) * count + k);
  }
  body.mesh.AddFace(first);
  body.mesh.AddFace(last);
  if (VolumeOf(body.mesh) < 0.0) body.mesh = Flip(body.mesh);
  body.volume = VolumeOf(body.mesh);
  body.isClosed = IsClosed(body.mesh);
  body.solidCount = 1;
  return body;
}

TEST(IdealiseMember, FindsTheArcOfABentBeamInItsBoundary) {
  // A U section of 0.2 by 0.1 m, with its web towards the centre, 8 m from it.
  const EvaluatedBody body = Turned({{8.0, 0.0},
                                     {8.1, 0.0},
                                     {8.1, 0.01},
                                     {8.01, 0.01},
                                     {8.01, 0.19},
                                     {8.1, 0.19},
                                     {8.1, 0.2},
                                     {8.0, 0.2}},
                                    1.0, 24);
  ASSERT_TRUE(body.isClosed);
  const Idealisation beam = Idealise({&body, nullptr, ElementRole::kMember});
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  EXPECT_EQ(beam.member->curve, CurveForm::kArc);
  EXPECT_EQ(beam.profile->shape, ProfileShape::kU);
  EXPECT_FALSE(beam.isApproximate);
  const double centroid = 8.0 + (0.2 * 0.01 * 0.005 + 2 * 0.09 * 0.01 * 0.055) / 0.0038;
  for (const Point3& p : beam.member->points) {
    EXPECT_NEAR(std::hypot(p.x, p.y), centroid, 2e-3);
    EXPECT_NEAR(p.z, 0.1, 1e-4);
  }
}

TEST(IdealiseMember, ReadsFewChordsAsALineWithBends) {
  const EvaluatedBody body = Turned({{4.9, 0.0}, {5.1, 0.0}, {5.1, 0.3}, {4.9, 0.3}}, 1.2, 4);
  const Idealisation beam = Idealise({&body, nullptr, ElementRole::kMember});
  ASSERT_EQ(beam.kind, ElementKind::kMember);
  EXPECT_EQ(beam.member->curve, CurveForm::kPolyline);
  EXPECT_EQ(beam.member->points.size(), 5U);
  EXPECT_FALSE(beam.isApproximate);
}

TEST(IdealiseMember, FindsTheArcOfABentPipe) {
  Outline ring;
  for (int i = 0; i < 16; ++i) {
    const double angle = std::numbers::pi * i / 8;
    ring.emplace_back(2.0 + 0.05 * std::cos(angle), 0.05 * std::sin(angle));
  }
  const EvaluatedBody body = Turned(ring, 1.5, 24);
  const Idealisation pipe = Idealise({&body, nullptr, ElementRole::kMember});
  ASSERT_EQ(pipe.kind, ElementKind::kMember);
  EXPECT_EQ(pipe.member->curve, CurveForm::kArc);
  EXPECT_EQ(pipe.profile->shape, ProfileShape::kCircle);
  EXPECT_FALSE(pipe.isApproximate);
}

}  // namespace
}  // namespace KelIFC::building
