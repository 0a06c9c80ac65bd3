#include "kelifc/core/detail/position_index.h"

#include <gtest/gtest.h>

#include <vector>

namespace KelIFC::detail {
namespace {

class PositionIndexTest : public testing::Test {
 protected:
  void Add(std::size_t key) {
    keys.push_back(key);
    index.Add([this](std::size_t position) { return keys[position]; });
  }
  std::uint32_t Find(std::size_t key) const {
    return index.Find(key, [this](std::size_t position) { return keys[position]; });
  }

  PositionIndex index;
  std::vector<std::size_t> keys;
};

TEST_F(PositionIndexTest, FindsNothingAtFirst) {
  EXPECT_EQ(Find(0), PositionIndex::kNotFound);
  EXPECT_EQ(index.GetCount(), 0U);
}

TEST_F(PositionIndexTest, FindsWhatWasAdded) {
  for (std::size_t i = 0; i < 5000; ++i) Add(i * 7919);
  for (std::size_t i = 0; i < 5000; ++i) EXPECT_EQ(Find(i * 7919), i);
  EXPECT_EQ(Find(1), PositionIndex::kNotFound);
}

TEST_F(PositionIndexTest, FindsTheFirstOfEqualKeys) {
  for (int round = 0; round < 200; ++round) {
    Add(5);
    Add(6);
  }
  EXPECT_EQ(Find(5), 0U);
  EXPECT_EQ(Find(6), 1U);
  EXPECT_EQ(index.GetCount(), 400U);
}

TEST_F(PositionIndexTest, ForgetsEverythingWhenItIsDropped) {
  Add(5);
  index.Drop();
  EXPECT_EQ(index.GetCount(), 0U);
  EXPECT_EQ(Find(5), PositionIndex::kNotFound);
  keys.clear();
  Add(5);
  EXPECT_EQ(Find(5), 0U);
}

}  // namespace
}  // namespace KelIFC::detail
