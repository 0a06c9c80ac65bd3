#include "kelifc/geo/storeys.h"

#include <gtest/gtest.h>

#include "tests/geo/elements.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class Storeys : public HostTest {
 protected:
  static void Add(CoGeoStoreys& storeys, std::uint32_t id, SHORT number) {
    auto storey = CreateOwn<CoGeoStorey>();
    auto& own = OwnOf<CoGeoStorey>(storey);
    own.guid.Data1 = id;
    own.number = number;
    storeys.Append(std::move(storey));
  }

  static _GUID Guid(std::uint32_t id) {
    _GUID guid = {};
    guid.Data1 = id;
    return guid;
  }
};

TEST_F(Storeys, AreFoundByTheirIdentifier) {
  const auto collection = CreateOwn<CoGeoStoreys>();
  auto& storeys = OwnOf<CoGeoStoreys>(collection);
  EXPECT_EQ(storeys.Find(Guid(1)), nullptr);
  Add(storeys, 1, 10);
  Add(storeys, 2, 20);
  ASSERT_NE(storeys.Find(Guid(2)), nullptr);
  EXPECT_EQ(storeys.Find(Guid(2))->number, 20);
  EXPECT_EQ(storeys.Find(Guid(3)), nullptr);
}

TEST_F(Storeys, OfOneIdentifierAreFoundByTheFirst) {
  const auto collection = CreateOwn<CoGeoStoreys>();
  auto& storeys = OwnOf<CoGeoStoreys>(collection);
  Add(storeys, 1, 10);
  Add(storeys, 1, 20);
  ASSERT_NE(storeys.Find(Guid(1)), nullptr);
  EXPECT_EQ(storeys.Find(Guid(1))->number, 10);
}

}  // namespace
}  // namespace KelIFC
