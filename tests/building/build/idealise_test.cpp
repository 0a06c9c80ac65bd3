#include "kelifc/building/build/idealise.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

#include "kelifc/building/solid/mesh_tools.h"

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

TEST(Idealise, ReadsAStairAsThePrismThatItIs) {
  // Four steps of 0.3 by 0.2 m, 1.2 m wide. It is neither slender nor flat.
  std::vector<Point2> points{{0.0, 0.0}, {1.2, 0.0}};
  for (int i = 4; i > 0; --i) {
    points.emplace_back(0.3 * i, 0.2 * (5 - i));
    points.emplace_back(0.3 * (i - 1), 0.2 * (5 - i));
  }
  const Sample sample({PrismAlongY(PolygonProfile(points), 1.2)});
  for (const Idealisation& stair :
       {sample.ByFacts(ElementRole::kOther), sample.BySlices(ElementRole::kOther)}) {
    EXPECT_NE(stair.kind, ElementKind::kBody);
    EXPECT_FALSE(stair.isApproximate);
    EXPECT_NEAR(stair.volume, 1.2 * 0.3 * 0.2 * 10, 1e-9);
  }
}

// The outline of a tread of 260 by 40 mm whose front is rounded by 24 chords.
std::vector<Point2> TreadWithRoundFront(double x, double z) {
  std::vector<Point2> tread = {{x + 0.26, z}, {x + 0.26, z + 0.04}};
  for (int i = 0; i <= 24; ++i) {
    const double angle = std::numbers::pi * (0.5 + i / 24.0);
    tread.push_back({x + 0.02 * std::cos(angle), z + 0.02 + 0.02 * std::sin(angle)});
  }
  return tread;
}

TEST(Idealise, UnitesTheTreadsAndRisersOfAFlightOfManySteps) {
  std::vector<SolidPointer> items;
  for (int i = 0; i < 20; ++i) {
    const double x = 0.25 * i;
    const double z = 0.17 * i;
    items.push_back(PrismAlongY(PolygonProfile(TreadWithRoundFront(x, z + 0.13)), 1.2));
    items.push_back(PrismAlongY(
        PolygonProfile({{x, z}, {x + 0.01, z}, {x + 0.01, z + 0.13}, {x, z + 0.13}}), 1.2));
  }
  const Idealisation flight = Sample(items).BySlices(ElementRole::kOther);
  ASSERT_EQ(flight.kind, ElementKind::kSurface);
  EXPECT_NEAR(flight.surface->thickness, 1.2, 1e-9);
  EXPECT_FALSE(flight.isApproximate);
  EXPECT_LT(flight.deviation, 1e-6);
}

TEST(Idealise, UnitesAWallWithItsPilasters) {
  const Sample sample({Block({0.0, 0.0, 0.0}, {6.0, 0.2, 3.0}),
                       Block({1.0, 0.2, 0.0}, {1.4, 0.4, 3.0}),
                       Block({4.0, 0.2, 0.0}, {4.4, 0.4, 3.0})});
  const Idealisation wall = sample.BySlices(ElementRole::kWall);
  EXPECT_NE(wall.kind, ElementKind::kBody);
  EXPECT_FALSE(wall.isApproximate);
  EXPECT_NEAR(wall.volume, 3.0 * (6.0 * 0.2 + 2 * 0.4 * 0.2), 1e-6);
}

TEST(Idealise, PrefersAnExactReadingToOneOfBetterProportions) {
  // A flight of twelve steps is nearly a sloping slab; seen from the side, it is a prism.
  std::vector<Point2> points{{0.1, 0.0}, {12 * 0.28, 12 * 0.17 - 0.2}};
  for (int i = 12; i > 0; --i) {
    points.emplace_back(0.28 * i, 0.17 * i);
    points.emplace_back(0.28 * (i - 1), 0.17 * i);
  }
  points.emplace_back(0.0, 0.0);
  const Idealisation flight =
      Sample({PrismAlongY(PolygonProfile(points), 1.2)}).BySlices(ElementRole::kOther);
  EXPECT_NE(flight.kind, ElementKind::kBody);
  EXPECT_FALSE(flight.isApproximate);
  EXPECT_NEAR(flight.deviation, 0.0, 1e-6);
}

TEST(Idealise, TakesACavityForNoPart) {
  Mesh mesh = BoxMesh({0.0, 0.0, 0.0}, {0.3, 0.3, 3.0});
  Append(mesh, Flip(BoxMesh({0.1, 0.1, 1.0}, {0.2, 0.2, 1.5})));
  EvaluatedBody body;
  body.volume = VolumeOf(mesh);
  body.isClosed = true;
  body.solidCount = 1;
  body.mesh = mesh;
  const Idealisation column = Idealise({&body, nullptr, ElementRole::kMember});
  ASSERT_EQ(column.kind, ElementKind::kMember);
  EXPECT_NE(column.source, BodySource::kMulti);
  EXPECT_EQ(column.cutouts, 1U);
}

TEST(Idealise, LeavesASphereABody) {
  Primitive form;
  form.form = Primitive::Form::kSphere;
  form.sizes = {1.0, 1.0, 1.0};
  for (const ElementRole role : {ElementRole::kMember, ElementRole::kSlab, ElementRole::kOther}) {
    EXPECT_EQ(Sample({SolidOf(form)}).BySlices(role).kind, ElementKind::kBody);
  }
}

