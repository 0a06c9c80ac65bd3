#include "tests/schema/model.h"
#include "tests/schema/slot_order.h"

// The departures of single classes. Each test reads a record and writes it again.

namespace KelIFC {
namespace {

const std::string kRoot = "'0123456789ABCDEFGHIJ_$',$,$,$";
const std::string kElement = kRoot + ",$,$,$,$";

template <class R>
class Records : public testing::Test {};
using NewerReleases = testing::Types<Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Records, NewerReleases);

template <class R>
class NewestRecords : public testing::Test {};
using NewestReleases = testing::Types<Release2x2, Release2x3>;
TYPED_TEST_SUITE(NewestRecords, NewestReleases);

TYPED_TEST(Records, ProfileThatIsReadCountsAsAnArea) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCRECTANGLEPROFILEDEF(.CURVE.,'R',$,1.,2.)"),
            "IFCRECTANGLEPROFILEDEF(.AREA.,'R',$,1.,2.)");
  typename TypeParam::IfcRectangleProfileDef made;
  EXPECT_EQ(made.GetProfileType(), 0);
}

TYPED_TEST(Records, ProfileOfAnyTypeExceptCurveIsWrittenAsAnArea) {
  using Rectangle = typename TypeParam::IfcRectangleProfileDef;
  Rectangle made;
  using Type = decltype(made.GetProfileType());
  const auto headOf = [&](int type) {
    made.SetProfileType(static_cast<Type>(type));
    const std::string text = Text(made);
    return text.substr(0, text.find(','));
  };
  EXPECT_EQ(headOf(0), "IFCRECTANGLEPROFILEDEF(.CURVE.");
  for (const int type : {1, 2, 7, -1}) {
    EXPECT_EQ(headOf(type), "IFCRECTANGLEPROFILEDEF(.AREA.") << type;
  }
}

TYPED_TEST(Records, BooleanResultKeepsItsOperator) {
  Model<TypeParam> model(
      {{1, "IFCBOOLEANRESULT(.DIFFERENCE.,#2,#3)"}, {2, "IFCHALFSPACESOLID(#9,.F.)"}});
  const auto* result = model.template Get<typename TypeParam::IfcBooleanResult>(1);
  EXPECT_EQ(result->GetOperator(), 2);
  EXPECT_NE(result->GetFirstOperand(), nullptr);
  EXPECT_EQ(result->GetSecondOperand(), nullptr);
  EXPECT_EQ(model.TextOf(1), "IFCBOOLEANRESULT(.DIFFERENCE.,#2,#3)");
  EXPECT_EQ(Rewritten<TypeParam>("IFCBOOLEANRESULT(.XOR.,#2,#3)"),
            "IFCBOOLEANRESULT(.UNION.,#2,#3)");
}

TYPED_TEST(Records, FaceBoundReturnsItsOrientation) {
  Model<TypeParam> model({{1, "IFCFACEOUTERBOUND(#2,.F.)"}, {2, "IFCPOLYLOOP((#3,#4))"}});
  const auto* bound = model.template Get<typename TypeParam::IfcFaceBound>(1);
  EXPECT_FALSE(static_cast<bool>(bound->GetOrientation()));
  EXPECT_EQ(bound->GetBound()->GetPolygon().GetSize(), 2u);
  EXPECT_EQ(static_cast<int>(bound->GetBound()->GetDim()), 0);
}

TYPED_TEST(Records, PlaneWithoutServerHasNoDimension) {
  typename TypeParam::IfcPlane plane;
  plane.Parse("IFCPLANE(#1)");
  EXPECT_EQ(static_cast<int>(plane.GetDim()), 0);
  Model<TypeParam> model({{1, "IFCPLANE(#2)"},
                          {2, "IFCAXIS2PLACEMENT3D(#3,$,$)"},
                          {3, "IFCCARTESIANPOINT((0.,0.,0.))"}});
  EXPECT_EQ(static_cast<int>(model.template Get<typename TypeParam::IfcPlane>(1)->GetDim()), 3);
}

