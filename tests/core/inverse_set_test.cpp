#include "kelifc/core/inverse_set.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace KelIFC {
namespace {

std::vector<std::size_t> NumbersOf(const InverseSet& set) {
  std::vector<std::size_t> numbers;
  for (std::size_t i = 1; i <= set.GetSize(); ++i) numbers.push_back(set.GetItem(i));
  return numbers;
}

using Numbers = std::vector<std::size_t>;

TEST(InverseSet, IsEmptyAtFirst) {
  const InverseSet set;
  EXPECT_EQ(set.GetSize(), 0U);
  EXPECT_FALSE(set.GetItem(1).GetExists());
}

TEST(InverseSet, KeepsNumbersInTheOrderInWhichTheyAreAdded) {
  InverseSet set;
  EXPECT_EQ(set.Add(MEMBER(std::size_t{7})), 1U);
  EXPECT_EQ(NumbersOf(set), (Numbers{7}));
  EXPECT_EQ(set.Add(MEMBER(std::size_t{5})), 2U);
  EXPECT_EQ(set.Add(MEMBER(std::size_t{9})), 3U);
  EXPECT_EQ(NumbersOf(set), (Numbers{7, 5, 9}));
}

TEST(InverseSet, AddsANumberOnce) {
  InverseSet set;
  set.Add(MEMBER(std::size_t{7}));
  EXPECT_EQ(set.Add(MEMBER(std::size_t{7})), 1U);
  EXPECT_EQ(set.GetSize(), 1U);
  set.Add(MEMBER(std::size_t{5}));
  EXPECT_EQ(set.Add(MEMBER(std::size_t{5})), 2U);
  EXPECT_EQ(set.Add(MEMBER(std::size_t{7})), 1U);
  EXPECT_EQ(set.GetSize(), 2U);
}

TEST(InverseSet, ReturnsAnUnsetReferenceOutOfRange) {
  InverseSet set;
  set.Add(MEMBER(std::size_t{7}));
  EXPECT_FALSE(set.GetItem(0).GetExists());
  EXPECT_FALSE(set.GetItem(2).GetExists());
  set.Add(MEMBER(std::size_t{8}));
  EXPECT_FALSE(set.GetItem(0).GetExists());
  EXPECT_FALSE(set.GetItem(3).GetExists());
}

TEST(InverseSet, KeepsTheLargestNumbers) {
  InverseSet set;
  EXPECT_EQ(set.Add(MEMBER(std::size_t{SIZE_MAX})), 1U);
  EXPECT_EQ(set.Add(MEMBER(std::size_t{SIZE_MAX})), 1U);
  EXPECT_EQ(set.Add(MEMBER(std::size_t{SIZE_MAX / 2 + 1})), 2U);
  EXPECT_EQ(NumbersOf(set), (Numbers{SIZE_MAX, SIZE_MAX / 2 + 1}));
}

TEST(InverseSet, CopiesItsNumbers) {
  InverseSet one;
  one.Add(MEMBER(std::size_t{1}));
  InverseSet many(one);
  many.Add(MEMBER(std::size_t{2}));
  const InverseSet copy(many);
  many.Add(MEMBER(std::size_t{3}));
  EXPECT_EQ(NumbersOf(one), (Numbers{1}));
  EXPECT_EQ(NumbersOf(copy), (Numbers{1, 2}));
  EXPECT_EQ(NumbersOf(many), (Numbers{1, 2, 3}));
  one = many;
  EXPECT_EQ(NumbersOf(one), (Numbers{1, 2, 3}));
  many = InverseSet();
  EXPECT_EQ(many.GetSize(), 0U);
}

TEST(InverseSet, HoldsManyNumbersOnceEach) {
  constexpr std::size_t kCount = 100000;
  InverseSet set;
  for (std::size_t number = 1; number <= kCount; ++number) {
    EXPECT_EQ(set.Add(MEMBER(number)), number);
  }
  EXPECT_EQ(set.Add(MEMBER(kCount / 2)), kCount / 2);
  EXPECT_EQ(set.GetSize(), kCount);
}

}  // namespace
}  // namespace KelIFC
