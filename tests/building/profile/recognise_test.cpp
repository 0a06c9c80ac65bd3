#include "kelifc/building/profile/recognise.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "kelifc/building/profile/parameter_table.h"
#include "kelifc/building/profile/plane_arc.h"

#include "tests/building/profile/profile_samples.h"

namespace KelIFC::building {
namespace {

using enum ProfileParameter;

class Random {
 public:
  double operator()(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(engine);
  }
  int Count(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }

 private:
  std::mt19937 engine{20};
};

// The chords of a contour; each arc has the given number of them.
Outline ChordsOf(const Contour& contour, int chords) {
  Outline outline;
  ForEachEdge(contour, [&](const Point2& start, const Point2&, const auto& arc) {
    outline.push_back(start);
    const int parts = arc ? chords * (std::abs(arc->sweep) > 3.0 ? 6 : 1) : 1;
    for (int i = 1; i < parts; ++i) outline.push_back(arc->At(static_cast<double>(i) / parts));
  });
  return outline;
}

FlatRegion FlatRegionOf(const Region& region, int chords) {
  FlatRegion flat{ChordsOf(region.outer, chords), {}};
  for (const Contour& hole : region.holes) {
    flat.holes.push_back(ChordsOf(hole, chords));
    std::reverse(flat.holes.back().begin(), flat.holes.back().end());
  }
  return flat;
}

// Turns by quarters and mirrors, keeping the orientation of loops.
FlatRegion Placed(const FlatRegion& region, int quarters, bool isMirrored) {
  FlatRegion placed = region;
  const auto place = [&](Outline& loop) {
    for (Point2& p : loop) {
      if (isMirrored) p.x = -p.x;
      for (int i = 0; i < quarters; ++i) p = {-p.y, p.x};
    }
    if (isMirrored) std::reverse(loop.begin(), loop.end());
  };
  place(placed.outer);
  for (Outline& hole : placed.holes) place(hole);
  return placed;
}

// Random sizes in millimetres.
ProfileFacts RandomSection(ProfileShape shape, Random& random) {
  const double h = random(120, 600);
  const double b = random(80, 100);
  const double t = random(5, 12);
  const double r = random(4, 14);
  const double tf = random(14, 18);
  const double edge = t / 2;
  const double k = random(0.03, 0.08);
  const double b1 = b + random(5, 90);
  switch (shape) {
    case ProfileShape::kI: {
      ProfileFacts facts = FactsOf(shape, {{kH, h}, {kB, b1}, {kTw, t}, {kTf, tf}, {kR, r}});
      if (random.Count(0, 1) == 0) return facts;
      ValueOf(facts.parameters, kR1) = edge * 1e-3;
      ValueOf(facts.parameters, kSlope) = k;
      return facts;
    }
    case ProfileShape::kAsymmetricI: {
      ProfileFacts facts = FactsOf(shape, {{kH, h}, {kB, b}, {kTw, t}, {kTf, tf}, {kR, r}});
      ValueOf(facts.parameters, kB1) = b1 * 1e-3;
      ValueOf(facts.parameters, kTf1) = (tf + 2) * 1e-3;
      ValueOf(facts.parameters, kR1) = (r + 2) * 1e-3;
      return facts;
    }
    case ProfileShape::kU: {
      ProfileFacts facts = FactsOf(shape, {{kH, h}, {kB, b}, {kTw, t}, {kTf, tf}, {kR, r}});
      ValueOf(facts.parameters, kR1) = edge * 1e-3;
      ValueOf(facts.parameters, kSlope) = k;
      return facts;
    }
    case ProfileShape::kL:
      return FactsOf(shape, {{kH, h}, {kB, b1}, {kT, t}, {kR, r}, {kR1, edge}});
    case ProfileShape::kC:
      return FactsOf(shape, {{kH, h}, {kB, b}, {kT, 3}, {kC, random(20, 40)}, {kR, 4}});
    default:
      return FactsOf(shape, {{kH, h}, {kB, b1}, {kTw, t}, {kTf, tf}, {kR, r}, {kR1, edge}});
  }
}

ProfileFacts RandomFacts(ProfileShape shape, Random& random) {
  const double h = random(120, 600);
  const double b = random(80, 300);
  const double t = random(5, 12);
  const double r = random(4, 14);
  switch (shape) {
    case ProfileShape::kRectangle:
      return FactsOf(shape, {{kH, h}, {kB, b}});
    case ProfileShape::kRoundedRectangle:
      return FactsOf(shape, {{kH, h}, {kB, b}, {kR, r}});
    case ProfileShape::kHollowRectangle:
      return FactsOf(shape, {{kH, h}, {kB, b}, {kT, t}, {kR, r + t}, {kR1, r}});
    case ProfileShape::kCircle:
      return FactsOf(shape, {{kD, h}});
    case ProfileShape::kHollowCircle:
      return FactsOf(shape, {{kD, h}, {kT, t}});
    case ProfileShape::kTrapezium:
      return FactsOf(shape, {{kH, h}, {kB, b + 50}, {kB1, b}, {kOffset, random(-40, 20)}});
    default:
      return RandomSection(shape, random);
  }
}

class RecogniseShape : public testing::TestWithParam<ProfileShape> {};

TEST_P(RecogniseShape, GivesShapeAndSizesBackInFourPositions) {
  Random random;
  for (int i = 0; i < 100; ++i) {
    const ProfileFacts facts = RandomFacts(GetParam(), random);
    const auto regions = RegionsOf(facts);
    ASSERT_EQ(regions.size(), 1U);
    const int chords = random.Count(2, 20);
    const FlatRegion flat = FlatRegionOf(regions[0], chords);
    for (int position = 0; position < 4; ++position) {
      const auto found = Recognise(Placed(flat, position / 2 * 2, position % 2 == 1));
      ASSERT_TRUE(found) << chords << " chords, position " << position;
      ASSERT_EQ(found->shape, GetParam()) << chords;
      for (std::size_t at = 0; at < kProfileParameterCount; ++at) {
        const auto parameter = static_cast<ProfileParameter>(at);
        if (GetParam() == ProfileShape::kTrapezium && position > 0) continue;
        if (GetParam() == ProfileShape::kAsymmetricI && position > 1) continue;
        EXPECT_NEAR(found->parameters[at], facts.parameters[at], 1e-6) << TextOf(parameter);
      }
    }
  }
}

TEST_P(RecogniseShape, StaysArbitraryTurnedUnlessItIsARectangleACircleOrAnL) {
  Random random;
  const ProfileShape shape = GetParam();
  const bool isRound = shape == ProfileShape::kCircle || shape == ProfileShape::kHollowCircle;
  for (int i = 0; i < 20; ++i) {
    const ProfileFacts facts = RandomFacts(shape, random);
    const FlatRegion flat = FlatRegionOf(RegionsOf(facts).at(0), 5);
    for (const bool isMirrored : {false, true}) {
      const auto found = Recognise(Placed(flat, 1, isMirrored));
      ASSERT_EQ(found.has_value(), isRound || IsTurnable(shape));
      if (!found || isRound) continue;
      EXPECT_EQ(found->shape, shape);
      EXPECT_NEAR(ValueOf(found->parameters, kH), ValueOf(facts.parameters, kB), 1e-6);
      EXPECT_NEAR(ValueOf(found->parameters, kB), ValueOf(facts.parameters, kH), 1e-6);
    }
  }
}

TEST_P(RecogniseShape, IsFoundAfterSlicingInAnyRotation) {
  Random random;
  for (int i = 0; i < 20; ++i) {
    const ProfileFacts facts = RandomFacts(GetParam(), random);
    FlatRegion flat = FlatRegionOf(RegionsOf(facts).at(0), 6);
    const Transform2 turn = Rotated(random(-4.0, 4.0));
    for (Point2& point : flat.outer) point = turn(point);
    for (Outline& hole : flat.holes) {
      for (Point2& point : hole) point = turn(point);
    }
    const SlicedProfile sliced = MakeProfile(flat, "");
    EXPECT_EQ(sliced.profile.shape, GetParam());
    EXPECT_GE(sliced.profile.iy * (1.0 + 1e-3), sliced.profile.iz);
  }
}

INSTANTIATE_TEST_SUITE_P(Shapes, RecogniseShape,
                         testing::Values(ProfileShape::kRectangle, ProfileShape::kRoundedRectangle,
                                         ProfileShape::kHollowRectangle, ProfileShape::kCircle,
                                         ProfileShape::kHollowCircle, ProfileShape::kTrapezium,
                                         ProfileShape::kI, ProfileShape::kAsymmetricI,
                                         ProfileShape::kU, ProfileShape::kL, ProfileShape::kT,
                                         ProfileShape::kZ, ProfileShape::kC),
                         [](const auto& info) {
                           std::string name(TextOf(info.param));
                           std::replace(name.begin(), name.end(), '-', '_');
                           return name;
                         });

TEST(Recognise, FindsShapesWithoutFillets) {
  const auto facts = FactsOf(ProfileShape::kI, {{kH, 300}, {kB, 150}, {kTw, 7.1}, {kTf, 10.7}});
  const auto found = Recognise(FlatRegionOf(RegionsOf(facts).at(0), 1));
  ASSERT_TRUE(found);
  EXPECT_EQ(found->shape, ProfileShape::kI);
  EXPECT_EQ(ValueOf(found->parameters, kR), 0.0);
}

TEST(Recognise, AllowsPointsRoundedToTenthsOfAMillimetre) {
  const auto facts =
      FactsOf(ProfileShape::kI, {{kH, 220}, {kB, 220}, {kTw, 9.5}, {kTf, 16}, {kR, 18}});
  FlatRegion flat = FlatRegionOf(RegionsOf(facts).at(0), 4);
  for (Point2& p : flat.outer) p = {std::round(p.x * 1e4) / 1e4, std::round(p.y * 1e4) / 1e4};
  const auto found = Recognise(flat);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->shape, ProfileShape::kI);
  EXPECT_NEAR(ValueOf(found->parameters, kR), 0.018, 5e-4);
}

// A slice between two ends whose fillets have different chords has irregular points.
Outline WithIrregularFillets(const Contour& contour, Random& random) {
  Outline outline;
  ForEachEdge(contour, [&](const Point2& start, const Point2&, const auto& arc) {
    outline.push_back(start);
    if (!arc) return;
    const int parts = random.Count(8, 14);
    for (int i = 1; i < parts; ++i) {
      PlaneArc moved = *arc;
      moved.radius += random(-3e-4, 1e-4);
      outline.push_back(moved.At((i + random(-0.3, 0.3)) / parts));
    }
  });
  return outline;
}

TEST(Recognise, AllowsFilletsOfIrregularPoints) {
  Random random;
  for (const ProfileShape shape : {ProfileShape::kI, ProfileShape::kAsymmetricI, ProfileShape::kT,
                                   ProfileShape::kRoundedRectangle}) {
    for (int i = 0; i < 20; ++i) {
      const ProfileFacts facts = RandomFacts(shape, random);
      const Region region = RegionsOf(facts).at(0);
      const auto found = Recognise({WithIrregularFillets(region.outer, random), {}});
      ASSERT_TRUE(found) << TextOf(shape) << ' ' << i;
      EXPECT_EQ(found->shape, shape);
      EXPECT_NEAR(ValueOf(found->parameters, kR), ValueOf(facts.parameters, kR), 5e-4);
    }
  }
}

TEST(Recognise, LeavesOutlinesThatDifferByAMillimetre) {
  const auto facts = FactsOf(ProfileShape::kI, {{kH, 300}, {kB, 150}, {kTw, 7.1}, {kTf, 10.7}});
  FlatRegion flat = FlatRegionOf(RegionsOf(facts).at(0), 1);
  flat.outer[3].x += 0.0012;
  EXPECT_FALSE(Recognise(flat));
  EXPECT_FALSE(Recognise({{{0, 0}, {1, 0}, {1, 1}, {0.5, 1.002}, {0, 1}}, {}}));
  EXPECT_FALSE(Recognise({RegularPolygon(8, 0.2, {}), {}}));
}

TEST(Recognise, LeavesHolesThatAreNotCentred) {
  const Outline outer{{0, 0}, {0.2, 0}, {0.2, 0.2}, {0, 0.2}};
  const auto hole = [](double x) {
    return Outline{{x, 0.01}, {x, 0.19}, {x + 0.18, 0.19}, {x + 0.18, 0.01}};
  };
  EXPECT_TRUE(Recognise({outer, {hole(0.0101)}}));
  EXPECT_FALSE(Recognise({outer, {hole(0.0111)}}));
  EXPECT_FALSE(Recognise({outer, {hole(0.01), hole(0.01)}}));
}

TEST(Recognise, ReturnsForAnyPoints) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(Recognise({}));
  EXPECT_FALSE(Recognise({{{0, 0}, {1, 0}, {1, nan}, {0, 1}}, {}}));
  EXPECT_FALSE(Recognise({Outline(100, Point2(1, 1)), {Outline(3, Point2(1, 1))}}));
  EXPECT_FALSE(Recognise({{{1e300, 1e300}, {-1e300, 1e300}, {0, -1e300}, {5, 5}}, {}}));
}

TEST(Recognise, SetsShapeAndSizesOfAProfile) {
  BuildingProfile profile;
  profile.outline = {{-0.1, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {-0.1, 0.2}};
  EXPECT_TRUE(building::RecogniseShape(profile));
  EXPECT_EQ(profile.shape, ProfileShape::kRectangle);
  EXPECT_NEAR(profile[kH], 0.4, 1e-15);
  profile.outline.pop_back();
  EXPECT_FALSE(building::RecogniseShape(profile));
  EXPECT_EQ(profile.shape, ProfileShape::kArbitrary);
  EXPECT_EQ(profile[kH], 0.0);
}

}  // namespace
}  // namespace KelIFC::building
