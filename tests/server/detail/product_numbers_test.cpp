#include "kelifc/server/detail/product_numbers.h"

#include <gtest/gtest.h>

#include <vector>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/server/detail/number_index.h"

namespace KelIFC::detail {
namespace {

// A registry of points, each second of which counts as a product. The number of a slot is ten times
// its position, counted from 1.
class ProductNumbersTest : public testing::Test {
 protected:
  ProductNumbersTest() {
    for (std::size_t i = 0; i < points.size(); ++i) {
      slots.push_back(&points[points.size() - 1 - i]);
      numbers.Set(10 * (i + 1), static_cast<std::uint32_t>(i));
      if (i % 2 != 0) continue;
      products.push_back(static_cast<std::uint32_t>(i));
      ids.push_back(10 * (i + 1));
    }
  }
  void Build() { table.Build(slots.data(), products, ids, numbers); }

  std::vector<IfcCartesianPoint> points = std::vector<IfcCartesianPoint>(100);
  std::vector<IfcUnknown*> slots;
  std::vector<std::uint32_t> products;
  std::vector<std::uint64_t> ids;
  NumberIndex numbers;
  ProductNumbers table;
};

TEST_F(ProductNumbersTest, FindsProductsOnly) {
  Build();
  for (std::size_t i = 0; i < slots.size(); ++i) {
    ASSERT_EQ(table.Find(slots[i]), i % 2 == 0 ? 10 * (i + 1) : 0);
  }
}

TEST_F(ProductNumbersTest, LeavesOutDeletedProductsAndThoseWithoutANumber) {
  IfcUnknown* const deleted = slots[0];
  slots[0] = nullptr;
  numbers.Set(30, 1);  // the number of the slot 2 moves to another instance
  Build();
  EXPECT_EQ(table.Find(deleted), 0u);
  EXPECT_EQ(table.Find(slots[2]), 0u);
  EXPECT_EQ(table.Find(slots[4]), 50u);
}

TEST_F(ProductNumbersTest, NeverDereferencesAPointer) {
  Build();
  EXPECT_EQ(table.Find(reinterpret_cast<const IfcUnknown*>(8)), 0u);
  EXPECT_EQ(table.Find(nullptr), 0u);
}

TEST_F(ProductNumbersTest, IsEmptyAndNotNewAfterItWasDropped) {
  EXPECT_TRUE(table.IsNew());
  table.Drop();
  EXPECT_TRUE(table.IsNew());
  Build();
  EXPECT_FALSE(table.IsNew());
  table.Drop();
  EXPECT_FALSE(table.IsNew());
  EXPECT_EQ(table.Find(slots[0]), 0u);
}

}  // namespace
}  // namespace KelIFC::detail
