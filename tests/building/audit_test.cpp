#include "kelifc/building/audit.h"

#include <gtest/gtest.h>

#include "tests/building/made_building.h"

namespace KelIFC {
namespace {

BuildingStorey Storey(std::size_t id, double elevation, bool hasElevation = true) {
  BuildingStorey storey;
  storey.id = id;
  storey.name = "S" + std::to_string(id);
  storey.elevation = elevation;
  storey.hasElevation = hasElevation;
  return storey;
}

BuildingElement InStoreys(BuildingElement element, std::size_t stated, std::size_t byHeight) {
  element.storey = stated;
  element.storeyByHeight = byHeight;
  return element;
}

TEST(Audit, CountsEachClass) {
  Building building;
  building.elements = {MemberFrom(1, {}), MemberFrom(2, {}), Slab(3, 1.0, 1.0)};
  building.elements[1].isApproximate = true;
  building.decomposed = {{4, "IfcSlab"}};
  building.losses.resize(3);
  building.losses[0].className = building.losses[1].className = "IfcSlab";
  building.losses[2].className = "IfcBeam";
  building.losses[1].reason = LossReason::kCycle;

  const BuildingAudit audit = Audit(building);
  ASSERT_EQ(audit.classes.size(), 3u);
  EXPECT_EQ(audit.classes[0].className, "IfcBeam");
  EXPECT_EQ(audit.classes[0].totals.products, 1u);
  EXPECT_EQ(audit.classes[0].totals.lost, 1u);
  EXPECT_EQ(audit.classes[1].className, "IfcColumn");
  EXPECT_EQ(audit.classes[1].totals.members, 2u);
  EXPECT_EQ(audit.classes[1].totals.approximate, 1u);
  const ClassAudit& slabs = audit.classes[2];
  EXPECT_EQ(slabs.totals.products, 4u);
  EXPECT_EQ(slabs.totals.surfaces, 1u);
  EXPECT_EQ(slabs.totals.decomposed, 1u);
  EXPECT_EQ(slabs.totals.lost, 2u);
  EXPECT_EQ(slabs.lost[static_cast<std::size_t>(LossReason::kNoRepresentation)], 1u);
  EXPECT_EQ(slabs.lost[static_cast<std::size_t>(LossReason::kCycle)], 1u);
}

TEST(Audit, ListsElementsThatAreInAnotherStoreyByHeight) {
  Building building;
  building.storeys = {Storey(10, 0.0), Storey(11, 3.0)};
  building.elements = {InStoreys(MemberFrom(1, {}), 10, 10), InStoreys(MemberFrom(2, {}), 10, 11),
                       InStoreys(MemberFrom(3, {}), 0, 11), InStoreys(MemberFrom(4, {}), 99, 0)};
  const BuildingAudit audit = Audit(building);
  ASSERT_EQ(audit.storeys.size(), 2u);
  EXPECT_EQ(audit.storeys[0].stated, 2u);
  EXPECT_EQ(audit.storeys[0].byHeight, 1u);
  EXPECT_EQ(audit.storeys[0].differing, std::vector<std::size_t>{2});
  EXPECT_EQ(audit.storeys[1].stated, 0u);
  EXPECT_EQ(audit.storeys[1].byHeight, 2u);
  EXPECT_TRUE(audit.storeys[1].differing.empty());
}

TEST(Audit, FindsElevationsThatAreMissingEqualOrMixed) {
  Building building;
  building.storeys = {Storey(1, -3.0), Storey(2, 0.0), Storey(3, 0.0, false), Storey(4, 0.0005)};
  const BuildingAudit audit = Audit(building);
  EXPECT_EQ(audit.storeys[0].finding, ElevationFinding::kNone);
  EXPECT_EQ(audit.storeys[1].finding, ElevationFinding::kEqual);
  EXPECT_EQ(audit.storeys[2].finding, ElevationFinding::kMissing);
  EXPECT_EQ(audit.storeys[3].finding, ElevationFinding::kEqual);
  EXPECT_TRUE(audit.hasMixedElevations);

  building.storeys = {Storey(3, 0.0, false)};
  EXPECT_FALSE(Audit(building).hasMixedElevations);
}

}  // namespace
}  // namespace KelIFC
