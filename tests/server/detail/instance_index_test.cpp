#include "kelifc/server/detail/instance_index.h"

#include <gtest/gtest.h>

#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/detail/number_index.h"

namespace KelIFC::detail {
namespace {

// A registry of slots for points that other code owns.
class InstanceIndexTest : public testing::Test {
 protected:
  void Append(IfcUnknown* instance) {
    slots.push_back(instance);
    const auto number = slots.size() * 10;
    numbers.Set(number, static_cast<std::uint32_t>(slots.size() - 1));
    if (index.IsBuilt()) index.Append(slots.data(), number);
  }
  void Build() { index.Build(slots.data(), slots.size(), numbers); }
  std::uint32_t Find(const IfcUnknown* instance) {
    return index.FindPosition(slots.data(), instance);
  }

  std::vector<IfcCartesianPoint> points = std::vector<IfcCartesianPoint>(1000);
  std::vector<IfcUnknown*> slots;
  NumberIndex numbers;
  InstanceIndex index;
};

TEST_F(InstanceIndexTest, FindsInstancesFromBeforeAndAfterItWasBuilt) {
  for (int i = 0; i < 500; ++i) Append(&points[i]);
  Build();
  for (int i = 500; i < 1000; ++i) Append(&points[i]);
  for (int i = 0; i < 1000; ++i) {
    ASSERT_EQ(Find(&points[i]), static_cast<std::uint32_t>(i));
    ASSERT_EQ(index.GetNumber(i), static_cast<std::uint64_t>(10 * (i + 1)));
  }
}

TEST_F(InstanceIndexTest, FindsNothingInAnEmptyRegistry) {
  Build();
  EXPECT_EQ(Find(&points[0]), InstanceIndex::kNone);
  EXPECT_EQ(Find(nullptr), InstanceIndex::kNone);
}

TEST_F(InstanceIndexTest, NeverDereferencesAPointer) {
  Append(&points[0]);
  Build();
  EXPECT_EQ(Find(reinterpret_cast<const IfcUnknown*>(8)), InstanceIndex::kNone);
}

TEST_F(InstanceIndexTest, ReturnsTheFirstOfTwoSlots) {
  Append(&points[0]);
  Append(&points[1]);
  Append(&points[0]);
  Build();
  Append(&points[1]);
  EXPECT_EQ(Find(&points[0]), 0u);
  EXPECT_EQ(Find(&points[1]), 1u);
  EXPECT_EQ(index.Remove(slots.data(), &points[0]), (std::vector<std::uint32_t>{0, 2}));
  EXPECT_EQ(index.Remove(slots.data(), &points[1]), (std::vector<std::uint32_t>{1, 3}));
}

TEST_F(InstanceIndexTest, ReturnsTheFirstNullSlot) {
  Append(&points[0]);
  Append(nullptr);
  Append(nullptr);
  Build();
  EXPECT_EQ(Find(nullptr), 1u);
  index.Remove(slots.data(), &points[0]);
  slots[0] = nullptr;
  EXPECT_EQ(Find(nullptr), 0u);
  EXPECT_TRUE(index.Remove(slots.data(), nullptr).empty());
}

TEST_F(InstanceIndexTest, ForgetsANumberThatMoved) {
  Append(&points[0]);
  Build();
  index.DropNumber(0);
  EXPECT_EQ(index.GetNumber(0), 0u);
}

TEST_F(InstanceIndexTest, FindsTheRestAfterInstancesAreRemoved) {
  for (auto& point : points) Append(&point);
  Build();
  for (std::size_t i = 0; i < points.size(); i += 3) {
    ASSERT_EQ(index.Remove(slots.data(), &points[i]).size(), 1u);
    slots[i] = nullptr;
  }
  for (std::size_t i = 0; i < points.size(); ++i) {
    ASSERT_EQ(Find(&points[i]), i % 3 == 0 ? InstanceIndex::kNone : i);
  }
}

TEST_F(InstanceIndexTest, IsUnbuiltAfterClear) {
  Append(&points[0]);
  Build();
  EXPECT_TRUE(index.IsBuilt());
  index.Clear();
  EXPECT_FALSE(index.IsBuilt());
}

}  // namespace
}  // namespace KelIFC::detail
