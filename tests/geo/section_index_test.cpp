#include "kelifc/geo/section_index.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <utility>

#include "kelifc/geo/section.h"

namespace KelIFC {
namespace {

using Found = std::optional<std::size_t>;

SectionSizes Circle(double diameter) { return SectionSizes(SECTION_C, diameter); }

/// Finds sections by comparing with all of them.
class PlainIndex {
 public:
  void Add(const SectionSizes& sizes) { all.push_back(sizes); }

  Found Find(const SectionSizes& sizes) const {
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (AreEqual(all[i], sizes)) return i;
    }
    return std::nullopt;
  }

 private:
  static bool AreEqual(const SectionSizes& a, const SectionSizes& b) {
    bool equal = a.kind == b.kind;
    for (std::size_t i = 0; i < a.count; ++i) {
      equal = equal && std::abs(a.values[i] - b.values[i]) < 0.001;
    }
    return equal;
  }

  std::vector<SectionSizes> all;
};

TEST(SectionIndex, FindsSizesThatDifferByLessThanAThousandth) {
  SectionIndex index;
  index.Add(Circle(0.3), 0);
  EXPECT_EQ(index.Find(Circle(0.3004)), Found(0));
  EXPECT_EQ(index.Find(Circle(0.2996)), Found(0));
  EXPECT_EQ(index.Find(Circle(0.3010)), std::nullopt);
  EXPECT_EQ(index.Find(Circle(0.2990)), std::nullopt);
}

TEST(SectionIndex, FindsSizesAcrossTheBordersOfItsCells) {
  for (const double border : {0.002, 0.004, 0.0, -0.002, 1.0, 4.096}) {
    SectionIndex index;
    index.Add(Circle(border - 0.0004), 0);
    EXPECT_EQ(index.Find(Circle(border + 0.0004)), Found(0)) << border;
    EXPECT_EQ(index.Find(Circle(border + 0.0007)), std::nullopt) << border;
  }
}

TEST(SectionIndex, FindsTheLowestNumberAmongSeveral) {
  SectionIndex index;
  index.Add(Circle(0.3008), 0);
  index.Add(Circle(0.3000), 1);
  index.Add(Circle(0.3004), 2);
  EXPECT_EQ(index.Find(Circle(0.3004)), Found(0));
  EXPECT_EQ(index.Find(Circle(0.2996)), Found(1));
}

TEST(SectionIndex, DistinguishesKinds) {
  SectionIndex index;
  index.Add(Circle(0.3), 0);
  EXPECT_EQ(index.Find(SectionSizes(SECTION_THICK, 0.3)), std::nullopt);
}

TEST(SectionIndex, ComparesAllSizes) {
  SectionIndex index;
  index.Add(SectionSizes(SECTION_T, 0.2, 0.5, 0.6, 0.1), 0);
  EXPECT_EQ(index.Find(SectionSizes(SECTION_T, 0.2, 0.5, 0.6, 0.1)), Found(0));
  EXPECT_EQ(index.Find(SectionSizes(SECTION_T, 0.21, 0.5, 0.6, 0.1)), std::nullopt);
  EXPECT_EQ(index.Find(SectionSizes(SECTION_T, 0.2, 0.51, 0.6, 0.1)), std::nullopt);
  EXPECT_EQ(index.Find(SectionSizes(SECTION_T, 0.2, 0.5, 0.61, 0.1)), std::nullopt);
  EXPECT_EQ(index.Find(SectionSizes(SECTION_T, 0.2, 0.5, 0.6, 0.11)), std::nullopt);
}

TEST(SectionIndex, FindsNothingForSizesThatAreNotFinite) {
  constexpr double kInfinite = std::numeric_limits<double>::infinity();
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  for (const double size : {kInfinite, -kInfinite, kNan}) {
    SectionIndex index;
    index.Add(Circle(size), 0);
    EXPECT_EQ(index.Find(Circle(size)), std::nullopt);
    EXPECT_EQ(index.Find(Circle(0.0)), std::nullopt);
  }
}

TEST(SectionIndex, DistinguishesHugeSizes) {
  for (const double size : {1e12, 0x1p43, 0x1p44, 1e20, 1e300, 1.7e308}) {
    SectionIndex index;
    index.Add(Circle(size), 0);
    EXPECT_EQ(index.Find(Circle(size)), Found(0)) << size;
    EXPECT_EQ(index.Find(Circle(-size)), std::nullopt) << size;
    EXPECT_EQ(index.Find(Circle(std::nextafter(size, 0.0) - 0.001)), std::nullopt) << size;
  }
}

TEST(SectionIndex, HandlesManyHugeSizesInLinearTime) {
  // The quotients of all sizes are infinite. In one cell the search would take quadratic time.
  constexpr std::size_t kCount = 100'000;
  const auto at = [](std::size_t i) {
    return Circle(1e307 * (1.0 + 1e-6 * static_cast<double>(i)));
  };
  SectionIndex index;
  for (std::size_t i = 0; i < kCount; ++i) index.Add(at(i), i);
  for (std::size_t i = 0; i < kCount; ++i) ASSERT_EQ(index.Find(at(i)), Found(i));
}

TEST(SectionIndex, FindsNothingAfterClear) {
  SectionIndex index;
  index.Add(Circle(0.3), 0);
  index.Clear();
  EXPECT_EQ(index.Find(Circle(0.3)), std::nullopt);
}

TEST(SectionIndex, AgreesWithALinearSearch) {
  std::mt19937 random(7);
  // The sizes range from close ones around zero, where adjacent cells matter, to large ones.
  for (const double spread : {0.004, 0.05, 1e6}) {
    std::uniform_real_distribution<double> size(-spread, spread);
    std::uniform_int_distribution<int> kind(0, 3);
    const auto draw = [&] {
      switch (kind(random)) {
        case 0:
          return Circle(size(random));
        case 1:
          return SectionSizes(SECTION_THICK, size(random));
        case 2:
          return SectionSizes(SECTION_R, size(random), size(random));
        default:
          return SectionSizes(SECTION_T, size(random), size(random), size(random), size(random));
      }
    };
    SectionIndex index;
    PlainIndex plain;
    for (std::size_t i = 0; i < 500; ++i) {
      const SectionSizes sizes = draw();
      index.Add(sizes, i);
      plain.Add(sizes);
      for (int query = 0; query < 10; ++query) {
        const SectionSizes wanted = query == 0 ? sizes : draw();
        ASSERT_EQ(index.Find(wanted), plain.Find(wanted));
      }
    }
  }
}

}  // namespace
}  // namespace KelIFC
