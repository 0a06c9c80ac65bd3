#include "kelifc/core/other.h"
#include "kelifc/server/release_tables.h"

#include "tests/schema/model.h"

namespace KelIFC {
namespace {

TEST(ReadGlobalGuid, ReadsTheRootsOfTheThreeNewestReleases) {
  const _GUID guid = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
  _GUID read = {};
  KelIFC2x::IfcBuilding oldest;
  oldest.SetGlobalGUID(guid);
  EXPECT_TRUE(ReadGlobalGuid(&oldest, read));
  EXPECT_TRUE(read == guid);
  KelIFC2x3::IfcColumn newest;
  newest.SetGlobalGUID(guid);
  read = {};
  EXPECT_TRUE(ReadGlobalGuid(&newest, read));
  EXPECT_TRUE(read == guid);
}

TEST(ReadGlobalGuid, ReturnsFalseForAnInstanceThatIsNotARoot) {
  _GUID read = {};
  const KelIFC2x3::IfcDirection direction;
  const KelIFC20::IfcLocalPlacement older;
  EXPECT_FALSE(ReadGlobalGuid(&direction, read));
  EXPECT_FALSE(ReadGlobalGuid(&older, read));
  EXPECT_FALSE(ReadGlobalGuid(nullptr, read));
}

TEST(ListedAsOf, ListsProductsAndOtherRootsOfTheThreeNewestReleases) {
  const KelIFC2x::IfcBuilding oldest;
  const KelIFC2x2::IfcProject project;
  const KelIFC2x3::IfcColumn newest;
  const KelIFC2x3::IfcDirection direction;
  const KelIFC20::IfcBeam older;
  EXPECT_EQ(ListedAsOf(&oldest), ListedAs::kProduct);
  EXPECT_EQ(ListedAsOf(&project), ListedAs::kRoot);
  EXPECT_EQ(ListedAsOf(&newest), ListedAs::kProduct);
  EXPECT_EQ(ListedAsOf(&direction), ListedAs::kNothing);
  EXPECT_EQ(ListedAsOf(&older), ListedAs::kNothing);
  EXPECT_EQ(ListedAsOf(nullptr), ListedAs::kNothing);
}

TEST(ListedAsOf, ListsRawTextWithTheRoots) {
  const IfcOther raw;
  EXPECT_EQ(ListedAsOf(&raw), ListedAs::kRoot);
}

TEST(AsProject, FindsTheProjectOfItsReleaseOnly) {
  const KelIFC2x2::IfcProject project;
  EXPECT_EQ(AsProject2x2(&project), &project);
  EXPECT_EQ(AsProject2x3(&project), nullptr);
  EXPECT_EQ(AsProject2x(&project), nullptr);
  EXPECT_EQ(AsProject20(&project), nullptr);
  EXPECT_EQ(AsProject151(nullptr), nullptr);
}

TEST(FindingByIdentifier, WorksForEveryRootOfAModel) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  auto* column = KelIFC2x3::IfcColumn::NewItem(&server);
  const _GUID guid = {9, 8, 7, {6, 5, 4, 3, 2, 1, 0, 1}};
  column->SetGlobalGUID(guid);
  EXPECT_EQ(server.GetItem(guid), column);
  EXPECT_EQ(server.GetProject2x3(), nullptr);
}

}  // namespace
}  // namespace KelIFC
