#include "kelifc/schema/references.h"

#include "tests/schema/model.h"

// Root, objects and products of the two oldest releases.

namespace KelIFC {
namespace {

template <class R>
class OldestKernel : public testing::Test {};
using OldestReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OldestKernel, OldestReleases);

const std::string kId = "'0123456789ABCDEFGHIJ'";
/// The positions before the attributes of a product: root, object, product.
const std::string kObject151 = kId + ",#2,(#3),(#4),(#5)";
const std::string kProduct151 = kObject151 + ",#6,#7,#8,#9";
const std::string kObject20 = kId + ",#2,'label','user',(#3)";
const std::string kProduct20 = kObject20 + ",#6,(#7),#8";

TEST(OldestRoot, KeepsAnyTextAsIdentifier) {
  for (const std::string id : {"'x'", "'0123456789ABCDEFGHIJ_$'", "'caf\\X\\E9'"}) {
    EXPECT_EQ(Rewritten<Release151>("IFCLOCALPLACEMENT(" + id + ",$,#2)"),
              "IFCLOCALPLACEMENT(" + id + ",$,#2)");
    EXPECT_EQ(Rewritten<Release20>("IFCLOCALPLACEMENT(" + id + ",$,$,$,#2)"),
              "IFCLOCALPLACEMENT(" + id + ",$,$,$,#2)");
  }
}

/// Returns the identifier at the start of a record.
std::string IdIn(const std::string& record) {
  const auto open = record.find('\'');
  return record.substr(open + 1, record.rfind('\'') - open - 1);
}

TEST(OldestRoot, WritesANewIdentifierForAnEmptyTextAndKeepsTheEmptyText) {
  for (const std::string id : {"''", "$"}) {
    Model<Release151> model({{1, "IFCLOCALPLACEMENT(" + id + ",$,#2)"}});
    const std::string first = IdIn(model.TextOf(1));
    _GUID guid = {};
    EXPECT_TRUE(IfcServer::DecodeGUID(first.c_str(), guid)) << first;
    EXPECT_NE(first, IdIn(model.TextOf(1)));
    EXPECT_TRUE(model.Get<KelIFC151::IfcRoot>(1)->GetProjectId().empty());
  }
}

TEST(OldestProject, KeepsItsRegistries) {
  const std::string text = "IFCPROJECT(" + kObject151 + ",#6,#7,#8,#9,#10,#11)";
  Model<Release151> model({{1, text},
                           {2, "IFCOWNERHISTORY(1,2,'id',$,$)"},
                           {6, "IFCUNITASSIGNMENT(())"},
                           {7, "IFCPROJECTTEAMREGISTRY(())"},
                           {8, "IFCPROJECTAPPREGISTRY(())"},
                           {10, "IFCAXIS2PLACEMENT3D(#12,$,$)"},
                           {11, "IFCPROJECTMATERIALREGISTRY(())"}});
  EXPECT_EQ(model.TextOf(1), text);
  const auto* project = model.Get<KelIFC151::IfcProject>(1);
  EXPECT_EQ(project, model.server.GetProject151());
  EXPECT_NE(project->GetOwnerHistory(), nullptr);
  EXPECT_NE(project->GetUnitsInContext(), nullptr);
  EXPECT_NE(project->GetProjectTeam(), nullptr);
  EXPECT_NE(project->GetProjectApps(), nullptr);
  EXPECT_NE(project->GetAbsolutePlacement(), nullptr);
  EXPECT_NE(project->GetProjectMaterials(), nullptr);
}

TEST(OldestProject, DropsAReferenceIn20) {
  Model<Release20> model({{1, "IFCPROJECT(" + kObject20 + ",'ref','name','phase',#6,#7,#8)"},
                          {6, "IFCUNITASSIGNMENT(())"}});
  EXPECT_EQ(model.TextOf(1), "IFCPROJECT(" + kObject20 + ",'ref','name','phase',#6,$,#8)");
  EXPECT_EQ(model.Get<KelIFC20::IfcProject>(1), model.server.GetProject20());
  EXPECT_EQ(model.server.GetProject20()->GetName(), std::string("name"));
  EXPECT_EQ(model.server.GetProject20()->GetLabel(), std::string("label"));
}

TYPED_TEST(OldestKernel, PlacementsAreRelativeToProductsAndToTheProject) {
  const std::string root = TypeParam::kRelease == IFC_RELEASE_151 ? kId : kId + ",$,$";
  Model<TypeParam> model({{1, "IFCLOCALPLACEMENT(" + root + ",#2,#9)"},
                          {2, "IFCPROJECT(" + root + ")"},
                          {3, "IFCLOCALPLACEMENT(" + root + ",#4,#9)"},
                          {4, "IFCBUILDING(" + root + ")"},
                          {5, "IFCLOCALPLACEMENT(" + root + ",#1,#9)"}});
  using Placement = typename TypeParam::IfcLocalPlacement;
  EXPECT_EQ(UnknownOf(model.template Get<Placement>(1)->GetPlacementRelTo()),
            model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(UnknownOf(model.template Get<Placement>(3)->GetPlacementRelTo()),
            model.server.GetItem(std::size_t{4}));
  EXPECT_EQ(model.template Get<Placement>(5)->GetPlacementRelTo(), nullptr)
      << "a placement cannot be relative to a placement";
}

TEST(OldestSpatialStructure, IsWrittenWithFixedTypesIn151) {
  EXPECT_EQ(Rewritten<Release151>("IFCSITE(" + kProduct151 + ",.X.,(1,2,3),(-4,5,6),7.,8.,9.,10)"),
            "IFCSITE(" + kProduct151 + ",.BUILDINGSITE.,(1, 2, 3),(-4, 5, 6),7.,8.,9.)");
  EXPECT_EQ(Rewritten<Release151>("IFCBUILDING(" + kProduct151 + ",.X.,1.,2.,3.)"),
            "IFCBUILDING(" + kProduct151 + ",.BUILDING.,1.,2.,3.)");
  EXPECT_EQ(Rewritten<Release151>("IFCBUILDINGSTOREY(" + kProduct151 + ",.X.,1.,2.,3.,4.)"),
            "IFCBUILDINGSTOREY(" + kProduct151 + ",.BUILDINGSTOREY.,1.,2.,3.,4.)");
}

TEST(OldestSpatialStructure, KeepsItsAttributesIn20) {
  for (const std::string& record :
       {"IFCSITE(" + kProduct20 + ",(1, 2, 3),(4, 5, 6),7.,#8,9.,10.)",
        "IFCBUILDING(" + kProduct20 + ",'ref','name',1.,2.,3.,4.,5.)",
        "IFCBUILDINGSTOREY(" + kProduct20 + ",'ref','name',1.,2.,3.,4.)"}) {
    EXPECT_EQ(Rewritten<Release20>(record), record);
  }
}

TEST(OldestSpatialStructure, ReturnsTheAnglesOfTheFile) {
  Model<Release20> model({{1, "IFCSITE(" + kProduct20 + ",(49,6,-12),$,7.,$,9.,10.)"}});
  const auto* site = model.Get<KelIFC20::IfcSite>(1);
  const KelIFC20::IfcCompoundPlaneAngleMeasure latitude = site->GetRefLatitude();
  ASSERT_EQ(latitude.GetSize(), 3u);
  EXPECT_EQ(static_cast<int>(latitude[3]), -12);
  EXPECT_FALSE(site->GetRefLongitude().GetExists());
  EXPECT_EQ(static_cast<double>(site->GetRefElevation()), 7.0);
}

TEST(OldestSpace, WritesFixedTextAndItsBoundaries) {
  Model<Release151> model({{1, "IFCSPACE(" + kProduct151 + ",.TECHNICAL.,(#2),1.,2.,3.,4.)"},
                           {2, "IFCSPACEBOUNDARY(" + kProduct151 + ",.PHYSICAL.,.INTERNAL.,1.)"}});
  EXPECT_EQ(model.TextOf(1), "IFCSPACE(" + kProduct151 + ",.OCCUPIED.,$,$,$,$,$)");
  auto* space = model.Get<KelIFC151::IfcSpace>(1);
  space->AddBoundedBy(model.Get<KelIFC151::IfcSpaceBoundary>(2));
  EXPECT_EQ(model.TextOf(1), "IFCSPACE(" + kProduct151 + ",.OCCUPIED.,(#2),$,$,$,$)");
  space->SetBoundedBy({});
  EXPECT_EQ(model.TextOf(1), "IFCSPACE(" + kProduct151 + ",.OCCUPIED.,(),$,$,$,$)");
}

TEST(OldestSpace, IsInternalIn20) {
  EXPECT_EQ(Rewritten<Release20>("IFCSPACE(" + kProduct20 + ",'ref','name',(#1),.EXTERNAL.,1.)"),
            "IFCSPACE(" + kProduct20 + ",(),.INTERNAL.)");
}

TEST(OldestSpaceBoundary, KeepsTextsOfEnumerations) {
  const std::string text = "IFCSPACEBOUNDARY(" + kProduct20 + ",.VIRTUAL.,.EXTERNAL.,1.5)";
  EXPECT_EQ(Rewritten<Release20>(text), text);
}

TEST(OldestProxy, IsAlwaysAProduct) {
  EXPECT_EQ(Rewritten<Release151>("IFCPROXY(" + kObject151 + ",.CONTROL.,#8,#9)"),
            "IFCPROXY(" + kObject151 + ",.PRODUCT.,#8,#9)");
  EXPECT_EQ(Rewritten<Release20>("IFCPROXY(" + kObject20 + ",.CONTROL.,#8,(#9))"),
            "IFCPROXY(" + kObject20 + ",.PRODUCT.,#8,(#9))");
}

TEST(OldestShapes, OfAProductAreItemsOfItsRepresentationsIn20) {
  Model<Release20> model({{1, "IFCCOLUMN(" + kObject20 + ",$,(#9,#10,#2),$,$,1.,2.)"},
                          {2, "IFCPRODUCTDEFINITIONSHAPE('id',$,$,$,(#3))"},
                          {3, "IFCSHAPEREPRESENTATION($,'IAI','BoundingBox',())"},
                          {4, "IFCSHAPEREPRESENTATION($,'IAI','Standard',())"},
                          {10, "IFCDIRECTION((1.,0.))"},
                          {11, "IFCCOLUMN(" + kObject20 + ",$,(),$,$,1.,2.)"}});
  auto* column = model.Get<KelIFC20::IfcColumn>(1);
  EXPECT_EQ(column->GetShapeRepresentation(), model.server.GetItem(std::size_t{2}));
  column->AddShapeRepresentation(model.Get<KelIFC20::IfcShapeRepresentation>(4));
  EXPECT_EQ(model.TextOf(2), "IFCPRODUCTDEFINITIONSHAPE('id',$,$,$,(#3, #4))");
  auto* shapeless = model.Get<KelIFC20::IfcColumn>(11);
  EXPECT_EQ(shapeless->GetShapeRepresentation(), nullptr);
  shapeless->AddShapeRepresentation(model.Get<KelIFC20::IfcShapeRepresentation>(4));
}

TEST(OldestShapes, OfAProductAreAddedToItsProductShapeIn151) {
  Model<Release151> model({{1, "IFCCOLUMN(" + kObject151 + ",$,#2,$,$,$)"},
                           {2, "IFCPRODUCTSHAPE('id',(#3),'solid')"},
                           {3, "IFCSHAPEREPRESENTATION((),#9,.BREP.,'id')"},
                           {4, "IFCCOLUMN(" + kObject151 + ",$,#3,$,$,$)"}});
  auto* shape = model.Get<KelIFC151::IfcShapeRepresentation>(3);
  model.Get<KelIFC151::IfcColumn>(1)->AddShapeRepresentation(shape);
  EXPECT_EQ(model.TextOf(2), "IFCPRODUCTSHAPE('id',(#3, #3),'solid')");
  model.Get<KelIFC151::IfcColumn>(4)->AddShapeRepresentation(shape);
  EXPECT_EQ(model.TextOf(3), "IFCSHAPEREPRESENTATION((),#9,.BREP.,$)")
      << "#3 is not a product shape, so nothing is added";
}

TEST(OldestProperties, AreReturnedAsAView) {
  Model<Release151> model({{1, "IFCCOLUMN(" + kId + ",$,(),(),(#2,#1))"},
                           {2, "IFCPROPERTYSET('set',(#3))"},
                           {3, "IFCSIMPLEPROPERTY('height',IFCLENGTHMEASURE(2.5))"}});
  const auto view = model.Get<KelIFC151::IfcColumn>(1)->GetExtendedProperties();
  ASSERT_EQ(view.GetSize(), 2u);
  EXPECT_EQ(view[1], model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(view[2], nullptr) << "a column is not a property set";
  EXPECT_EQ(model.TextOf(2), "IFCPROPERTYSET('set',(#3))");
  EXPECT_EQ(model.TextOf(3), "IFCSIMPLEPROPERTY('height',IFCLENGTHMEASURE(2.5))");
  ASSERT_NE(model.Get<KelIFC151::IfcSimpleProperty>(3)->GetValueComponent(), nullptr);
}

TEST(OldestProperties, LoseAValueOfATypeThatTheReleaseDoesNotKnow) {
  EXPECT_EQ(Rewritten<Release151>("IFCSIMPLEPROPERTY('street',IFCSTRING('The street'))"),
            "IFCSIMPLEPROPERTY('street',$)");
}

TEST(ProductShape, WritesANewIdentifierForAnEmptyText) {
  _GUID guid = {};
  const std::string id = IdIn(Rewritten<Release151>("IFCPRODUCTSHAPE($,(#1),$)"));
  EXPECT_TRUE(IfcServer::DecodeGUID(id.c_str(), guid));
}

}  // namespace
}  // namespace KelIFC
