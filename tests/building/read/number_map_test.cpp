#include "kelifc/building/facts/number_map.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace KelIFC::building {
namespace {

TEST(NumberMap, FindsWhatWasAdded) {
  NumberMap<std::string> map;
  EXPECT_EQ(map.find(0), map.end());
  EXPECT_TRUE(map.try_emplace(5, "five").second);
  const auto [again, isNew] = map.try_emplace(5, "other");
  EXPECT_FALSE(isNew);
  EXPECT_EQ(again->second, "five");
  map[7] = "seven";
  EXPECT_EQ(map[7], "seven");
  EXPECT_EQ(map.count(7), 1U);
  EXPECT_EQ(map.count(6), 0U);
}

TEST(NumberMap, AgreesWithAStandardMap) {
  NumberMap<std::size_t> map;
  std::map<std::size_t, std::size_t> expected;
  std::size_t number = 1;
  for (std::size_t i = 0; i < 20'000; ++i) {
    number = i % 3 == 0 ? number * 6364136223846793005ULL + i : number + i % 5;
    EXPECT_EQ(map.try_emplace(number, i).second, expected.try_emplace(number, i).second);
  }
  for (const auto& [key, value] : expected) {
    ASSERT_NE(map.find(key), map.end());
    EXPECT_EQ(map.find(key)->second, value);
    EXPECT_EQ(map.count(key + 1), expected.count(key + 1));
  }
}

TEST(NumberMap, LeavesValuesWhereTheyAre) {
  NumberMap<int> map;
  const int& first = map[1];
  for (std::size_t i = 2; i < 10'000; ++i) map[i] = 1;
  EXPECT_EQ(&first, &map[1]);
}

}  // namespace
}  // namespace KelIFC::building