TYPED_TEST(Records, NewContextIsAPlanOfADesign) {
  EXPECT_EQ(Text(typename TypeParam::IfcRepresentationContext()),
            "IFCREPRESENTATIONCONTEXT('Plan','Design')");
}

TYPED_TEST(Records, PrecisionIsWrittenWithAnExponent) {
  const std::string head = "IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,";
  EXPECT_EQ(Rewritten<TypeParam>(head + "0.00001,#1,#2)"), head + "1.0E-05,#1,#2)");
  EXPECT_EQ(Rewritten<TypeParam>(head + "$,#1,#2)"), head + "0.0E+00,#1,#2)");
}

TYPED_TEST(Records, PersonReadsTheFirstTwoTextsAsItsNames) {
  Model<TypeParam> model({{1, "IFCPERSON('Id1','Smith','Ann',$,$,$,$,$)"}});
  EXPECT_EQ(model.template Get<typename TypeParam::IfcPerson>(1)->GetFamilyName(),
            std::string("Id1"));
  EXPECT_EQ(model.TextOf(1), "IFCPERSON($,'Id1','Smith',$,$,$,$,$)");
}

TYPED_TEST(Records, OwnerHistoryIsWrittenAsAdded) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCOWNERHISTORY(#1,#2,.READWRITE.,.MODIFIED.,7,#3,#4,1234567)"),
            "IFCOWNERHISTORY(#1,#2,$,.ADDED.,$,$,$,1234567)");
}

TYPED_TEST(Records, OrganizationLosesRolesAndAddresses) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCORGANIZATION('id','name','what',(#1),(#2))"),
            "IFCORGANIZATION('id','name','what',$,$)");
}

TYPED_TEST(Records, StairIsWrittenAsAStraightRun) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSTAIR(" + kElement + ",.SPIRAL_STAIR.)"),
            "IFCSTAIR(" + kElement + ",.STRAIGHT_RUN_STAIR.)");
}

TYPED_TEST(Records, StairKeepsTheShapeThatAHostSets) {
  using Stair = typename TypeParam::IfcStair;
  Stair stair;
  ENUM shape;
  shape.Parse(".SPIRAL_STAIR.");
  stair.SetShapeType(shape);
  EXPECT_EQ(stair.GetShapeType(), std::string("SPIRAL_STAIR"));
  EXPECT_NE(Text(stair).find(",.STRAIGHT_RUN_STAIR.)"), std::string::npos);
  EXPECT_EQ(SlotOf(&Stair::SetShapeType), -1) << "the slots of derived classes stay the same";
}

TYPED_TEST(Records, ProxyWithoutCompositionIsWrittenWithoutOne) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCBUILDINGELEMENTPROXY(" + kElement + ",$)"),
            "IFCBUILDINGELEMENTPROXY(" + kElement + ",$)");
}

TYPED_TEST(Records, SlabOfUnknownTypeIsWrittenAsNotDefined) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSLAB(" + kElement + ",.CEILING.)"),
            "IFCSLAB(" + kElement + ",.NOTDEFINED.)");
}

TEST(SlabType, HasTheValuesOfItsRelease) {
  const std::string landing = "IFCSLAB(" + kElement + ",.LANDING.)";
  EXPECT_EQ(Model<Release2x3>({{1, landing}}).Get<KelIFC2x3::IfcSlab>(1)->GetPredefinedType(), 4);
  EXPECT_EQ(Model<Release2x2>({{1, landing}}).Get<KelIFC2x2::IfcSlab>(1)->GetPredefinedType(), 3);
  EXPECT_EQ(Model<Release2x>({{1, landing}}).Get<KelIFC2x::IfcSlab>(1)->GetPredefinedType(), 3);
  EXPECT_EQ(Rewritten<Release2x3>(landing), landing);
  const std::string base = "IFCSLAB(" + kElement + ",.BASESLAB.)";
  EXPECT_EQ(Rewritten<Release2x3>(base), base);
  EXPECT_EQ(Rewritten<Release2x2>(base), "IFCSLAB(" + kElement + ",.NOTDEFINED.)");
}

