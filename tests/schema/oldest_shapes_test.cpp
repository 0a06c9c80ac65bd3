#include <cmath>

#include "tests/schema/model.h"

// Profiles, solids and representations of the two oldest releases.

namespace KelIFC {
namespace {

template <class R>
class OldestShapes : public testing::Test {};
using OldestReleases = testing::Types<Release151, Release20>;
TYPED_TEST_SUITE(OldestShapes, OldestReleases);

/// The points of a curve, in pairs.
template <class Points>
std::vector<std::pair<double, double>> PairsOf(const Points& points) {
  std::vector<std::pair<double, double>> pairs;
  for (std::size_t i = 1; i <= points.GetSize(); ++i) {
    double numbers[2] = {NAN, NAN};
    if (points[i] != nullptr) points[i]->Coordinates().GetNumbers(numbers, 2);
    pairs.emplace_back(numbers[0], numbers[1]);
  }
  return pairs;
}

TYPED_TEST(OldestShapes, ProfilesReadAPositionButWriteAStar) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCRECTANGLEPROFILEDEF(*,.AREA.,2.,3.)"),
            "IFCRECTANGLEPROFILEDEF(*,.AREA.,2.,3.)");
  EXPECT_EQ(Rewritten<TypeParam>("IFCCIRCLEPROFILEDEF(*,.CURVE.,2.)"),
            "IFCCIRCLEPROFILEDEF(*,.CURVE.,2.)");
  Model<TypeParam> model({{1, "IFCRECTANGLEPROFILEDEF(#2,.AREA.,2.,3.)"},
                          {2, "IFCAXIS2PLACEMENT2D(#3,$)"},
                          {3, "IFCCARTESIANPOINT((1.,1.))"}});
  EXPECT_EQ(model.TextOf(1), "IFCRECTANGLEPROFILEDEF(*,.AREA.,2.,3.)");
  const auto* rectangle = model.template Get<typename TypeParam::IfcRectangleProfileDef>(1);
  EXPECT_EQ(rectangle->GetPosition(), model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(rectangle->GetProfileType(), 2);
  EXPECT_EQ(static_cast<double>(rectangle->GetYDim()), 3.0);
}

TYPED_TEST(OldestShapes, ProfilesLoseATypeThatTheTableDoesNotHave) {
  Model<TypeParam> model({{1, "IFCARBITRARYPROFILEDEF(*,.SOLID.,#2)"}, {2, "IFCPOLYLINE(())"}});
  const auto* profile = model.template Get<typename TypeParam::IfcArbitraryProfileDef>(1);
  EXPECT_EQ(profile->GetProfileType(), 0);
  EXPECT_EQ(profile->GetPosition(), nullptr);
  EXPECT_EQ(profile->GetCurveForSurface(), model.server.GetItem(std::size_t{2}));
  EXPECT_EQ(model.TextOf(1), "IFCARBITRARYPROFILEDEF(*,$,#2)");
}

TYPED_TEST(OldestShapes, OutlineOfARectangleBeginsAtItsPosition) {
  Model<TypeParam> model({{1, "IFCRECTANGLEPROFILEDEF(#2,.AREA.,2.,3.)"},
                          {2, "IFCAXIS2PLACEMENT2D(#3,#4)"},
                          {3, "IFCCARTESIANPOINT((10.,20.))"},
                          {4, "IFCDIRECTION((0.,1.))"}});
  const std::size_t before = model.server.GetNumberCount();
  const auto* rectangle = model.template Get<typename TypeParam::IfcRectangleProfileDef>(1);
  const auto* outline = rectangle->GetCurveForSurface();
  ASSERT_NE(outline, nullptr);
  EXPECT_EQ(model.server.GetNumberCount(), before + 5) << "the polyline and four points";
  const auto corners = PairsOf(outline->GetPoints());
  const std::vector<std::pair<double, double>> expected = {
      {10, 20}, {10, 22}, {7, 22}, {7, 20}, {10, 20}};
  ASSERT_EQ(corners.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(corners[i].first, expected[i].first, 1e-12) << i;
    EXPECT_NEAR(corners[i].second, expected[i].second, 1e-12) << i;
  }
  EXPECT_EQ(rectangle->GetCurveForSurface(), outline);
  EXPECT_EQ(model.server.GetNumberCount(), before + 5) << "made once";
}

TYPED_TEST(OldestShapes, RectangleWithoutAModelOrAPositionHasNoOutline) {
  typename TypeParam::IfcRectangleProfileDef alone;
  alone.Parse("IFCRECTANGLEPROFILEDEF(#2,.AREA.,2.,3.)");
  EXPECT_EQ(alone.GetCurveForSurface(), nullptr);
  Model<TypeParam> model({{1, "IFCRECTANGLEPROFILEDEF(*,.AREA.,2.,3.)"},
                          {2, "IFCRECTANGLEPROFILEDEF(#3,.AREA.,2.,3.)"},
                          {3, "IFCAXIS2PLACEMENT2D($,$)"},
                          {4, "IFCRECTANGLEPROFILEDEF(#5,.AREA.,2.,3.)"},
                          {5, "IFCAXIS2PLACEMENT2D(#6,#99)"},
                          {6, "IFCCARTESIANPOINT((1.,1.))"}});
  for (const std::size_t number : {1, 2, 4}) {
    const auto* rectangle = model.template Get<typename TypeParam::IfcRectangleProfileDef>(number);
    EXPECT_EQ(rectangle->GetCurveForSurface(), nullptr) << number;
  }
}

TYPED_TEST(OldestShapes, OutlineInSpaceHasUnsetCorners) {
  Model<TypeParam> model({{1, "IFCRECTANGLEPROFILEDEF(#2,.AREA.,2.,3.)"},
                          {2, "IFCAXIS2PLACEMENT2D(#3,$)"},
                          {3, "IFCCARTESIANPOINT((10.,20.,30.))"}});
  const auto* outline =
      model.template Get<typename TypeParam::IfcRectangleProfileDef>(1)->GetCurveForSurface();
  ASSERT_EQ(outline->GetPoints().GetSize(), 5u);
  EXPECT_FALSE(outline->GetPoints()[2]->GetCoordinates()[1].GetExists());
}

/// A solid of one segment with this curve as profile, and what the curve refers to.
std::vector<std::pair<std::size_t, std::string>> SolidOn(const std::string& curve) {
  return {{1, "IFCATTDRIVENEXTRUDEDSOLID((#2))"},
          {2, "IFCATTDRIVENEXTRUDEDSEGMENT(*,*,5.,#9,#3)"},
          {3, "IFCARBITRARYPROFILEDEF(*,.AREA.,#4)"},
          {4, curve},
          {10, "IFCCARTESIANPOINT((1.,0.))"},
          {11, "IFCCARTESIANPOINT((0.,1.))"},
          {12, "IFCAXIS2PLACEMENT2D(#13,$)"},
          {13, "IFCCARTESIANPOINT((0.,0.))"},
          {14, "IFCCIRCLE(#12,1.)"},
          {15, "IFCLINE(#10,$)"},
          {20, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#30)"},
          {21, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#31)"},
          {22, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#32)"},
          {23, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#33)"},
          {24, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#34)"},
          {25, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#35)"},
          {26, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#36)"},
          {30, "IFCTRIMMEDCURVE(#14,(#10),(#11),.T.,.CARTESIAN.)"},
          {31, "IFCTRIMMEDCURVE(#15,(#11),(#10),.T.,.CARTESIAN.)"},
          {32, "IFCTRIMMEDCURVE(#15,(#11),(#10),.F.,.CARTESIAN.)"},
          {33, "IFCTRIMMEDCURVE(#14,(#10),(#10),.T.,.CARTESIAN.)"},
          {34, "IFCTRIMMEDCURVE(#14,(#10),(#11),.T.,.PARAMETER.)"},
          {35, "IFCTRIMMEDCURVE(#14,(#10),(#11),.F.,.CARTESIAN.)"},
          {36, "IFCTRIMMEDCURVE(#14,(IFCCARTESIANPOINT((nan,1.))),(#11),.T.,.CARTESIAN.)"}};
}

template <class R>
std::vector<std::pair<double, double>> PathOf(Model<R>& model) {
  return PairsOf(
      model.template Get<typename R::IfcAttDrivenExtrudedSolid>(1)->GetPath()->GetPoints());
}

TYPED_TEST(OldestShapes, PathFollowsAPolyline) {
  Model<TypeParam> model(SolidOn("IFCPOLYLINE((#10,#11))"));
  const std::vector<std::pair<double, double>> expected = {{1, 0}, {0, 1}};
  EXPECT_EQ(PathOf(model), expected);
  EXPECT_EQ(PathOf(model), expected) << "a polyline replaces what was there";
}

TYPED_TEST(OldestShapes, PathFollowsARectangle) {
  Model<TypeParam> model({{1, "IFCATTDRIVENEXTRUDEDSOLID((#99,#2))"},
                          {2, "IFCATTDRIVENEXTRUDEDSEGMENT(*,*,5.,#9,#3)"},
                          {3, "IFCRECTANGLEPROFILEDEF(#4,.AREA.,2.,3.)"},
                          {4, "IFCAXIS2PLACEMENT2D(#5,$)"},
                          {5, "IFCCARTESIANPOINT((0.,0.))"}});
  EXPECT_EQ(PathOf(model).size(), 5u);
}

TYPED_TEST(OldestShapes, PathFollowsAnArcInChords) {
  Model<TypeParam> model(SolidOn("IFCCOMPOSITECURVE((#20),.F.)"));
  const std::size_t before = model.server.GetNumberCount();
  const auto points = PathOf(model);
  EXPECT_EQ(model.server.GetNumberCount(), before) << "the model does not grow";
  ASSERT_EQ(points.size(), 17u) << "a quarter in steps of pi/32";
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double angle = static_cast<double>(i) * std::acos(-1.0) / 32;
    EXPECT_NEAR(points[i].first, std::cos(angle), 1e-12) << i;
    EXPECT_NEAR(points[i].second, std::sin(angle), 1e-12) << i;
  }
}

TYPED_TEST(OldestShapes, PathIsReversedIfTheSenseIsReversed) {
  Model<TypeParam> model(SolidOn("IFCCOMPOSITECURVE((#25),.F.)"));
  const auto points = PathOf(model);
  ASSERT_EQ(points.size(), 49u) << "three quarters";
  EXPECT_LT(points[1].second, 0.0);
}

TYPED_TEST(OldestShapes, PathOfAFullCircleHasThreePoints) {
  Model<TypeParam> model(SolidOn("IFCCOMPOSITECURVE((#23),.F.)"));
  EXPECT_EQ(PathOf(model).size(), 3u);
}

TYPED_TEST(OldestShapes, PathJoinsArcsAndLines) {
  Model<TypeParam> model(SolidOn("IFC2DCOMPOSITECURVE((#20,#21),.F.)"));
  EXPECT_EQ(PathOf(model).size(), 18u);
  EXPECT_EQ(PathOf(model).size(), 36u) << "a second call adds the points again";
}

TYPED_TEST(OldestShapes, PathOfAReversedLineHasItsSecondEndTwice) {
  const std::vector<std::pair<double, double>> against = {{1, 0}, {1, 0}};
  const std::vector<std::pair<double, double>> along = {{0, 1}, {1, 0}};
  Model<TypeParam> first(SolidOn("IFCCOMPOSITECURVE((#22),.F.)"));
  EXPECT_EQ(PathOf(first), against);
  Model<TypeParam> second(SolidOn("IFCCOMPOSITECURVE((#21),.F.)"));
  EXPECT_EQ(PathOf(second), along);
}

TYPED_TEST(OldestShapes, PathSkipsCurvesThatAreNotTrimmedByPoints) {
  Model<TypeParam> model(SolidOn("IFCCOMPOSITECURVE((#24,#10,#99),.F.)"));
  EXPECT_TRUE(PathOf(model).empty());
}

TYPED_TEST(OldestShapes, PathOfAnArcWithNanCoordinatesEnds) {
  Model<TypeParam> model(SolidOn("IFCCOMPOSITECURVE((#26),.F.)"));
  EXPECT_EQ(PathOf(model).size(), 3u);
}

TYPED_TEST(OldestShapes, PathOutsideAModelIsEmpty) {
  typename TypeParam::IfcAttDrivenExtrudedSolid solid;
  solid.Parse("IFCATTDRIVENEXTRUDEDSOLID((#2))");
  EXPECT_TRUE(solid.GetPath()->GetPoints().GetEmpty());
}

TYPED_TEST(OldestShapes, SegmentReadsItsDepthAfterTwoStars) {
  const std::string text = "IFCATTDRIVENEXTRUDEDSEGMENT(*,*,2734.,#2,#4)";
  Model<TypeParam> model(
      {{1, text}, {2, "IFCAXIS2PLACEMENT3D(#3,$,$)"}, {4, "IFCCIRCLEPROFILEDEF(*,.AREA.,2.)"}});
  EXPECT_EQ(model.TextOf(1), text);
  using Segment = typename TypeParam::IfcAttDrivenExtrudedSegment;
  const typename TypeParam::IfcSweptAreaSolid* segment = model.template Get<Segment>(1);
  EXPECT_EQ(segment->GetPosition(), model.server.GetItem(std::size_t{2})) << "through the base too";
  EXPECT_EQ(segment->GetSweptArea(), nullptr);
  EXPECT_EQ(static_cast<double>(model.template Get<Segment>(1)->GetDepth()), 2734.0);
  EXPECT_EQ(model.template Get<Segment>(1)->GetProfileDef(), model.server.GetItem(std::size_t{4}));
}

TYPED_TEST(OldestShapes, RevolvedSolidKeepsNothing) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCATTDRIVENREVOLVEDSOLID((#1),#2)"),
            "IFCATTDRIVENREVOLVEDSOLID()");
}

TYPED_TEST(OldestShapes, ClippedSolidKeepsItsHalfSpaces) {
  const std::string text = "IFCATTDRIVENCLIPPEDEXTRUDEDSOLID((#1),(#2, #3))";
  Model<TypeParam> model({{2, "IFCHALFSPACESOLID(#9,.F.)"}, {5, text}});
  EXPECT_EQ(model.TextOf(5), text);
  auto* solid = model.template Get<typename TypeParam::IfcAttDrivenClippedExtrudedSolid>(5);
  EXPECT_EQ(solid->GetClippingHalfSpaces().GetSize(), 2u);
  solid->AddClippingHalfSpace(model.template Get<typename TypeParam::IfcHalfSpaceSolid>(2));
  EXPECT_EQ(solid->GetClippingHalfSpaces().GetSize(), 3u);
}

TYPED_TEST(OldestShapes, BoundedPlaneDropsItsInnerBoundaries) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCCURVEBOUNDEDPLANE(#1,#2,(#3))"),
            "IFCCURVEBOUNDEDPLANE(#1,#2,())");
}

TYPED_TEST(OldestShapes, FileCannotContainAnExtrudedAreaSolid) {
  Model<TypeParam> model({{1, "IFCEXTRUDEDAREASOLID(#1,#2,#3,4.)"}});
  EXPECT_EQ(model.TextOf(1), "null");
  typename TypeParam::IfcExtrudedAreaSolid solid;
  solid.Parse("IFCEXTRUDEDAREASOLID(#1,#2,#3,4.)");
  EXPECT_EQ(static_cast<double>(solid.GetDepth()), 4.0);
  EXPECT_EQ(Text(solid), "IFCEXTRUDEDAREASOLID(#1,#2)")
      << "a save does not write the attributes of the class itself";
}

TYPED_TEST(OldestShapes, VectorMovesAPointToANewPoint) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.))"}});
  const auto& point = *model.template Get<IfcCartesianPoint>(1);
  const typename TypeParam::IfcVector vector(
      &model.server, new typename TypeParam::IfcDirection(0.0, 1.0), IfcLengthMeasure(5.0));
  const auto move = [&](IfcServer* server) {
    if constexpr (TypeParam::kRelease == IFC_RELEASE_151) {
      return KelIFC151::AddVectorToPoint(server, point, vector);
    } else {
      return KelIFC20::AddVectorToPoint(server, point, vector);
    }
  };
  const IfcCartesianPoint* moved = move(&model.server);
  ASSERT_NE(moved, nullptr);
  EXPECT_EQ(Text(*moved), "IFCCARTESIANPOINT((1.,7.))");
  EXPECT_NE(model.server.Find(moved), 0u);
  EXPECT_EQ(move(nullptr), nullptr);
}

TEST(BoundedCurveDim, ReturnsTheDimensionOfTheCurve) {
  Model<Release151> model({{1, "IFCCARTESIANPOINT((1.,2.))"}, {2, "IFCPOLYLINE((#1))"}});
  EXPECT_EQ(
      static_cast<int>(KelIFC151::IfcBoundedCurveDim(*model.Get<KelIFC151::IfcBoundedCurve>(2))),
      2);
}

TEST(OldestContexts, AreWrittenAsDesignAndPlanIn151) {
  EXPECT_EQ(Rewritten<Release151>("IFCREPRESENTATIONCONTEXT('id',.SKETCH.,.SECTION.,2)"),
            "IFCREPRESENTATIONCONTEXT('id',.DESIGN.,.PLAN.,3)");
  Model<Release151> model({{1, "IFCREPRESENTATIONCONTEXT($,$,$,$)"}});
  EXPECT_EQ(model.TextOf(1).size(), std::string("IFCREPRESENTATIONCONTEXT('01234567890123456789',"
                                                ".DESIGN.,.PLAN.,3)")
                                        .size());
}

TEST(OldestContexts, KeepTheirTextsIn20) {
  EXPECT_EQ(Rewritten<Release20>("IFCREPRESENTATIONCONTEXT('id','Generic','NotDefined')"),
            "IFCREPRESENTATIONCONTEXT('id','Generic','NotDefined')");
  KelIFC20::IfcGeometricRepresentationContext context;
  context.Parse("IFCGEOMETRICREPRESENTATIONCONTEXT('id','a','b',3,0.00001)");
  EXPECT_EQ(Text(context), "IFCGEOMETRICREPRESENTATIONCONTEXT('id','a','b',3,1.0E-05)");
}

TEST(OldestRepresentations, FindTheirSolidAndTheirBox) {
  Model<Release151> model({{1, "IFCSHAPEREPRESENTATION((#2,#3,#4,#99),#9,.STANDARD.,'id')"},
                           {2, "IFCDIRECTION((1.,0.))"},
                           {3, "IFCBOUNDINGBOX(#8,1.,2.,3.)"},
                           {4, "IFCATTDRIVENEXTRUDEDSOLID(())"},
                           {5, "IFCSHAPEREPRESENTATION((),#9,$,'id')"}});
  const auto* shape = model.Get<KelIFC151::IfcShapeRepresentation>(1);
  EXPECT_EQ(shape->GetSolidModel(), model.server.GetItem(std::size_t{4}));
  EXPECT_EQ(shape->GetBoundingBox(), model.server.GetItem(std::size_t{3}));
  EXPECT_EQ(shape->GetRepresentationType(), std::string("STANDARD"));
  EXPECT_EQ(model.TextOf(1), "IFCSHAPEREPRESENTATION((#2, #3, #4, #99),#9,.STANDARD.,$)");
  EXPECT_EQ(model.Get<KelIFC151::IfcShapeRepresentation>(5)->GetSolidModel(), nullptr);
  EXPECT_EQ(model.Get<KelIFC151::IfcShapeRepresentation>(5)->GetBoundingBox(), nullptr);
}

TEST(OldestRepresentations, KeepTheirTextsIn20) {
  const std::string text = "IFCSHAPEREPRESENTATION(#564,'IAI','BoundingBox',(#149))";
  EXPECT_EQ(Rewritten<Release20>(text), text);
  const std::string shape = "IFCPRODUCTDEFINITIONSHAPE('id',#563,'label','text',(#1, #2))";
  EXPECT_EQ(Rewritten<Release20>(shape), shape);
  KelIFC20::IfcProductDefinitionTopology topology;
  topology.Parse("IFCPRODUCTDEFINITIONTOPOLOGY('id',#563,$,$,#4)");
  EXPECT_EQ(Text(topology), "IFCPRODUCTDEFINITIONTOPOLOGY('id',#563,$,$)");
}

}  // namespace
}  // namespace KelIFC
