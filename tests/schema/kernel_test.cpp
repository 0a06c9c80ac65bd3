#include "tests/schema/model.h"

namespace KelIFC {
namespace {

template <class R>
class Kernel : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Kernel, NewerReleases);

const std::string kId = "'0123456789ABCDEFGHIJ_$'";

TYPED_TEST(Kernel, KeepsAnIdentifierOfTwentyTwoCharacters) {
  const std::string text =
      "IFCBUILDINGSTOREY(" + kId + ",#2,'EG','ground','type',#3,#4,'long',.ELEMENT.,2.5)";
  EXPECT_EQ(Rewritten<TypeParam>(text), text);
}

TYPED_TEST(Kernel, ReplacesAnIdentifierThatCannotBeDecoded) {
  for (const std::string id : {"'0123456789ABCDEFGHIJ_'", "'0123456789ABCDEFGHIJ_$0'",
                               "'0123456789ABCDEFGHIJ_#'", "''", "$"}) {
    Model<TypeParam> model({{1, "IFCBUILDINGSTOREY(" + id + ",$,$,$,$,$,$,$,$,$)"}});
    const auto* storey = model.template Get<typename TypeParam::IfcBuildingStorey>(1);
    EXPECT_EQ(storey->GetGlobalId().size(), 22u) << id;
    EXPECT_FALSE(IsNullGuid(storey->GetGlobalGUID())) << id;
    EXPECT_NE("'" + storey->GetGlobalId() + "'", id);
  }
}

TYPED_TEST(Kernel, WritesANewIdentifierForAnEmptyTextAndKeepsTheEmptyText) {
  typename TypeParam::IfcBuilding building;
  building.SetGlobalId("");
  const std::string first = Text(building);
  EXPECT_NE(first, Text(building));
  EXPECT_EQ(building.GetGlobalId(), std::string());
  EXPECT_EQ(first.find("IFCBUILDING('"), 0u);
}

TYPED_TEST(Kernel, SetsAndReturnsTheBinaryIdentifier) {
  typename TypeParam::IfcBuilding building;
  EXPECT_TRUE(IsNullGuid(building.GetGlobalGUID()));
  const _GUID guid = {0x01234567, 0x89AB, 0xCDEF, {1, 2, 3, 4, 5, 6, 7, 8}};
  building.SetGlobalGUID(guid);
  EXPECT_EQ(building.GetGlobalId().size(), 22u);
  EXPECT_TRUE(building.GetGlobalGUID() == guid);
}

TYPED_TEST(Kernel, SiteDropsItsLatitudeAndLongitude) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSITE(" + kId +
                                 ",$,$,$,$,$,$,$,.COMPLEX.,(1,2,3),(4,5,6),7.,'title',#9)"),
            "IFCSITE(" + kId + ",$,$,$,$,$,$,$,.ELEMENT.,$,$,$,$,$)");
}

TYPED_TEST(Kernel, SpaceIsWrittenAsInternal) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSPACE(" + kId + ",$,$,$,$,$,$,$,.PARTIAL.,.EXTERNAL.,1.5)"),
            "IFCSPACE(" + kId + ",$,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,1.5)");
}

TYPED_TEST(Kernel, BuildingKeepsItsAddress) {
  const std::string text = "IFCBUILDING(" + kId + ",$,$,$,$,$,$,$,.ELEMENT.,1.,2.,#77)";
  EXPECT_EQ(Rewritten<TypeParam>(text), text);
}

TYPED_TEST(Kernel, StoreyWithoutElevationHasNone) {
  Model<TypeParam> model({{1, "IFCBUILDINGSTOREY(" + kId + ",$,$,$,$,$,$,$,$,$)"}});
  EXPECT_FALSE(
      model.template Get<typename TypeParam::IfcBuildingStorey>(1)->GetElevation().GetExists());
}

TYPED_TEST(Kernel, ProductWithoutPlacementOrShapeReturnsNull) {
  Model<TypeParam> model({{1, "IFCBUILDINGSTOREY(" + kId + ",$,$,$,$,$,$,$,$,$)"}});
  const auto* storey = model.template Get<typename TypeParam::IfcBuildingStorey>(1);
  EXPECT_EQ(storey->GetObjectPlacement(), nullptr);
  EXPECT_EQ(storey->GetRepresentation(), nullptr);
}

