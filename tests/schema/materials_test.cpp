#include "tests/schema/model.h"

namespace KelIFC {
namespace {

template <class R>
class Materials : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Materials, NewerReleases);

TYPED_TEST(Materials, LayerSetSetsTheInverseOfLayersThatFollowIt) {
  Model<TypeParam> model({{1, "IFCMATERIALLAYERSET((#2,#3,#4,#5),'wall')"},
                          {2, "IFCMATERIALLAYER(#6,0.1,.T.)"},
                          {3, "IFCMATERIALLAYER(#6,0.25,$)"},
                          {4, "IFCMATERIAL('brick')"},
                          {6, "IFCMATERIAL('stone')"}});
  using Set = typename TypeParam::IfcMaterialLayerSet;
  using Layer = typename TypeParam::IfcMaterialLayer;
  const auto* layers = model.template Get<Set>(1);
  EXPECT_EQ(model.template Get<Layer>(2)->GetToMaterialLayerSet(), layers);
  EXPECT_EQ(model.template Get<Layer>(3)->GetToMaterialLayerSet(), layers);
  EXPECT_DOUBLE_EQ(layers->GetTotalThickness(), 0.35);
  EXPECT_EQ(layers->GetMaterialLayers().GetSize(), 4u);
  EXPECT_EQ(layers->GetMaterialLayers()[3], nullptr) << "a material is not a layer";
  EXPECT_EQ(model.TextOf(1), "IFCMATERIALLAYERSET((#2, #3, #4, #5),'wall')");
  EXPECT_EQ(model.TextOf(2), "IFCMATERIALLAYER(#6,0.1,.T.)");
}

TYPED_TEST(Materials, LayerSetOutsideAModelHasNoThickness) {
  typename TypeParam::IfcMaterialLayerSet layers;
  layers.Parse("IFCMATERIALLAYERSET((#2,#3),$)");
  EXPECT_EQ(static_cast<double>(layers.GetTotalThickness()), 0.0);
}

TYPED_TEST(Materials, UsageKeepsSenseAndOffset) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCMATERIALLAYERSETUSAGE(#1,.AXIS3.,.NEGATIVE.,-0.5)"),
            "IFCMATERIALLAYERSETUSAGE(#1,.AXIS2.,.NEGATIVE.,-0.5)");
  EXPECT_EQ(Rewritten<TypeParam>("IFCMATERIALLAYERSETUSAGE(#1,.AXIS2.,.negative.,1.)"),
            "IFCMATERIALLAYERSETUSAGE(#1,.AXIS2.,.POSITIVE.,1.)");
}

TEST(OldestMaterials, KeepTheAttributesOfTheirRelease) {
  EXPECT_EQ(Rewritten<Release151>("IFCMATERIAL('brick',#7)"), "IFCMATERIAL('brick',#7)");
  EXPECT_EQ(Rewritten<Release20>("IFCMATERIAL('brick',$,(#1),(#2))"),
            "IFCMATERIAL('brick',$,(),())");
  EXPECT_EQ(Rewritten<Release151>("IFCMATERIALLAYER(#18,0.,150.,2)"),
            "IFCMATERIALLAYER(#18,0.,150.,1)");
  EXPECT_EQ(Rewritten<Release20>("IFCMATERIALLAYER(#18,0.,150.)"), "IFCMATERIALLAYER(#18,0.,150.)");
  EXPECT_EQ(Rewritten<Release151>("IFCMATERIALLAYERSET('wall',(#19))"),
            "IFCMATERIALLAYERSET('wall',(#19))");
  EXPECT_EQ(Rewritten<Release20>("IFCMATERIALLAYERSET((#19),.F.)"),
            "IFCMATERIALLAYERSET((#19),.F.)");
  for (const auto& usage : {Rewritten<Release151>("IFCMATERIALLAYERSETUSAGE(#20,0.,.F.)"),
                            Rewritten<Release20>("IFCMATERIALLAYERSETUSAGE(#20,0.,.F.)")}) {
    EXPECT_EQ(usage, "IFCMATERIALLAYERSETUSAGE(#20,0.,.F.)");
  }
}

// A material that is read after its registry keeps the value of its own record.
TEST(MaterialRegistry, ReturnsItsMaterials) {
  Model<Release151> model({{2, "IFCMATERIAL('a',$)"}, {1, "IFCPROJECTMATERIALREGISTRY((#2,#3))"}});
  EXPECT_EQ(model.Get<KelIFC151::IfcMaterial>(2)->GetRegisteredBy(),
            model.server.GetItem(std::size_t{1}));
  EXPECT_EQ(model.TextOf(2), "IFCMATERIAL('a',#1)");
}

}  // namespace
}  // namespace KelIFC
