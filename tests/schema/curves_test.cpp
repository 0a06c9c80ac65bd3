#include "tests/schema/model.h"

namespace KelIFC {
namespace {

template <class R>
class Curves : public testing::Test {};
using Releases = testing::Types<Release151, Release20, Release2x, Release2x2, Release2x3>;
TYPED_TEST_SUITE(Curves, Releases);

TYPED_TEST(Curves, PolylineWithoutPointsCountsAsSpatial) {
  Model<TypeParam> model({{1, "IFCPOLYLINE(())"}});
  EXPECT_EQ(static_cast<int>(IfcCurveDim(*model.template Get<typename TypeParam::IfcCurve>(1))), 3);
}

TYPED_TEST(Curves, PolylineWhoseFirstPointDoesNotResolveCountsAsSpatial) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.))"},
                          {2, "IFCPOLYLINE((#99,#1))"},
                          {3, "IFCPOLYLINE((#2,#1))"}});
  for (const std::size_t number : {2, 3}) {
    const auto* line = model.template Get<typename TypeParam::IfcCurve>(number);
    EXPECT_EQ(static_cast<int>(IfcCurveDim(*line)), 3) << number;
    EXPECT_EQ(static_cast<int>(line->GetDim()), 3) << number;
  }
}

TYPED_TEST(Curves, HaveTheDimensionOfTheirPointsOrTheirBasis) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.))"},
                          {2, "IFCPOLYLINE((#1,#1))"},
                          {3, "IFCLINE(#1,#9)"},
                          {4, "IFCAXIS2PLACEMENT2D(#1,$)"},
                          {5, "IFCCIRCLE(#4,1.)"},
                          {6, "IFCTRIMMEDCURVE(#5,(),(),.T.,.CARTESIAN.)"},
                          {7, "IFCTRIMMEDCURVE($,(),(),.T.,.CARTESIAN.)"},
                          {8, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#6)"},
                          {10, "IFCCOMPOSITECURVE((#8),.F.)"},
                          {11, "IFCCOMPOSITECURVE((),.F.)"},
                          {12, "IFCLINE($,$)"},
                          {13, "IFCCIRCLE($,1.)"}});
  const std::vector<std::pair<std::size_t, int>> expected = {
      {2, 2}, {3, 2}, {5, 2}, {6, 2}, {7, 0}, {10, 2}, {11, 3}, {12, 3}, {13, 3}};
  for (const auto& [number, dimension] : expected) {
    const auto* curve = model.template Get<typename TypeParam::IfcCurve>(number);
    EXPECT_EQ(static_cast<int>(curve->GetDim()), dimension) << number;
  }
}

TYPED_TEST(Curves, ThatAreTheirOwnBasisCountAsSpatial) {
  Model<TypeParam> model({{1, "IFCTRIMMEDCURVE(#1,(),(),.T.,.CARTESIAN.)"},
                          {2, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#3)"},
                          {3, "IFCCOMPOSITECURVE((#2),.F.)"}});
  EXPECT_EQ(static_cast<int>(model.template Get<typename TypeParam::IfcCurve>(1)->GetDim()), 3);
  EXPECT_EQ(static_cast<int>(model.template Get<typename TypeParam::IfcCurve>(3)->GetDim()), 3);
}

TYPED_TEST(Curves, CompositeReturnsWhetherItIsClosedButNoCount) {
  Model<TypeParam> model({{1, "IFCCOMPOSITECURVE((),.U.)"},
                          {2, "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,$)"},
                          {3, "IFCCOMPOSITECURVESEGMENT(.DISCONTINUOUS.,.T.,$)"},
                          {4, "IFCCOMPOSITECURVE((#2,#2,#3),.F.)"},
                          {5, "IFCCOMPOSITECURVE((#3,#3,#2),.F.)"}});
  using Curve = typename TypeParam::IfcCompositeCurve;
  EXPECT_EQ(static_cast<LOGICAL_VALUE>(model.template Get<Curve>(1)->GetClosedCurve()),
            LOGICAL_UNKNOWN);
  EXPECT_EQ(static_cast<LOGICAL_VALUE>(model.template Get<Curve>(4)->GetClosedCurve()),
            LOGICAL_FALSE);
  EXPECT_EQ(static_cast<LOGICAL_VALUE>(model.template Get<Curve>(5)->GetClosedCurve()),
            LOGICAL_TRUE);
  EXPECT_EQ(static_cast<int>(model.template Get<Curve>(1)->GetNSegments()), 0);
  EXPECT_EQ(static_cast<int>(model.template Get<Curve>(4)->GetNSegments()), 0);
}

TYPED_TEST(Curves, SegmentOfUnknownTransitionIsWrittenWithoutOne) {
  EXPECT_EQ(Rewritten<TypeParam>("IFCCOMPOSITECURVESEGMENT(.SMOOTH.,.T.,#3)"),
            "IFCCOMPOSITECURVESEGMENT($,.T.,#3)");
}

TYPED_TEST(Curves, TrimmedCurveReturnsPointsAndParameters) {
  const std::string text =
      "IFCTRIMMEDCURVE(#2,(IFCPARAMETERVALUE(0.5),#1),(#1,IFCPARAMETERVALUE(90.)),.T.,.PARAMETER.)";
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.))"}, {3, text}});
  const auto* curve = model.template Get<typename TypeParam::IfcTrimmedCurve>(3);
  for (int times = 0; times < 2; ++times) {
    ASSERT_NE(curve->GetParameterTrim1(), nullptr);
    EXPECT_EQ(static_cast<double>(*curve->GetParameterTrim1()), 0.5);
    EXPECT_EQ(static_cast<double>(*curve->GetParameterTrim2()), 90.0);
    EXPECT_EQ(curve->GetCartesianTrim1(), model.server.GetItem(std::size_t{1}));
    EXPECT_EQ(curve->GetCartesianTrim2(), model.server.GetItem(std::size_t{1}));
    EXPECT_EQ(curve->GetTrim1().GetSize(), 2u);
  }
  EXPECT_EQ(model.TextOf(3),
            "IFCTRIMMEDCURVE(#2,(IFCPARAMETERVALUE(0.5), #1),(#1, IFCPARAMETERVALUE(90.)),.T.,"
            ".PARAMETER.)");
}

