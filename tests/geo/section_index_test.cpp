#include "kelifc/geo/section_index.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace KelIFC {
namespace {

constexpr LONG kKind = 1;

TEST(SectionIndex, FindsSizesThatDifferByLessThanAThousandth) {
  SectionIndex index;
  index.Add(SectionSizes(kKind, 0.3, 0.5), 7);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3, 0.5)), 7u);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3009, 0.4991)), 7u);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3011, 0.5)), std::nullopt);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3, 0.4989)), std::nullopt);
}

TEST(SectionIndex, KeepsKindsApart) {
  SectionIndex index;
  index.Add(SectionSizes(1, 0.3), 0);
  EXPECT_EQ(index.Find(SectionSizes(2, 0.3)), std::nullopt);
}

TEST(SectionIndex, FindsTheFirstOfSeveral) {
  SectionIndex index;
  index.Add(SectionSizes(kKind, 0.3016), 0);
  index.Add(SectionSizes(kKind, 0.3008), 1);
  index.Add(SectionSizes(kKind, 0.3), 2);
  index.Add(SectionSizes(kKind, 0.3), 3);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3)), 1u);
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.2995)), 2u);
}

TEST(SectionIndex, NeverFindsSizesThatAreNotFinite) {
  SectionIndex index;
  for (const double size :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    index.Add(SectionSizes(kKind, size), 0);
    EXPECT_EQ(index.Find(SectionSizes(kKind, size)), std::nullopt);
  }
}

TEST(SectionIndex, IsEmptyOnceItIsCleared) {
  SectionIndex index;
  index.Add(SectionSizes(kKind, 0.3), 0);
  index.Clear();
  EXPECT_EQ(index.Find(SectionSizes(kKind, 0.3)), std::nullopt);
}

/// The walk over all sections that the index stands for.
std::optional<std::size_t> Walk(const std::vector<SectionSizes>& all, const SectionSizes& sizes) {
  for (std::size_t i = 0; i < all.size(); ++i) {
    bool isEqual = all[i].kind == sizes.kind;
    for (std::size_t k = 0; k < sizes.count; ++k) {
      isEqual = isEqual && std::abs(all[i].values[k] - sizes.values[k]) < 0.001;
    }
    if (isEqual) return i;
  }
  return std::nullopt;
}

TEST(SectionIndex, AgreesWithAWalkOverAllSections) {
  std::mt19937 random(1);
  for (const double spread : {0.004, 0.05, 1e6}) {
    SectionIndex index;
    std::vector<SectionSizes> all;
    std::uniform_real_distribution<double> size(-spread, spread);
    for (int i = 0; i < 3000; ++i) {
      const auto sizes = random() % 2 == 0
                             ? SectionSizes(1, size(random), size(random))
                             : SectionSizes(3, size(random), size(random), size(random), 0.1);
      const auto found = index.Find(sizes);
      ASSERT_EQ(found, Walk(all, sizes));
      if (found && random() % 4 != 0) continue;
      index.Add(sizes, all.size());
      all.push_back(sizes);
    }
  }
}

}  // namespace
}  // namespace KelIFC
