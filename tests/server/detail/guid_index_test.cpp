#include "kelifc/server/detail/guid_index.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace KelIFC::detail {
namespace {

constexpr std::uint32_t kMany = 5000;

// Identifiers that differ in a few bits only, as those of one exporter do.
_GUID Guid(std::uint32_t i) {
  return {0x10000000U + i / 4,
          0x1234,
          static_cast<std::uint16_t>(i % 2),
          {0, 1, 2, 3, 4, 5, 6, static_cast<std::uint8_t>(i % 4 / 2)}};
}

TEST(GuidIndex, FindsNothingAtFirst) {
  const GuidIndex index;
  EXPECT_TRUE(index.IsEmpty());
  EXPECT_EQ(index.Find(Guid(1)), GuidIndex::kNone);
  EXPECT_EQ(index.Find({}), GuidIndex::kNone);
}

TEST(GuidIndex, FindsEachPositionAlsoAfterItHasGrown) {
  GuidIndex index;
  for (std::uint32_t i = 0; i < kMany; ++i) index.Add(Guid(i), 3 * i);
  EXPECT_FALSE(index.IsEmpty());
  for (std::uint32_t i = 0; i < kMany; ++i) ASSERT_EQ(index.Find(Guid(i)), 3 * i);
  EXPECT_EQ(index.Find(Guid(kMany)), GuidIndex::kNone);
}

TEST(GuidIndex, ReturnsTheFirstOfSeveralPositionsWithOneIdentifier) {
  GuidIndex index(2);
  index.Add(Guid(1), 7);
  index.Add(Guid(1), 5);
  EXPECT_EQ(index.Find(Guid(1)), 7u);
}

TEST(GuidIndex, AddsABatchInItsOrder) {
  std::vector<GuidIndex::Entry> entries;
  for (std::uint32_t i = 0; i < 100; ++i) entries.push_back({Guid(i % 60), i});
  GuidIndex index(3);
  index.AddBatch(entries.data(), entries.data());
  EXPECT_TRUE(index.IsEmpty());
  index.AddBatch(entries.data(), entries.data() + 90);
  index.AddBatch(entries.data() + 90, entries.data() + entries.size());
  for (std::uint32_t i = 0; i < 60; ++i) ASSERT_EQ(index.Find(Guid(i)), i);
  EXPECT_EQ(index.Find(Guid(60)), GuidIndex::kNone);
}

TEST(GuidIndex, TakesTheNullIdentifierForAnyOther) {
  GuidIndex index;
  index.Add({}, 4);
  EXPECT_EQ(index.Find({}), 4u);
  EXPECT_EQ(index.Find(Guid(0)), GuidIndex::kNone);
}

TEST(GuidIndex, FindsInACopyWhatItHolds) {
  GuidIndex index;
  for (std::uint32_t i = 0; i < 100; ++i) index.Add(Guid(i), i);
  const GuidIndex copy = index;
  for (std::uint32_t i = 0; i < 100; ++i) ASSERT_EQ(copy.Find(Guid(i)), i);
}

}  // namespace
}  // namespace KelIFC::detail
