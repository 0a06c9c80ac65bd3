#include "kelifc/building/build/reading_cache.h"

#include <gtest/gtest.h>

#include "tests/building/build/idealise_samples.h"

namespace KelIFC::building {
namespace {

using idealising::ReadingCache;

Idealisation ByCache(const Sample& sample, ElementRole role, ReadingCache& readings) {
  return Idealise({&sample.body, &sample.product, role, nullptr, &readings});
}

void ExpectEqual(const Idealisation& a, const Idealisation& b) {
  EXPECT_EQ(a.kind, b.kind);
  EXPECT_EQ(a.source, b.source);
  EXPECT_EQ(a.box.min.x, b.box.min.x);
  EXPECT_EQ(a.box.max.z, b.box.max.z);
  EXPECT_EQ(a.volume, b.volume);
  EXPECT_EQ(a.deviation, b.deviation);
  EXPECT_EQ(a.volumeRatio, b.volumeRatio);
  EXPECT_EQ(a.isApproximate, b.isApproximate);
  ASSERT_EQ(a.member.has_value(), b.member.has_value());
  ASSERT_EQ(a.surface.has_value(), b.surface.has_value());
  if (a.member) {
    ASSERT_EQ(a.member->points.size(), b.member->points.size());
    for (std::size_t i = 0; i < a.member->points.size(); ++i) {
      EXPECT_EQ(a.member->points[i].x, b.member->points[i].x);
      EXPECT_EQ(a.member->points[i].y, b.member->points[i].y);
      EXPECT_EQ(a.member->points[i].z, b.member->points[i].z);
    }
    EXPECT_EQ(a.profile->name, b.profile->name);
    EXPECT_EQ(a.profile->parameters, b.profile->parameters);
  }
  if (a.surface) {
    EXPECT_EQ(a.surface->thickness, b.surface->thickness);
    EXPECT_EQ(a.surface->reference, b.surface->reference);
    EXPECT_EQ(a.surface->normal.x, b.surface->normal.x);
    EXPECT_EQ(a.surface->outline.size(), b.surface->outline.size());
  }
}

Sample Column(double x, const std::string& name = {}) {
  auto profile = std::make_shared<ProfileFacts>(*RectangleProfile(-0.25, -0.125, 0.25, 0.125));
  profile->name = name;
  return Sample({Prism(profile, 3.0)}, At(x, 2.0, 0.0));
}

TEST(ReadingCache, ChangesNoIdealisation) {
  ReadingCache readings;
  const std::vector<Sample> samples = {
      Column(1.0),
      Column(8.0),
      Column(8.0, "C1"),
      Sample({Block({0.0, 0.0, 0.0}, {4.0, 0.25, 3.0})}),
      Sample({Block({0.0, 0.0, 0.0}, {4.0, 0.25, 3.0})}, At(16.0, 0.0, 3.0)),
      Sample({Minus(Block({0.0, 0.0, 0.0}, {4.0, 0.25, 3.0}),
                    SolidOf(Below({0.0, 0.0, 2.5}, {-0.6, 0.0, -0.8})))}),
  };
  for (const ElementRole role : {ElementRole::kMember, ElementRole::kWall, ElementRole::kOther}) {
    for (const Sample& sample : samples) {
      ExpectEqual(ByCache(sample, role, readings), sample.ByFacts(role));
    }
  }
}

TEST(ReadingCache, MovesAReadingToThePlaceOfTheElement) {
  ReadingCache readings;
  const Idealisation first = ByCache(Column(1.0), ElementRole::kMember, readings);
  const Idealisation second = ByCache(Column(8.0), ElementRole::kMember, readings);
  ASSERT_TRUE(first.member && second.member);
  EXPECT_NEAR(first.member->points[0].x, 1.0, 1e-12);
  EXPECT_NEAR(second.member->points[0].x, 8.0, 1e-12);
}

TEST(ReadingCache, TakesTheAxisOfEachElement) {
  ReadingCache readings;
  for (const double end : {3.0, -3.0}) {
    Sample column = Column(0.0);
    column.product.axis = SpaceCurve{{{0.0, 0.0, 0.0}, {0.0, 0.0, end}}, {}, false};
    ExpectEqual(ByCache(column, ElementRole::kMember, readings),
                column.ByFacts(ElementRole::kMember));
  }
}

TEST(ReadingCache, TakesTheLayersOfEachElement) {
  ReadingCache readings;
  for (const bool isPositive : {true, false}) {
    Sample wall({Block({0.0, 0.0, 0.0}, {4.0, 0.25, 3.0})});
    wall.product.material.usage = {2, isPositive, 0.0, true};
    wall.product.material.layers.resize(isPositive ? 1 : 2);
    const Idealisation cached = ByCache(wall, ElementRole::kWall, readings);
    ExpectEqual(cached, wall.ByFacts(ElementRole::kWall));
    ASSERT_TRUE(cached.surface);
    EXPECT_EQ(cached.surface->layers.size(), wall.product.material.layers.size());
  }
}

TEST(KeyedCache, KeepsResultsUntilTheKeysAreTooLong) {
  KeyedCache<int> cache;
  cache.Keep("a", 1);
  ASSERT_NE(cache.Find("a"), nullptr);
  EXPECT_EQ(*cache.Find("a"), 1);
  EXPECT_EQ(cache.Find("b"), nullptr);
  cache.Keep(std::string(std::size_t{1} << 24, 'b'), 2);
  EXPECT_EQ(cache.Find("a"), nullptr);
  EXPECT_NE(cache.Find(std::string(std::size_t{1} << 24, 'b')), nullptr);
}

}  // namespace
}  // namespace KelIFC::building
