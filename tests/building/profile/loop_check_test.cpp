#include "kelifc/building/profile/loop_check.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace KelIFC::building {
namespace {

Outline StarOf(std::size_t count, double radius, const Point2& centre, bool isClockwise) {
  Outline outline;
  for (std::size_t i = 0; i < count; ++i) {
    const double angle =
        2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
    const double reach = i % 2 == 0 ? radius : 0.7 * radius;
    outline.emplace_back(centre.x + reach * std::cos(angle),
                         centre.y + (isClockwise ? -reach : reach) * std::sin(angle));
  }
  return outline;
}

// Both ways of checking, for few points and for many, see the same figures.
class LoopCheck : public testing::TestWithParam<std::size_t> {};

TEST_P(LoopCheck, AcceptsHolesInsideOfTheOuterLoop) {
  const std::size_t count = GetParam();
  EXPECT_TRUE(IsSimple({StarOf(count, 3.0, {}, false),
                        {StarOf(count, 0.5, {1, 0}, true), StarOf(count, 0.4, {-1, 0}, true)}}));
}

TEST_P(LoopCheck, RefusesHolesThatCrossTheOuterLoop) {
  const std::size_t count = GetParam();
  EXPECT_FALSE(IsSimple({StarOf(count, 3.0, {}, false), {StarOf(count, 0.5, {2.5, 0}, true)}}));
}

TEST_P(LoopCheck, RefusesHolesOutside) {
  const std::size_t count = GetParam();
  for (const double x : {-5.0, 5.0}) {
    EXPECT_FALSE(IsSimple({StarOf(count, 3.0, {}, false), {StarOf(count, 0.5, {x, 0}, true)}}));
  }
}

TEST_P(LoopCheck, RefusesHolesThatCrossOrHoldEachOther) {
  const std::size_t count = GetParam();
  const Outline outer = StarOf(count, 3.0, {}, false);
  const Outline hole = StarOf(count, 0.8, {}, true);
  EXPECT_FALSE(IsSimple({outer, {hole, StarOf(count, 0.2, {}, true)}}));
  EXPECT_FALSE(IsSimple({outer, {hole, StarOf(count, 0.7, {0.9, 0.1}, true)}}));
}

TEST_P(LoopCheck, RefusesALoopThatCrossesItself) {
  Outline outline = StarOf(GetParam(), 3.0, {}, false);
  std::swap(outline[2], outline[outline.size() / 2]);
  EXPECT_FALSE(IsSimple({outline, {}}));
}

TEST_P(LoopCheck, AcceptsAHoleThatABridgeJoinsToTheOuterLoop) {
  Outline outline = StarOf(GetParam(), 3.0, {}, false);
  const Outline hole = StarOf(GetParam(), 1.0, {}, true);
  outline.push_back(outline.front());
  outline.insert(outline.end(), hole.begin(), hole.end());
  outline.push_back(hole.front());
  EXPECT_TRUE(IsSimple({outline, {}}));
}

INSTANTIATE_TEST_SUITE_P(Sizes, LoopCheck, testing::Values(12, 40, 1000, 20'000));

TEST(LoopCheck, AcceptsACombOfManyTeeth) {
  Outline comb{{0, -1}, {100, -1}};
  constexpr int kTeeth = 20'000;
  for (int i = 0; i < kTeeth; ++i) {
    const double y = i * 0.001;
    comb.insert(comb.end(), {{100, y}, {100, y + 0.0004}, {1, y + 0.0004}, {1, y + 0.001}});
  }
  comb.emplace_back(0, kTeeth * 0.001);
  EXPECT_TRUE(IsSimple({comb, {}}));
  comb[40'000].x = 1.5;
  comb[40'000].y += 0.01;
  EXPECT_FALSE(IsSimple({comb, {}}));
}

TEST(LoopCheck, AcceptsManyHolesThatTouchTheOuterLoop) {
  FlatRegion region{{{0, 0}, {3, 0}, {3, 1000}, {0, 1000}}, {}};
  for (int i = 0; i < 400; ++i) {
    const double y = 1.0 + 2.0 * i;
    region.holes.push_back({{0, y}, {0, y + 1}, {1, y + 1}, {1, y}});
  }
  EXPECT_TRUE(IsSimple(region));
  region.holes.push_back({{-1, 5}, {-1, 6}, {-0.5, 6}, {-0.5, 5}});
  EXPECT_FALSE(IsSimple(region));
}

TEST(LoopCheck, AcceptsAHoleThatTouchesTheOuterLoop) {
  const Outline square{{0, 0}, {2, 0}, {2, 2}, {0, 2}};
  EXPECT_TRUE(IsSimple({square, {{{1, 0}, {0, 1}, {1, 2}, {2, 1}}}}));
  EXPECT_TRUE(IsSimple({square, {{{0, 1}, {0, 1.5}, {1, 1.5}, {1, 1}}}}));
}

}  // namespace
}  // namespace KelIFC::building
