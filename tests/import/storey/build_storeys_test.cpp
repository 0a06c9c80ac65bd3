#include "kelifc/import/storey/build_storeys.h"

#include <gtest/gtest.h>

#include "kelifc/geo/storey.h"

#include "tests/geo/failing_factory.h"
#include "tests/geo/host.h"

namespace KelIFC {
namespace {

std::vector<StoreyFacts> FactsAt(const std::vector<double>& levels, double elevation = 9.0) {
  std::vector<StoreyFacts> facts;
  for (const double level : levels) facts.push_back({level, elevation, "", {}, facts.size() + 1});
  return facts;
}

class BuiltStoreys : public HostTest {
 protected:
  HRESULT Build(std::vector<StoreyFacts> facts) {
    storeys = CreateOwn<CoGeoStoreys>();
    return BuildStoreys(static_cast<CoGeoStoreys&>(*storeys), std::move(facts));
  }

  const CoGeoStorey& At(std::size_t index) {
    const auto& collection = static_cast<const CoGeoStoreys&>(*storeys);
    return static_cast<const CoGeoStorey&>(*collection.Items().at(index));
  }

  void TearDown() override {
    storeys.Reset();
    HostTest::TearDown();
  }

  ComPtr<IGeoStoreys> storeys;
};

TEST_F(BuiltStoreys, AreNoneWithoutFacts) {
  EXPECT_EQ(Build({}), S_OK);
  EXPECT_EQ(CountOf(*storeys), 0);
}

TEST_F(BuiltStoreys, ReachUpToTheNextLevel) {
  EXPECT_EQ(Build(FactsAt({3.0, 0.0, -2.5}, -7.0)), S_OK);
  EXPECT_EQ(At(0).height, 2.5);
  EXPECT_EQ(At(1).height, 3.0);
  EXPECT_EQ(At(2).height, -7.0) << "the elevation, whatever it says";
}

TEST_F(BuiltStoreys, AreBasementsOnlyBelowTheTolerance) {
  EXPECT_EQ(Build(FactsAt({-0.0011, -0.001, -0.0009})), S_OK);
  EXPECT_EQ(At(0).number, -1);
  EXPECT_EQ(At(1).number, 0);
  EXPECT_EQ(At(2).number, 1);
}

TEST_F(BuiltStoreys, HaveNoNumberPastSixteenBits) {
  EXPECT_EQ(Build(FactsAt(std::vector<double>(32770, 1.0))), S_OK);
  EXPECT_EQ(At(32766).number, 32766);
  EXPECT_EQ(At(32767).number, kNoStoreyNumber);
  EXPECT_EQ(At(32769).number, kNoStoreyNumber);
}

TEST_F(BuiltStoreys, ShareTheLowestNumberBelowSixteenBits) {
  EXPECT_EQ(Build(FactsAt(std::vector<double>(32770, -1.0))), S_OK);
  EXPECT_EQ(At(0).number, -32768);
  EXPECT_EQ(At(2).number, -32768);
  EXPECT_EQ(At(3).number, -32767);
  EXPECT_EQ(At(32769).number, -1);
}

TEST_F(BuiltStoreys, RemainIfALaterOneCannotBeCreated) {
  const FailingClass failing(CLSID_CoGeoStorey, 2, E_OUTOFMEMORY);
  EXPECT_EQ(Build(FactsAt({0.0, 3.0, 6.0})), E_OUTOFMEMORY);
  EXPECT_EQ(CountOf(*storeys), 2);
  EXPECT_EQ(At(1).height, 3.0);
}

TEST_F(BuiltStoreys, AreNoneIfTheirClassIsMissing) {
  const MissingClass missing(CLSID_CoGeoStorey);
  EXPECT_EQ(Build(FactsAt({0.0})), E_NOINTERFACE);
  EXPECT_EQ(CountOf(*storeys), 0);
}

}  // namespace
}  // namespace KelIFC
