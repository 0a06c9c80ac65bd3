#include "kelifc/server/detail/number_index.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <utility>
#include <vector>

namespace KelIFC::detail {
namespace {

constexpr std::uint64_t kMinusOne = 0xFFFFFFFFFFFFFFFF;

TEST(NumberIndex, IsEmptyWhenNew) {
  NumberIndex index;
  EXPECT_EQ(index.GetCount(), 0u);
  EXPECT_EQ(index.GetHighest(), 0u);
  EXPECT_EQ(index.GetHighestBelow(100), 0u);
  EXPECT_EQ(index.GetNext(0), 0u);
  EXPECT_EQ(index.GetLowestFree(), 1u);
  EXPECT_EQ(index.Find(0), NumberIndex::kNone);
  EXPECT_EQ(index.Find(kMinusOne), NumberIndex::kNone);
}

TEST(NumberIndex, IgnoresTheNumberZero) {
  NumberIndex index;
  index.Set(0, 3);
  EXPECT_EQ(index.GetCount(), 0u);
  EXPECT_EQ(index.Find(0), NumberIndex::kNone);
  EXPECT_FALSE(index.Erase(0));
}

TEST(NumberIndex, MovesANumberThatIsSetAgain) {
  NumberIndex index;
  for (const std::uint64_t number : {std::uint64_t{7}, std::uint64_t{1} << 40}) {
    index.Set(number, 1);
    index.Set(number, 2);
    EXPECT_EQ(index.Find(number), 2u);
  }
  EXPECT_EQ(index.GetCount(), 2u);
}

TEST(NumberIndex, VisitsAnyNumbersInAscendingOrder) {
  NumberIndex index;
  for (const std::uint64_t number : {kMinusOne, std::uint64_t{2147483647}, std::uint64_t{5},
                                     std::uint64_t{3}, std::uint64_t{9}}) {
    index.Set(number, 0);
  }
  EXPECT_EQ(index.GetNext(0), 3u);
  EXPECT_EQ(index.GetNext(3), 5u);
  EXPECT_EQ(index.GetNext(5), 9u);
  EXPECT_EQ(index.GetNext(9), 2147483647u);
  EXPECT_EQ(index.GetNext(2147483647), kMinusOne);
  EXPECT_EQ(index.GetNext(kMinusOne), 0u);
  EXPECT_EQ(index.GetHighest(), kMinusOne);
  EXPECT_EQ(index.GetHighestBelow(kMinusOne), 2147483647u);
  EXPECT_EQ(index.GetHighestBelow(9), 5u);
}

TEST(NumberIndex, VisitsAllNumbersWithTheirPositions) {
  NumberIndex index;
  index.Set(kMinusOne, 4);
  index.Set(5, 1);
  index.Set(3, 2);
  std::vector<std::pair<std::uint64_t, std::uint32_t>> visited;
  index.ForEach([&](std::uint64_t number, std::uint32_t position) {
    visited.emplace_back(number, position);
  });
  const std::vector<std::pair<std::uint64_t, std::uint32_t>> expected = {
      {3, 2}, {5, 1}, {kMinusOne, 4}};
  EXPECT_EQ(visited, expected);
}

TEST(NumberIndex, KeepsOutliersWhenTheArrayGrowsPastThem) {
  NumberIndex index;
  index.Set(50000, 1);
  for (std::uint32_t number = 1; number <= 40000; ++number) index.Set(number, number);
  index.Set(60000, 2);
  EXPECT_EQ(index.Find(50000), 1u);
  EXPECT_EQ(index.Find(60000), 2u);
  EXPECT_EQ(index.GetNext(40000), 50000u);
  EXPECT_EQ(index.GetCount(), 40002u);
}

TEST(NumberIndex, HoldsManyNumbersFarApart) {
  NumberIndex index;
  for (std::uint64_t i = 1; i <= 20000; ++i) index.Set(i << 20, static_cast<std::uint32_t>(i));
  EXPECT_EQ(index.GetCount(), 20000u);
  EXPECT_EQ(index.Find(std::uint64_t{777} << 20), 777u);
  EXPECT_EQ(index.GetHighest(), std::uint64_t{20000} << 20);
}

TEST(NumberIndex, FindsTheNewHighestWhenTheHighestIsRemoved) {
  NumberIndex index;
  index.Set(2, 0);
  index.Set(900, 1);
  EXPECT_TRUE(index.Erase(900));
  EXPECT_FALSE(index.Erase(900));
  EXPECT_EQ(index.GetHighest(), 2u);
}

TEST(NumberIndex, ReturnsTheLowestFreeNumber) {
  NumberIndex index;
  for (std::uint32_t number = 1; number <= 10; ++number) index.Set(number, number);
  EXPECT_EQ(index.GetLowestFree(), 11u);
  index.Erase(4);
  EXPECT_EQ(index.GetLowestFree(), 4u);
  index.Set(4, 0);
  EXPECT_EQ(index.GetLowestFree(), 11u);
}

TEST(NumberIndex, IsEmptyAfterClear) {
  NumberIndex index;
  index.Set(1, 0);
  index.Set(kMinusOne, 1);
  index.Clear();
  EXPECT_EQ(index.GetCount(), 0u);
  EXPECT_EQ(index.GetNext(0), 0u);
  EXPECT_EQ(index.GetLowestFree(), 1u);
}

// The standard map that the index must agree with.
class Oracle {
 public:
  std::map<std::uint64_t, std::uint32_t> map;

  std::uint32_t Find(std::uint64_t number) const {
    const auto found = map.find(number);
    return found == map.end() ? NumberIndex::kNone : found->second;
  }
  std::uint64_t GetNext(std::uint64_t number) const {
    const auto above = map.upper_bound(number);
    return above == map.end() ? 0 : above->first;
  }
  std::uint64_t GetHighestBelow(std::uint64_t limit) const {
    const auto above = map.lower_bound(limit);
    return above == map.begin() ? 0 : std::prev(above)->first;
  }
  std::uint64_t GetLowestFree() const {
    std::uint64_t number = 1;
    while (map.count(number) != 0) ++number;
    return number;
  }
};

std::uint64_t RandomNumber(std::mt19937& random) {
  switch (random() % 8) {
    case 0:
      return std::uint64_t{random() % 64} << 20;
    case 1:
      return kMinusOne - random() % 8;
    case 2:
      return 1000 + random() % 4000;
    default:
      return random() % 300;
  }
}

TEST(NumberIndex, ReturnsTheSameAsAStandardMap) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    std::mt19937 random(seed);
    NumberIndex index;
    Oracle oracle;
    for (std::uint32_t step = 0; step < 3000; ++step) {
      const std::uint64_t number = RandomNumber(random);
      if (random() % 3 == 0) {
        ASSERT_EQ(index.Erase(number), oracle.map.erase(number) == 1);
      } else if (number != 0) {
        index.Set(number, step);
        oracle.map[number] = step;
      }
      const std::uint64_t probe = RandomNumber(random);
      ASSERT_EQ(index.Find(probe), oracle.Find(probe));
      ASSERT_EQ(index.GetNext(probe), oracle.GetNext(probe));
      ASSERT_EQ(index.GetHighestBelow(probe), oracle.GetHighestBelow(probe));
      ASSERT_EQ(index.GetLowestFree(), oracle.GetLowestFree());
      ASSERT_EQ(index.GetCount(), oracle.map.size());
      ASSERT_EQ(index.GetHighest(), oracle.map.empty() ? 0 : oracle.map.rbegin()->first);
    }
  }
}

}  // namespace
}  // namespace KelIFC::detail