TEST(Idealise, CallsSeparateRegionsMulti) {
  Region first{Rectangle(0.0, 0.0, 0.1, 0.2), {}};
  Region second{Rectangle(0.5, 0.0, 0.6, 0.2), {}};
  const Sample sample({Prism(ProfileOf({first, second}), 4.0)});
  const Idealisation pair = sample.ByFacts(ElementRole::kMember);
  EXPECT_EQ(pair.kind, ElementKind::kBody);
  EXPECT_EQ(pair.source, BodySource::kMulti);
}

TEST(Idealise, ReadsAnOpenBoundaryAsApproximate) {
  Mesh open;
  open.points = BoxMesh({0.0, 0.0, 0.0}, {0.3, 0.3, 3.0}).points;
  for (const auto& face :
       std::vector<std::vector<Mesh::Index>>{{3, 2, 1, 0}, {0, 1, 5, 4}, {1, 2, 6, 5}}) {
    open.AddFace(face);
  }
  EvaluatedBody body;
  body.mesh = open;
  body.box = BoxOf(open);
  const Idealisation element = Idealise({&body, nullptr, ElementRole::kMember});
  EXPECT_FALSE(element.volumeRatio);
  EXPECT_TRUE(element.isApproximate);
}

TEST(Idealise, SurvivesNumbersThatAreNotFinite) {
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), 1e300}) {
    EvaluatedBody body;
    body.mesh = BoxMesh({0.0, 0.0, 0.0}, {1.0, 1.0, bad});
    const Idealisation element = Idealise({&body, nullptr, ElementRole::kMember});
    EXPECT_EQ(element.kind, ElementKind::kBody);
  }
}

TEST(Idealise, GivesABodyForNothing) {
  EXPECT_EQ(Idealise({}).kind, ElementKind::kBody);
  const EvaluatedBody empty;
  EXPECT_EQ(Idealise({&empty, nullptr, ElementRole::kWall}).kind, ElementKind::kBody);
}

TEST(Idealise, FallsBackToTheBoundaryWhereTheFactsDiffer) {
  // The facts say 3 m, the body is 4 m long.
  Sample sample({Prism(RectangleProfile(-0.1, -0.1, 0.1, 0.1), 3.0)});
  sample.body = Evaluate(Prism(RectangleProfile(-0.1, -0.1, 0.1, 0.1), 4.0)).body;
  const Idealisation column = sample.ByFacts(ElementRole::kMember);
  ASSERT_EQ(column.kind, ElementKind::kMember);
  EXPECT_NEAR(column.member->points[1].z, 4.0, 1e-9);
  EXPECT_NEAR(column.deviation, 0.0, 1e-9);
}

TEST(MadeProfiles, MakesEqualProfilesOnce) {
  MadeProfiles profiles;
  const ProfilePointer first = RectangleProfile(0.0, 0.0, 0.25, 0.5);
  const auto& made = profiles.Get(first, 1.0);
  EXPECT_EQ(&profiles.Get(RectangleProfile(0.0, 0.0, 0.25, 0.5), 1.0), &made);
  ASSERT_TRUE(made);
  EXPECT_NEAR(made->profile.area, 0.125, 1e-12);
  const auto& doubled = profiles.Get(first, 2.0);
  ASSERT_TRUE(doubled);
  EXPECT_NEAR(doubled->profile.area, 0.5, 1e-12);
  auto named = std::make_shared<ProfileFacts>(*first);
  named->name = "R";
  const auto& other = profiles.Get(named, 1.0);
  ASSERT_TRUE(other);
  EXPECT_EQ(other->profile.name, "R");
  EXPECT_EQ(made->profile.name, "");
}

TEST(Idealise, SharesTheProfilesOfElements) {
  const Sample sample({Prism(RectangleProfile(-0.1, -0.1, 0.1, 0.1), 3.0)});
  MadeProfiles profiles;
  const Idealisation own = sample.ByFacts(ElementRole::kMember);
  for (int i = 0; i < 2; ++i) {
    const Idealisation shared =
        Idealise({&sample.body, &sample.product, ElementRole::kMember, &profiles});
    ASSERT_TRUE(shared.profile);
    EXPECT_TRUE(AreSameProfile(*shared.profile, *own.profile));
    EXPECT_EQ(shared.deviation, own.deviation);
  }
  const auto& extrusion = std::get<Extrusion>(sample.product.items[0]->form);
  const PlacedProfile* kept = &*profiles.Get(extrusion.profile, 1.0);
  EXPECT_EQ(kept, &*profiles.Get(extrusion.profile, 1.0));
  EXPECT_NEAR(profiles.Get(extrusion.profile, 2.0)->profile.area, 0.16, 1e-12);
}

TEST(Idealise, DoesNotDependOnTheOrderOfCalls) {
  const Sample sample(
      {Minus(Block({0.0, 0.0, 0.0}, {0.4, 0.4, 4.0}), Block({0.3, -1.0, 3.8}, {1.0, 1.0, 5.0}))});
  const Idealisation first = sample.BySlices(ElementRole::kMember);
  const Idealisation second = sample.BySlices(ElementRole::kMember);
  EXPECT_EQ(first.deviation, second.deviation);
  EXPECT_EQ(first.member->points[1].x, second.member->points[1].x);
  EXPECT_EQ(first.volume, second.volume);
}

}  // namespace
}  // namespace KelIFC::building
