#include <gtest/gtest.h>

#include "kelifc/geo/fill.h"

#include "tests/geo/host.h"

namespace KelIFC {
namespace {

class ElementFill : public HostTest {
 protected:
  template <class Class>
  void ExpectFilter(HRESULT (*fill)(Class&, CoIFCServer&, SHORT)) {
    const auto server = CreateOwn<CoIFCServer>();
    const auto elements = CreateOwn<Class>();
    auto& collection = static_cast<Class&>(*elements);
    auto& source = static_cast<CoIFCServer&>(*server);
    for (const SHORT filter : {0, 1, 32767, -2})
      EXPECT_EQ(fill(collection, source, filter), E_NOTIMPL);
    EXPECT_EQ(fill(collection, source, kAllStoreys), S_OK);
    EXPECT_EQ(collection.Server().Get(), &source);
    EXPECT_EQ(CountOf(*elements), 0);
  }
};

TEST_F(ElementFill, DoesNotSupportAFilterByStorey) {
  ExpectFilter(FillColumns);
  ExpectFilter(FillBeams);
  ExpectFilter(FillWalls);
  ExpectFilter(FillPlates);
  ExpectFilter(FillFoots);
}

TEST_F(ElementFill, LinksTheCollectionToTheServerForAsLongAsItLives) {
  auto server = CreateOwn<CoIFCServer>();
  const auto storeys = CreateOwn<CoGeoStoreys>();
  auto& collection = static_cast<CoGeoStoreys&>(*storeys);
  EXPECT_EQ(collection.Server().Get(), nullptr);
  EXPECT_EQ(FillStoreys(collection, static_cast<CoIFCServer&>(*server)), S_OK);
  EXPECT_EQ(collection.Server().Get(), server.Get());
  server.Reset();
  EXPECT_EQ(collection.Server().Get(), nullptr);
}

}  // namespace
}  // namespace KelIFC
