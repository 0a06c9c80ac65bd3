#include <map>

#include "tests/paths.h"
#include "tests/schema/model.h"
#include "tests/server/temp_file.h"

// Loads the shipped models of the two oldest releases, reads their shapes and writes them again.

namespace KelIFC {
namespace {

std::string Example(const std::string& name) { return std::string(kExamplesDir) + "/" + name; }

/// Returns the text that each instance writes, by number.
std::map<std::size_t, std::string> RecordsOf(IfcServer& server) {
  std::map<std::size_t, std::string> records;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    if (const IfcUnknown* item = server.GetItem(n)) records[n] = Text(*item);
  }
  return records;
}

/// Returns the only object of a kind of container.
template <class Part, class Whole>
const Part* OnlyPart(const Whole* whole) {
  if (whole == nullptr || whole->GetContains().GetSize() != 1) return nullptr;
  const auto parts = whole->GetContains()[1]->GetRelatedObjects();
  return parts.GetSize() == 1 ? dynamic_cast<const Part*>(parts[1]) : nullptr;
}

template <class R>
struct Shipped;
template <>
struct Shipped<Release151> {
  static constexpr const char* kFile = "shed.ifc";
  static constexpr std::size_t kParts = 11;
  static const KelIFC151::IfcProject* Project(const IfcServer& server) {
    return server.GetProject151();
  }
};
template <>
struct Shipped<Release20> {
  static constexpr const char* kFile = "pavilion.ifc";
  static constexpr std::size_t kParts = 9;
  static const KelIFC20::IfcProject* Project(const IfcServer& server) {
    return server.GetProject20();
  }
};

template <class R>
class OldestModels : public testing::Test {
 public:
  OldestModels() { status = server.LoadIfcFile(Example(Shipped<R>::kFile).c_str()); }

  /// Returns the objects that the ground floor contains.
  auto Parts() {
    const auto* site = OnlyPart<typename R::IfcSite>(Shipped<R>::Project(server));
    const auto* building = OnlyPart<typename R::IfcBuilding>(site);
    const auto* storey = OnlyPart<typename R::IfcBuildingStorey>(building);
    LIST<const typename R::IfcObject*> parts;
    if (storey != nullptr) parts = storey->GetContains()[1]->GetRelatedObjects();
    return parts;
  }

  IfcServer server;
  int status = -1;
};
using OldestReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OldestModels, OldestReleases);

TYPED_TEST(OldestModels, LeadFromTheProjectToTheElements) {
  ASSERT_EQ(this->status, 0);
  EXPECT_EQ(this->server.GetRelease(), TypeParam::kRelease);
  const auto parts = this->Parts();
  ASSERT_EQ(parts.GetSize(), Shipped<TypeParam>::kParts);
  std::size_t placed = 0;
  for (std::size_t i = 1; i <= parts.GetSize(); ++i) {
    const auto* product = dynamic_cast<const typename TypeParam::IfcProduct*>(parts[i]);
    if (product == nullptr) continue;
    ++placed;
    EXPECT_EQ(product->GetIsContainedBy().GetSize(), 1u);
    const auto* placement = product->GetLocalPlacement();
    ASSERT_NE(placement, nullptr);
    EXPECT_NE(placement->GetPlacementRelTo(), nullptr);
    EXPECT_NE(placement->GetRelativePlacement(), nullptr);
  }
  EXPECT_GE(placed, parts.GetSize() - 1) << "a proxy is not a product";
}

TYPED_TEST(OldestModels, ReturnTheirUnits) {
  const auto* units = Shipped<TypeParam>::Project(this->server)->GetUnitsInContext();
  ASSERT_NE(units, nullptr);
  const auto all = units->GetUnits();
  const auto* length = dynamic_cast<const typename TypeParam::IfcSiUnit*>(all[1]);
  ASSERT_NE(length, nullptr);
  EXPECT_EQ(length->GetUnitType(), 1);
  EXPECT_EQ(length->GetPrefixCoefficient(), TypeParam::kRelease == IFC_RELEASE_151 ? 0.001 : 1.0);
}