TYPED_TEST(NewestRecords, SingleValueKeepsItsTypedForm) {
  for (const std::string value :
       {"IFCLABEL('it')", "IFCIDENTIFIER('x')", "IFCINTEGER(7)", "IFCBOOLEAN(.T.)",
        "IFCLENGTHMEASURE(2.5)", "IFCNUMERICMEASURE(1.5)", "IFCDESCRIPTIVEMEASURE('d')"}) {
    const std::string text = "IFCPROPERTYSINGLEVALUE('n',$," + value + ",$)";
    EXPECT_EQ(Rewritten<TypeParam>(text), text);
  }
  EXPECT_EQ(Rewritten<TypeParam>("IFCPROPERTYSINGLEVALUE('n','d',IFCODD(1),#5)"),
            "IFCPROPERTYSINGLEVALUE('n','d',$,$)");
}

TYPED_TEST(NewestRecords, LiningReturnsTheUsualValuesForUnsetAttributes) {
  const std::string text = "IFCWINDOWLININGPROPERTIES(" + kRoot + ",$,$,$,$,$,$,$,$,$)";
  Model<TypeParam> model({{1, text}});
  const auto* lining = model.template Get<typename TypeParam::IfcWindowLiningProperties>(1);
  EXPECT_EQ(static_cast<double>(lining->GetLiningDepth()), 0.1);
  EXPECT_EQ(static_cast<double>(lining->GetLiningThickness()), 0.05);
  EXPECT_EQ(static_cast<double>(lining->GetTransomThickness()), 0.05);
  EXPECT_EQ(static_cast<double>(lining->GetMullionThickness()), 0.05);
  EXPECT_EQ(static_cast<double>(lining->GetFirstTransomOffset()), 0.5);
  EXPECT_EQ(static_cast<double>(lining->GetSecondTransomOffset()), 0.75);
  EXPECT_EQ(static_cast<double>(lining->GetFirstMullionOffset()), 0.5);
  EXPECT_EQ(static_cast<double>(lining->GetSecondMullionOffset()), 0.75);
  EXPECT_EQ(model.TextOf(1), text);
}

/// The class reads the reference in its last position. `unset` has the positions before it.
template <class R, class Properties>
void ExpectShapeAspectStyle(const std::string& entity, int unset) {
  std::string text = entity + "(" + kRoot;
  for (int i = 0; i < unset; ++i) text += ",$";
  Model<R> model({{1, text + ",#2)"}, {2, "IFCSHAPEASPECT((#3),$,$,.T.,#4)"}});
  const auto* properties = model.template Get<Properties>(1);
  ASSERT_NE(properties, nullptr) << entity;
  EXPECT_EQ(properties->GetShapeAspectStyle(), model.server.GetItem(std::size_t{2})) << entity;
  EXPECT_EQ(Properties().GetShapeAspectStyle(), nullptr) << entity;
  EXPECT_EQ(SlotOf(&Properties::GetShapeAspectStyle), -1) << entity;
}

TYPED_TEST(NewestRecords, LiningsAndPanelsReturnTheirStyle) {
  using R = TypeParam;
  ExpectShapeAspectStyle<R, typename R::IfcWindowLiningProperties>("IFCWINDOWLININGPROPERTIES", 8);
  ExpectShapeAspectStyle<R, typename R::IfcWindowPanelProperties>("IFCWINDOWPANELPROPERTIES", 4);
  ExpectShapeAspectStyle<R, typename R::IfcDoorLiningProperties>("IFCDOORLININGPROPERTIES", 10);
  ExpectShapeAspectStyle<R, typename R::IfcDoorPanelProperties>("IFCDOORPANELPROPERTIES", 4);
}

TYPED_TEST(NewestRecords, DoorLiningHasNoUsualValues) {
  typename TypeParam::IfcDoorLiningProperties lining;
  EXPECT_FALSE(lining.GetLiningDepth().GetExists());
}