TYPED_TEST(Curves, TrimmedCurveOfUnknownPreferenceIsWrittenByParameter) {
  Model<TypeParam> model({{1, "IFCTRIMMEDCURVE(#2,(),(),.F.,.UNSPECIFIED.)"}});
  EXPECT_EQ(
      static_cast<int>(
          model.template Get<typename TypeParam::IfcTrimmedCurve>(1)->GetMasterRepresentation()),
      0);
  EXPECT_EQ(model.TextOf(1), "IFCTRIMMEDCURVE(#2,(),(),.F.,.PARAMETER.)");
  EXPECT_EQ(Rewritten<TypeParam>("IFCTRIMMEDCURVE(#2,(),(),.F.,.CARTESIAN.)"),
            "IFCTRIMMEDCURVE(#2,(),(),.F.,.CARTESIAN.)");
}

TYPED_TEST(Curves, TrimsKeepInlineValuesAndReferencesToPointsOfTheModel) {
  Model<TypeParam> model(
      {{1, "IFCCARTESIANPOINT((1.,2.))"}, {3, "IFCTRIMMEDCURVE($,(),(),.T.,$)"}});
  auto* curve = model.template Get<typename TypeParam::IfcTrimmedCurve>(3);
  curve->AddTrim1(model.template Get<IfcCartesianPoint>(1));
  curve->AddTrim1(new IfcParameterValue(0.25));
  curve->AddTrim2(new IfcCartesianPoint(REAL(1.0), REAL(2.0)));
  EXPECT_EQ(curve->GetCartesianTrim1(), model.server.GetItem(std::size_t{1}));
  ASSERT_NE(curve->GetParameterTrim1(), nullptr);
  EXPECT_EQ(static_cast<double>(*curve->GetParameterTrim1()), 0.25);
  EXPECT_NE(curve->GetCartesianTrim2(), nullptr);
  curve->AddTrim2(static_cast<IfcParameterValue*>(nullptr));
  EXPECT_EQ(curve->GetParameterTrim2(), nullptr);
}

TYPED_TEST(Curves, EllipseWritesOnlyItsPosition) {
  const bool hasPosition = TypeParam::kRelease > IFC_RELEASE_2X;
  EXPECT_EQ(Rewritten<TypeParam>("IFCELLIPSE(#1,2.,3.)"),
            hasPosition ? "IFCELLIPSE(#1)" : "IFCELLIPSE()");
}

TYPED_TEST(Curves, ConicsAndLinesWriteOnlyTheirNameUpTo2x) {
  const bool isWritten = TypeParam::kRelease > IFC_RELEASE_2X;
  EXPECT_EQ(Rewritten<TypeParam>("IFCCIRCLE(#1,2.)"),
            isWritten ? "IFCCIRCLE(#1,2.)" : "IFCCIRCLE()");
  EXPECT_EQ(Rewritten<TypeParam>("IFCLINE(#1,#2)"), isWritten ? "IFCLINE(#1,#2)" : "IFCLINE()");
}

TYPED_TEST(Curves, PolylineAcceptsPointsByNumberAndByInstance) {
  Model<TypeParam> model({{1, "IFCCARTESIANPOINT((1.,2.))"}, {3, "IFCPOLYLINE((#1))"}});
  auto* line = model.template Get<typename TypeParam::IfcPolyLine>(3);
  line->AddPoint(std::size_t{77});
  line->AddPoint(model.template Get<IfcCartesianPoint>(1));
  line->AddPoint(IfcCartesianPoint());
  EXPECT_EQ(model.TextOf(3), "IFCPOLYLINE((#1, #77, #1))");
}

}  // namespace
}  // namespace KelIFC