TYPED_TEST(OldestModels, HaveOpeningsWithFillings) {
  EXPECT_TRUE(this->server.GetSupportsFillings());
  const auto parts = this->Parts();
  std::size_t openings = 0;
  for (std::size_t i = 1; i <= parts.GetSize(); ++i) {
    const auto* wall = dynamic_cast<const typename TypeParam::IfcWall*>(parts[i]);
    if (wall == nullptr) continue;
    const auto voids = wall->GetHasOpenings();
    for (std::size_t k = 1; k <= voids.GetSize(); ++k) {
      ++openings;
      EXPECT_EQ(voids[k]->GetRelatedOpeningElement()->GetHasFillings().GetSize(), 1u);
    }
    EXPECT_NE(wall->GetLayerInformation()->GetForLayerSet(), nullptr);
  }
  EXPECT_EQ(openings, 1u);
}

TYPED_TEST(OldestModels, AreTheSameAfterTheirSecondSave) {
  const TempFile first;
  ASSERT_EQ(this->server.SaveIfcFile(first.GetPath()), 0);
  IfcServer again;
  ASSERT_EQ(again.LoadIfcFile(first.GetPath()), 0);
  EXPECT_EQ(again.GetRelease(), TypeParam::kRelease);
  const TempFile second;
  ASSERT_EQ(again.SaveIfcFile(second.GetPath()), 0);
  IfcServer last;
  ASSERT_EQ(last.LoadIfcFile(second.GetPath()), 0);
  const auto before = RecordsOf(again);
  auto after = RecordsOf(last);
  // Each placement in the plane that is read adds a direction. The direction is unset after it has
  // been read.
  std::size_t added = 0;
  for (const auto& [number, record] : after) {
    const auto known = before.find(number);
    if (known == before.end() || record != known->second) {
      EXPECT_EQ(record.rfind("IFCDIRECTION(", 0), 0u) << record;
      ++added;
    }
  }
  EXPECT_GT(added, 0u);
  EXPECT_GT(after.size(), before.size());
}

TEST(OldestModel, OfAPavilionHasARoundOutline) {
  IfcServer server;
  ASSERT_EQ(server.LoadIfcFile(Example("pavilion.ifc").c_str()), 0);
  std::size_t round = 0;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const auto* slab = dynamic_cast<const KelIFC20::IfcSlab*>(server.GetItem(n));
    if (slab == nullptr) continue;
    const auto shapes = slab->GetShapeRepresentation()->GetShapeRepresentations();
    const auto items = shapes[shapes.GetSize()]->GetItems();
    const auto* solid = dynamic_cast<const KelIFC20::IfcAttDrivenExtrudedSolid*>(items[1]);
    ASSERT_NE(solid, nullptr);
    EXPECT_EQ(solid->GetPath()->GetPoints().GetSize(), 34u) << "half a turn and the way back";
    EXPECT_EQ(static_cast<double>(solid->GetSegments()[1]->GetDepth()), 0.2);
    ++round;
  }
  EXPECT_EQ(round, 1u);
}

TEST(OldestModel, OfAShedReturnsItsSolidsAndBoxes) {
  IfcServer server;
  ASSERT_EQ(server.LoadIfcFile(Example("shed.ifc").c_str()), 0);
  std::size_t solids = 0;
  std::size_t boxes = 0;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const auto* shape = dynamic_cast<const KelIFC151::IfcShapeRepresentation*>(server.GetItem(n));
    if (shape == nullptr) continue;
    solids += shape->GetSolidModel() == nullptr ? 0 : 1;
    boxes += shape->GetBoundingBox() == nullptr ? 0 : 1;
  }
  EXPECT_EQ(solids, 9u);
  EXPECT_EQ(boxes, 9u);
}

}  // namespace
}  // namespace KelIFC