TYPED_TEST(NewestRecords, DoorStyleReadsOnlyTheRepeatedWord) {
  const std::string head = "IFCDOORSTYLE(" + kRoot + ",$,$,$,$,.REVOLVING.,";
  EXPECT_EQ(Rewritten<TypeParam>(head + ".ALUMINIUM_PLASTICPLASTIC.,.T.,.F.)"),
            head + ".ALUMINIUM_PLASTICPLASTIC.,.T.,.F.)");
  EXPECT_EQ(Rewritten<TypeParam>(head + ".ALUMINIUM_PLASTIC.,.T.,.F.)"),
            head + ".NOTDEFINED.,.T.,.F.)");
}

TYPED_TEST(NewestRecords, AssemblyKeepsItsPlaceAndTypeOnlyInMemory) {
  Model<TypeParam> model({{1, "IFCELEMENTASSEMBLY(" + kElement + ",.SITE.,.TRUSS.)"}});
  auto* assembly = model.template Get<typename TypeParam::IfcElementAssembly>(1);
  EXPECT_EQ(model.TextOf(1), "IFCELEMENTASSEMBLY(" + kElement + ",.NOTDEFINED.,.NOTDEFINED.)");
  assembly->SetAssemblyPlace(decltype(assembly->GetAssemblyPlace())(0));
  EXPECT_EQ(assembly->GetAssemblyPlace(), 0);
  EXPECT_EQ(model.TextOf(1), "IFCELEMENTASSEMBLY(" + kElement + ",.NOTDEFINED.,.NOTDEFINED.)");
}

TYPED_TEST(NewestRecords, ActivityIsWrittenInGlobalAxes) {
  const std::string product = kRoot + ",$,$,$";
  const bool is2x3 = TypeParam::kRelease == IFC_RELEASE_2X3;
  const std::string tail = is2x3 ? ".T.,#2,.TRUE_LENGTH.)" : ".T.,.TRUE_LENGTH.,#2)";
  EXPECT_EQ(
      Rewritten<TypeParam>("IFCSTRUCTURALPOINTACTION(" + product + ",#1,.LOCAL_COORDS.," + tail),
      "IFCSTRUCTURALPOINTACTION(" + product + ",#1,.GLOBAL_COORDS.," + tail);
}

TYPED_TEST(NewestRecords, ActionWithoutLengthIsWrittenAsProjected) {
  EXPECT_EQ(Text(typename TypeParam::IfcStructuralPointAction()).find(".PROJECTED_LENGTH.") !=
                std::string::npos,
            true);
}

TYPED_TEST(NewestRecords, PlanarForceKeepsThreeNumbers) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCSTRUCTURALLOADPLANARFORCE('F',1.,$,3.,4.,5.,6.)"),
            "IFCSTRUCTURALLOADPLANARFORCE('F',1.,$,3.)");
}

TEST(SweptDiskSolid, DoesNotStoreAParameterThatAHostSets) {
  KelIFC2x3::IfcSweptDiskSolid solid;
  solid.Parse("IFCSWEPTDISKSOLID(#1,0.5,$,1.,2.)");
  EXPECT_EQ(Text(solid), "IFCSWEPTDISKSOLID(#1,0.5,$,1.,2.)");
  solid.SetStartParam(new KelIFC2x3::IfcReal(5.0));
  solid.SetEndParam(nullptr);
  EXPECT_EQ(Text(solid), "IFCSWEPTDISKSOLID(#1,0.5,$,0.,0.)");
}

TEST(ReinforcingBar, IsWrittenAsMainReinforcement) {
  EXPECT_EQ(
      Rewritten<Release2x3>("IFCREINFORCINGBAR(" + kElement + ",'S',12.,113.,6.,.SHEAR.,.PLAIN.)"),
      "IFCREINFORCINGBAR(" + kElement + ",'S',12.,113.,6.,.MAIN.,$)");
}

}  // namespace
}  // namespace KelIFC
