#include "kelifc/geo/storeys.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"

namespace KelIFC {
namespace {

class Storeys : public HostTest {
 protected:
  /// Appends a storey whose identifier begins with `id`.
  static void Append(const ComPtr<IGeoStoreys>& storeys, std::uint32_t id, SHORT number) {
    const auto storey = CreateOwn<CoGeoStorey>();
    ObjectOf<CoGeoStorey>(storey).guid = Id(id);
    ObjectOf<CoGeoStorey>(storey).number = number;
    ObjectOf<CoGeoStoreys>(storeys).Append(storey);
  }

  static _GUID Id(std::uint32_t id) { return {id, 0, 0, {}}; }

  /// Returns the number of the storey that is found, or -1.
  static SHORT Find(const ComPtr<IGeoStoreys>& storeys, std::uint32_t id) {
    const CoGeoStorey* found = ObjectOf<CoGeoStoreys>(storeys).Find(Id(id));
    return found == nullptr ? SHORT{-1} : found->number;
  }
};

TEST_F(Storeys, AreFoundByTheirIdentifier) {
  const auto storeys = CreateOwn<CoGeoStoreys>();
  Append(storeys, 7, 0);
  Append(storeys, 8, 1);
  EXPECT_EQ(Find(storeys, 7), 0);
  EXPECT_EQ(Find(storeys, 8), 1);
  EXPECT_EQ(Find(storeys, 9), -1);
}

TEST_F(Storeys, ReturnTheFirstWithAnIdentifier) {
  const auto storeys = CreateOwn<CoGeoStoreys>();
  Append(storeys, 7, 0);
  Append(storeys, 7, 1);
  EXPECT_EQ(Find(storeys, 7), 0);
}

TEST_F(Storeys, AreFoundIfTheyAreAddedAfterASearch) {
  const auto storeys = CreateOwn<CoGeoStoreys>();
  EXPECT_EQ(Find(storeys, 7), -1);
  Append(storeys, 7, 0);
  EXPECT_EQ(Find(storeys, 7), 0);
}

TEST_F(Storeys, AreNotFoundWithoutAnIdentifier) {
  const auto storeys = CreateOwn<CoGeoStoreys>();
  Append(storeys, 0, 3);
  EXPECT_EQ(Find(storeys, 0), 3);
  EXPECT_EQ(Find(storeys, 1), -1);
}

TEST_F(Storeys, CompareAllBytesOfAnIdentifier) {
  const auto storeys = CreateOwn<CoGeoStoreys>();
  Append(storeys, 7, 0);
  _GUID other = Id(7);
  other.Data4[7] = 1;
  EXPECT_EQ(ObjectOf<CoGeoStoreys>(storeys).Find(other), nullptr);
}

}  // namespace
}  // namespace KelIFC
