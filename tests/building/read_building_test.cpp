#include "kelifc/building/read_building.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/building/audit.h"
#include "kelifc/building/difference.h"
#include "kelifc/server/ifc_server.h"

#include "tests/model_files.h"
#include "tests/paths.h"
#include "tests/server/temp_file.h"

// The complete reading of whole models: the examples, and real models if there are any.

namespace KelIFC {
namespace {

/// What a save writes, from the schema on: the head before it has the time.
std::string Saved(IfcServer& server) {
  const TempFile file;
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 0);
  const std::string text = file.Read();
  return text.substr(std::min(text.size(), text.find("FILE_SCHEMA")));
}

LoadOptions IsoOptions() {
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  return options;
}

class BuildingOfModel : public testing::TestWithParam<std::filesystem::path> {
 protected:
  void SetUp() override { ASSERT_EQ(server.LoadIfc(GetParam().string().c_str(), IsoOptions()), 0); }

  IfcServer server;
};

TEST_P(BuildingOfModel, AccountsForEachProduct) {
  const Building building = ReadBuilding(server);
  const BuildingTotals& totals = building.totals;
  const std::size_t elements = totals.members + totals.surfaces + totals.bodies;
  EXPECT_EQ(elements + totals.decomposed + totals.lost, totals.products);
  EXPECT_EQ(building.elements.size(), elements);
  EXPECT_EQ(building.losses.size(), totals.lost);
  std::size_t audited = 0;
  for (const ClassAudit& audit : Audit(building).classes) audited += audit.totals.products;
  EXPECT_EQ(audited, totals.products);
  for (const BuildingLoss& loss : building.losses) {
    EXPECT_NE(loss.line, 0u);
    EXPECT_NE(loss.at, 0u);
  }
}

TEST_P(BuildingOfModel, LeavesTheModelAsItWas) {
  const std::string before = Saved(server);
  const std::size_t numbers = server.GetNumberCount();
  const std::size_t items = server.GetItems().size();
  ReadBuilding(server);
  EXPECT_EQ(server.GetNumberCount(), numbers);
  EXPECT_EQ(server.GetItems().size(), items);
  EXPECT_TRUE(Saved(server) == before);
}

TEST_P(BuildingOfModel, IsTheSameEachTime) {
  const Building first = ReadBuilding(server);
  const Building second = ReadBuilding(server);
  EXPECT_EQ(Compare(first, second).same, first.elements.size());
  ASSERT_EQ(first.elements.size(), second.elements.size());
  for (std::size_t i = 0; i < first.elements.size(); ++i) {
    EXPECT_EQ(first.elements[i].volume, second.elements[i].volume);
    EXPECT_EQ(first.elements[i].deviation, second.elements[i].deviation);
  }
}

TEST_P(BuildingOfModel, IsExactWhereItSaysSo) {
  for (const BuildingElement& element : ReadBuilding(server).elements) {
    if (element.isApproximate) continue;
    EXPECT_LE(element.deviation, 0.005) << element.id;
    ASSERT_TRUE(element.volumeRatio.has_value()) << element.id;
    const double most = element.cutouts == 0 ? 0.0200001 : 0.5;
    EXPECT_NEAR(*element.volumeRatio, 1.0, most) << element.id;
  }
}

INSTANTIATE_TEST_SUITE_P(Models, BuildingOfModel, testing::ValuesIn(ExamplesAndRealModels()),
                         TestNameOf);

TEST(ReadBuilding, OfAnEmptyModelIsEmpty) {
  IfcServer server;
  EXPECT_EQ(ReadBuilding(server).totals.products, 0u);
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_EQ(ReadBuilding(server).totals.products, 0u);
}

TEST(ReadBuilding, OfTheOldestReleasesIsEmpty) {
  IfcServer server;
  const std::string path = std::string(kExamplesDir) + "/shed.ifc";
  ASSERT_EQ(server.LoadIfc(path.c_str(), IsoOptions()), 0);
  const Building building = ReadBuilding(server);
  EXPECT_EQ(building.release, IFC_RELEASE_NONE);
  EXPECT_TRUE(building.elements.empty());
}

TEST(ReadBuilding, OutlivesTheModel) {
  Building building;
  {
    IfcServer server;
    const std::string path = std::string(kExamplesDir) + "/house.ifc";
    ASSERT_EQ(server.LoadIfc(path.c_str(), IsoOptions()), 0);
    building = ReadBuilding(server);
  }
  EXPECT_EQ(building.release, IFC_RELEASE_2X3);
  EXPECT_EQ(building.totals.members, 3u);
  EXPECT_EQ(building.totals.surfaces, 8u);
  ASSERT_EQ(building.storeys.size(), 2u);
  EXPECT_EQ(building.storeys[1].elevation, 2.8);
}

TEST(ReadBuilding, ReportsTwoStepsForEachProduct) {
  IfcServer server;
  const std::string path = std::string(kExamplesDir) + "/house.ifc";
  ASSERT_EQ(server.LoadIfc(path.c_str(), IsoOptions()), 0);
  std::vector<std::uint64_t> reported;
  std::uint64_t all = 0;
  ReadingOptions options;
  options.progress = [&](std::uint64_t done, std::uint64_t total) {
    reported.push_back(done);
    all = total;
    return true;
  };
  const Building building = ReadBuilding(server, options);
  EXPECT_EQ(all, 2 * building.totals.products);
  ASSERT_FALSE(reported.empty());
  EXPECT_EQ(reported.front(), 0u);
  EXPECT_EQ(reported.back(), all);
  EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
}

TEST(ReadBuilding, CanBeCancelledAtEachStepAndRepeated) {
  IfcServer server;
  const std::string path = std::string(kExamplesDir) + "/house.ifc";
  ASSERT_EQ(server.LoadIfc(path.c_str(), IsoOptions()), 0);
  const std::size_t products = ReadBuilding(server).totals.products;
  for (std::uint64_t last = 0; last <= 2 * products; ++last) {
    ReadingOptions options;
    options.progress = [last](std::uint64_t done, std::uint64_t) { return done < last; };
    EXPECT_THROW(ReadBuilding(server, options), ReadingCancelled) << last;
  }
  EXPECT_EQ(ReadBuilding(server).totals.products, products);
}

TEST(ReadBuilding, BeyondTheLimitOfPointsThereAreLosses) {
  IfcServer server;
  const std::string path = std::string(kExamplesDir) + "/hall.ifc";
  ASSERT_EQ(server.LoadIfc(path.c_str(), IsoOptions()), 0);
  ReadingOptions options;
  options.maxPoints = 300;
  const Building building = ReadBuilding(server, options);
  EXPECT_GT(building.totals.lost, 0u);
  EXPECT_LT(building.totals.lost, building.totals.products);
  for (const BuildingLoss& loss : building.losses) EXPECT_EQ(loss.reason, LossReason::kLimit);
}

}  // namespace
}  // namespace KelIFC