TYPED_TEST(Kernel, ReferenceToAnInstanceOfAnotherClassReturnsNull) {
  Model<TypeParam> model(
      {{1, "IFCBUILDINGSTOREY(" + kId + ",$,$,$,$,#2,#2,$,$,$)"}, {2, "IFCDIRECTION((1.,0.))"}});
  const auto* storey = model.template Get<typename TypeParam::IfcBuildingStorey>(1);
  EXPECT_EQ(storey->GetObjectPlacement(), nullptr);
  EXPECT_EQ(model.TextOf(1), "IFCBUILDINGSTOREY(" + kId + ",$,$,$,$,#2,#2,$,.ELEMENT.,$)");
}

TYPED_TEST(Kernel, ProjectReturnsItsUnitsAndContexts) {
  Model<TypeParam> model({{1, "IFCPROJECT(" + kId + ",$,'P',$,$,'long','phase',(#2,#99),#3)"},
                          {2, "IFCREPRESENTATIONCONTEXT('a','b')"},
                          {3, "IFCUNITASSIGNMENT(())"}});
  const auto* project = model.template Get<typename TypeParam::IfcProject>(1);
  EXPECT_EQ(project->GetUnitsInContext(), model.server.GetItem(std::size_t{3}));
  const auto contexts = project->GetRepresentationContexts();
  ASSERT_EQ(contexts.GetSize(), 2u);
  EXPECT_NE(contexts[1], nullptr);
  EXPECT_EQ(contexts[2], nullptr) << "a dangling number keeps its position";
  EXPECT_EQ(project->GetRepresentationContexts().GetSize(), 2u)
      << "a view does not change the attribute";
}

TYPED_TEST(Kernel, SettersOutsideAModelMakeReferencesUnset) {
  std::unique_ptr<typename TypeParam::IfcBuilding> building(
      TypeParam::IfcBuilding::NewItem(nullptr));
  typename TypeParam::IfcLocalPlacement place;
  building->SetObjectPlacement(&place);
  EXPECT_EQ(building->GetObjectPlacement(), nullptr);
  EXPECT_EQ(building->GetServer(), nullptr);
}

TYPED_TEST(Kernel, SettersWithinAModelReferByNumber) {
  IfcServer server;
  server.SetRelease(TypeParam::kRelease);
  auto* building = TypeParam::IfcBuilding::NewItem(&server);
  auto* place = TypeParam::IfcLocalPlacement::NewItem(&server);
  building->SetObjectPlacement(place);
  EXPECT_EQ(building->GetObjectPlacement(), place);
  building->SetName("Haus");
  EXPECT_EQ(building->GetName(), std::string("Haus"));
  building->SetName(nullptr);
  EXPECT_FALSE(building->GetName().GetExists());
}

TYPED_TEST(Kernel, RecordWithoutParenthesisIsUnset) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCMATERIAL"), "IFCMATERIAL($)");
}

TYPED_TEST(Kernel, CopyKeepsItsReferencesThroughTheSource) {
  Model<TypeParam> model({{1, "IFCBUILDING(" + kId + ",$,$,$,$,#2,$,$,.ELEMENT.,1.,2.,$)"},
                          {2, "IFCLOCALPLACEMENT($,$)"}});
  const auto* building = model.template Get<typename TypeParam::IfcBuilding>(1);
  const typename TypeParam::IfcBuilding copy(*building);
  EXPECT_EQ(copy.GetObjectPlacement(), building->GetObjectPlacement());
  EXPECT_NE(copy.GetObjectPlacement(), nullptr);
}

TYPED_TEST(Kernel, HasTheNameOfTheSchema) {
  EXPECT_STREQ(TypeParam::IfcBuildingStorey::GetItemName(), "IfcBuildingStorey");
  EXPECT_STREQ((typename TypeParam::IfcBuilding()).GetStepName(), "IfcBuilding");
}

TEST(BuildingElement, CanBeAssignedStructuralActivitiesInTheTwoNewestReleases) {
  KelIFC2x3::IfcColumn column;
  IfcUnknown* unknown = &column;
  EXPECT_NE(dynamic_cast<KelIFC2x3::IfcStructuralActivityAssignmentSelect*>(unknown), nullptr);
  EXPECT_NE(dynamic_cast<KelIFC2x3::IfcElement*>(unknown), nullptr);
}

}  // namespace
}  // namespace KelIFC
