#include "tests/schema/model.h"

// Building elements and relationships of the two oldest releases.

namespace KelIFC {
namespace {

const std::string kId = "'0123456789ABCDEFGHIJ'";
const std::string kProduct151 = kId + ",$,(),(),(),$,$,$,$";
const std::string kProduct20 = kId + ",$,$,$,(),$,(),$";

template <class R>
class OldestElements : public testing::Test {
 public:
  static constexpr bool kIs151 = R::kRelease == IFC_RELEASE_151;
  static std::string Product() {
    const std::string text = kIs151 ? kProduct151 : kProduct20;
    return Rewritten<R>("IFCDOOR(" + text + ",$)").substr(8, text.size());
  }
  /// A relationship up to its own attributes.
  static std::string Relationship() { return kId + (kIs151 ? ",$,()" : ",$,$") + ",.T.,.F."; }
};
using OldestReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OldestElements, OldestReleases);

TYPED_TEST(OldestElements, DoorsAndWindowsKeepOnlyTheirMaterial) {
  for (const std::string name : {"IFCDOOR(", "IFCWINDOW("}) {
    EXPECT_EQ(Rewritten<TypeParam>(name + this->Product() + ",#9,2.,1.)"),
              name + this->Product() + ",#9)");
  }
}

TEST(OldestWall, IsAlwaysWrittenAsSolidIn151) {
  EXPECT_EQ(Rewritten<Release151>("IFCWALL(" + kProduct151 + ",*,.LAYEREDWALL.,#9,1.,2.)"),
            "IFCWALL(" + kProduct151 + ",*,.SOLIDWALL.,#9,$,$)");
}

TEST(OldestWall, KeepsLayersAndMeasuresIn20) {
  const std::string text = "IFCWALL(" + kProduct20 + ",*,#9,2.73,0.41)";
  Model<Release20> model({{1, text}, {9, "IFCMATERIALLAYERSETUSAGE(#20,0.,.F.)"}});
  EXPECT_EQ(model.TextOf(1), text);
  const auto* wall = model.Get<KelIFC20::IfcWall>(1);
  EXPECT_EQ(static_cast<double>(wall->GetCalcWallArea()), 2.73);
  EXPECT_EQ(static_cast<double>(wall->GetCalcWallVolume()), 0.41);
  EXPECT_EQ(wall->GetLayerInformation(), model.server.GetItem(std::size_t{9}));
  EXPECT_EQ(wall->GetHasMaterial(), nullptr) << "the layers define the material";
}

TEST(OldestSlabs, KeepTheirLayers) {
  EXPECT_EQ(Rewritten<Release151>("IFCFLOOR(" + kProduct151 + ",*,.X.,#9,1.,2.)"),
            "IFCFLOOR(" + kProduct151 + ",*,.LAYEREDFLOOR.,#9,$,$)");
  EXPECT_EQ(Rewritten<Release151>("IFCROOFSLAB(" + kProduct151 + ",*,.X.,#9,1.,2.)"),
            "IFCROOFSLAB(" + kProduct151 + ",*,.ELEMENTEDSLAB.,#9,$,$)");
  const std::string slab = "IFCSLAB(" + kProduct20 + ",*,.ROOF.,#9,1.,2.)";
  Model<Release20> model({{1, slab}});
  EXPECT_EQ(model.TextOf(1), slab);
  EXPECT_EQ(static_cast<double>(model.Get<KelIFC20::IfcSlab>(1)->GetSlabWallArea()), 1.0);
  EXPECT_EQ(static_cast<double>(model.Get<KelIFC20::IfcSlab>(1)->GetCalcSlabVolume()), 2.0);
}

TEST(OldestBeam, KeepsItsMeasures) {
  Model<Release151> model({{1, "IFCBEAM(" + kProduct151 + ",#9,.X.,1.5,2.5)"}});
  EXPECT_EQ(model.TextOf(1), "IFCBEAM(" + kProduct151 + ",#9,.SIMPLEBEAM.,1.5,2.5)");
  EXPECT_EQ(static_cast<double>(model.Get<KelIFC151::IfcBeam>(1)->calcBeamArea()), 1.5);
  EXPECT_EQ(static_cast<double>(model.Get<KelIFC151::IfcBeam>(1)->calcBeamVolume()), 2.5);
  const std::string text = "IFCBEAM(" + kProduct20 + ",#9,1.5,2.5)";
  EXPECT_EQ(Rewritten<Release20>(text), text);
}

TEST(OldestColumn, ReturnsItsMeasuresButDoesNotWriteThem) {
  Model<Release20> model({{1, "IFCCOLUMN(" + kProduct20 + ",#9,1.5,2.5)"}});
  const auto* column = model.Get<KelIFC20::IfcColumn>(1);
  EXPECT_EQ(static_cast<double>(column->calcColumnSectionArea()), 1.5);
  EXPECT_EQ(static_cast<double>(column->calcColumnVolume()), 2.5);
  EXPECT_EQ(model.TextOf(1), "IFCCOLUMN(" + kProduct20 + ",#9,$,$)");
  EXPECT_EQ(Rewritten<Release151>("IFCCOLUMN(" + kProduct151 + ",#9,.X.,1.5,2.5)"),
            "IFCCOLUMN(" + kProduct151 + ",#9,.SIMPLECOLUMN.,$,$)");
}

TEST(OldestOpening, KeepsItsArea) {
  Model<Release151> model({{1, "IFCOPENINGELEMENT(" + kProduct151 + ",.RECESS.,1.5)"}});
  EXPECT_EQ(model.TextOf(1), "IFCOPENINGELEMENT(" + kProduct151 + ",.OPENING.,1.5)");
  EXPECT_EQ(static_cast<double>(model.Get<KelIFC151::IfcOpeningElement>(1)->CalcOpeningArea()),
            1.5);
  const std::string text = "IFCOPENINGELEMENT(" + kProduct20 + ",1.5)";
  EXPECT_EQ(Rewritten<Release20>(text), text);
}

TYPED_TEST(OldestElements, ReturnTheirMaterial) {
  Model<TypeParam> model(
      {{1, "IFCDOOR(" + this->Product() + ",#9)"}, {9, "IFCMATERIAL('oak',$,(),())"}});
  EXPECT_EQ(model.template Get<typename TypeParam::IfcDoor>(1)->GetHasMaterial(),
            model.server.GetItem(std::size_t{9}));
}

TYPED_TEST(OldestElements, AreContainedByARelationshipBeforeThem) {
  const std::string text = "IFCRELCONTAINS(" + this->Relationship() + ",#2,(#3,#4,#99),";
  const std::string tail = this->kIs151 ? ".SITECONTAINER.,.T.)" : ".SITECONTAINER.,.REFERENCED.)";
  Model<TypeParam> model({{1, text + tail},
                          {2, "IFCSITE(" + this->Product() + ")"},
                          {3, "IFCBUILDING(" + this->Product() + ")"},
                          {4, "IFCDIRECTION((1.,0.))"}});
  const auto* site = model.template Get<typename TypeParam::IfcSite>(2);
  const auto* building = model.template Get<typename TypeParam::IfcBuilding>(3);
  ASSERT_EQ(site->GetContains().GetSize(), 1u);
  EXPECT_EQ(site->GetContains()[1], model.server.GetItem(std::size_t{1}));
  ASSERT_EQ(building->GetIsContainedBy().GetSize(), 1u);
  EXPECT_EQ(building->GetContains().GetSize(), 0u);
  const auto* relation = model.template Get<typename TypeParam::IfcRelContains>(1);
  EXPECT_EQ(relation->GetRelatedObjects().GetSize(), 3u);
  EXPECT_EQ(relation->GetContainmentType(), 2);
  EXPECT_TRUE(static_cast<bool>(relation->GetRelatedIsDependent()));
  EXPECT_FALSE(static_cast<bool>(relation->GetRelatingIsDependent()));
}

TYPED_TEST(OldestElements, LoseAKindOfContainmentThatTheTableDoesNotHave) {
  const std::string head = "IFCRELCONTAINS(" + this->Relationship() + ",#2,(#3),";
  const std::string end = this->kIs151 ? ".F.)" : "$)";
  EXPECT_EQ(Rewritten<TypeParam>(head + ".BOX.," + (this->kIs151 ? ".F.)" : ".SEEN.)")),
            head + "$," + end);
}

TYPED_TEST(OldestElements, ThatTouchWriteOnlyTheRelationship) {
  const std::string root = this->Relationship();
  Model<TypeParam> model({{1, "IFCWALL(" + this->Product() + ")"},
                          {2, "IFCWALL(" + this->Product() + ")"},
                          {3, "IFCRELCONNECTSPATHELEMENTS(" + root + ",#8,#1,#2,(),(),.ATEND.)"}});
  using Wall = typename TypeParam::IfcWall;
  EXPECT_EQ(model.template Get<Wall>(1)->GetConnectedTo().GetSize(), 1u);
  EXPECT_EQ(model.template Get<Wall>(2)->GetConnectedFrom().GetSize(), 1u);
  EXPECT_EQ(model.TextOf(3), "IFCRELCONNECTSPATHELEMENTS(" + root + ")");
}

TYPED_TEST(OldestElements, HaveOpeningsAndFillings) {
  const std::string root = this->Relationship();
  const std::string fills = "IFCRELFILLSELEMENT(" + root + ",#2,#4)";
  const std::string voids = "IFCRELVOIDSELEMENT(" + root + ",#1,#2)";
  Model<TypeParam> model({{3, voids},
                          {5, fills},
                          {1, "IFCWALL(" + this->Product() + ")"},
                          {2, "IFCOPENINGELEMENT(" + this->Product() + ")"},
                          {4, "IFCDOOR(" + this->Product() + ")"}});
  const auto* opening = model.template Get<typename TypeParam::IfcOpeningElement>(2);
  EXPECT_EQ(opening->GetVoidsElements(), model.server.GetItem(std::size_t{3}));
  EXPECT_EQ(opening->GetHasFillings().GetSize(), 1u);
  EXPECT_EQ(model.template Get<typename TypeParam::IfcWall>(1)->GetHasOpenings().GetSize(), 1u);
  EXPECT_EQ(model.template Get<typename TypeParam::IfcDoor>(4)->GetFillsVoids().GetSize(), 1u);
  EXPECT_TRUE(model.server.GetSupportsFillings());
  EXPECT_EQ(model.TextOf(3), voids);
  EXPECT_EQ(model.TextOf(5), fills);
}

TEST(OldestRelationship, KeepsItsHistoryAndPropertiesIn151) {
  const std::string text = "IFCRELVOIDSELEMENT(" + kId + ",#7,(#8, #9),.F.,.T.,#1,#2)";
  EXPECT_EQ(Rewritten<Release151>(text), text);
}

TEST(RelControls, KeepsItsReferences) {
  const std::string text = "IFCRELCONTROLS(" + kId + ",$,$,.T.,.F.,#7,(#8))";
  EXPECT_EQ(Rewritten<Release20>(text), text);
}

}  // namespace
}  // namespace KelIFC
