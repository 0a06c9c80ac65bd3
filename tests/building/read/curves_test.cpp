#include "kelifc/building/read/curves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

constexpr double kPi = 3.14159265358979323846;

struct CurveResult {
  std::optional<Path> path;
  Unreadable why;
};

// Reads the curve #30.
CurveResult ReadText30(const std::string& text, const std::string& schema = "IFC2X3") {
  const ReadText read = ReadData(CommonText() + text, schema);
  const Model model(*read.server);
  ReadContext context{model, ReadUnits(model.Find(1)), {}, 1'000'000};
  CurveResult result;
  result.path = ReadCurve(context, model.Find(30), result.why);
  return result;
}

Path PathOf(const std::string& text, const std::string& schema = "IFC2X3") {
  const CurveResult result = ReadText30(text, schema);
  EXPECT_TRUE(result.path) << text << ' ' << TextOf(result.why.reason);
  return result.path.value_or(Path());
}

const char kCircle[] = "#31=IFCCIRCLE(#12,1000.);";

TEST(Curve, OfAPolylineHasItsPoints) {
  const char kText[] =
      "#30=IFCPOLYLINE((#10,#31,#32));#31=IFCCARTESIANPOINT((1500.,0.));"
      "#32=IFCCARTESIANPOINT((1500.,250.));";
  for (const std::string& schema : kSchemas) {
    const Path path = PathOf(kText, schema);
    ASSERT_EQ(path.points.size(), 3U);
    ExpectPoint(path.points[2], 1.5, 0.25, 0.0);
    EXPECT_EQ(WidthOf(path), 2.0);
  }
}

TEST(Curve, OfACircleIsTwoArcs) {
  const Path path = PathOf("#30=IFCCIRCLE(#12,1000.);");
  ASSERT_EQ(path.points.size(), 3U);
  ASSERT_EQ(path.arcs.size(), 2U);
  ExpectPoint(path.points[1], -1.0, 0.0, 0.0);
  ExpectPoint(path.arcs[1].second, 0.0, -1.0, 0.0);
  EXPECT_TRUE(IsClosed(path));
  EXPECT_NEAR(WidthOf(path), 360.0, 1e-9);
}

TEST(Curve, TrimmedByParametersUsesTheUnitOfAngles) {
  for (const std::string& schema : kSchemas) {
    const Path path = PathOf(std::string(kCircle) +
                                 "#30=IFCTRIMMEDCURVE(#31,(IFCPARAMETERVALUE(0.)),"
                                 "(IFCPARAMETERVALUE(90.)),.T.,.PARAMETER.);",
                             schema);
    ASSERT_EQ(path.points.size(), 2U) << schema;
    ExpectPoint(path.points[0], 1.0, 0.0, 0.0);
    ExpectPoint(path.points[1], 0.0, 1.0, 0.0);
    ExpectPoint(path.arcs[0].second, std::sqrt(0.5), std::sqrt(0.5), 0.0);
  }
}

TEST(Curve, TrimmedAgainstTheSenseRunsBackwards) {
  const Path path = PathOf(std::string(kCircle) +
                           "#30=IFCTRIMMEDCURVE(#31,(IFCPARAMETERVALUE(90.)),"
                           "(IFCPARAMETERVALUE(0.)),.F.,.PARAMETER.);");
  ASSERT_EQ(path.arcs.size(), 1U);
  ExpectPoint(path.points[0], 0.0, 1.0, 0.0);
  ExpectPoint(path.arcs[0].second, std::sqrt(0.5), std::sqrt(0.5), 0.0);
}

TEST(Curve, TrimmedByPointsAndParametersFollowsItsPreference) {
  const std::string trims = "(#32,IFCPARAMETERVALUE(180.)),(#33,IFCPARAMETERVALUE(270.)),.T.,";
  const std::string points = "#32=IFCCARTESIANPOINT((1000.,0.));#33=IFCCARTESIANPOINT((0.,1000.));";
  const Path byPoints =
      PathOf(kCircle + points + "#30=IFCTRIMMEDCURVE(#31," + trims + ".CARTESIAN.);");
  ExpectPoint(byPoints.points.back(), 0.0, 1.0, 0.0);
  const Path byParameters =
      PathOf(kCircle + points + "#30=IFCTRIMMEDCURVE(#31," + trims + ".PARAMETER.);");
  ExpectPoint(byParameters.points.back(), 0.0, -1.0, 0.0);
}

TEST(Curve, OfMoreThanHalfATurnIsTwoArcs) {
  const Path path = PathOf(std::string(kCircle) +
                           "#30=IFCTRIMMEDCURVE(#31,(IFCPARAMETERVALUE(350.)),"
                           "(IFCPARAMETERVALUE(280.)),.T.,.PARAMETER.);");
  EXPECT_EQ(path.arcs.size(), 2U);
  EXPECT_NEAR(WidthOf(path), 290.0, 1e-9);
  ExpectPoint(path.points.back(), std::cos(280.0 * kPi / 180.0), std::sin(280.0 * kPi / 180.0),
              0.0);
}

TEST(Curve, OfALineIsBetweenItsTrims) {
  const std::string line =
      "#31=IFCLINE(#32,#33);#32=IFCCARTESIANPOINT((100.,0.));#33=IFCVECTOR(#34,2000.);"
      "#34=IFCDIRECTION((0.,3.));";
  const Path path = PathOf(line +
                           "#30=IFCTRIMMEDCURVE(#31,(IFCPARAMETERVALUE(0.5)),"
                           "(IFCPARAMETERVALUE(2.)),.T.,.PARAMETER.);");
  ASSERT_EQ(path.points.size(), 2U);
  ExpectPoint(path.points[0], 0.1, 1.0, 0.0);
  ExpectPoint(path.points[1], 0.1, 4.0, 0.0);
  EXPECT_EQ(ReadText30("#30=IFCLINE(#10,$);").why.reason, LossReason::kUnsupportedItem);
}

TEST(Curve, OfAnEllipseIsChords) {
  const Path path = PathOf("#30=IFCELLIPSE(#12,2000.,1000.);");
  EXPECT_TRUE(path.arcs.empty());
  EXPECT_GT(path.points.size(), 40U);
  for (const Point3& p : path.points) EXPECT_NEAR(p.x * p.x / 4.0 + p.y * p.y, 1.0, 1e-12);
}

TEST(Curve, OfSegmentsJoinsThemInTheirSense) {
  const Path path = PathOf(
      "#30=IFCCOMPOSITECURVE((#31,#32),.F.);"
      "#31=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#33);"
      "#32=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.F.,#34);#33=IFCPOLYLINE((#10,#35));"
      "#34=IFCPOLYLINE((#10,#36,#35));#35=IFCCARTESIANPOINT((1000.,0.));"
      "#36=IFCCARTESIANPOINT((0.,1000.));");
  ASSERT_EQ(path.points.size(), 4U);
  ExpectPoint(path.points[2], 0.0, 1.0, 0.0);
  EXPECT_TRUE(IsClosed(path));
}

TEST(Curve, OfABezierCurveAndAnOffsetIsRead) {
  const Path bezier = PathOf(
      "#30=IFCBEZIERCURVE(2,(#10,#31,#32),.UNSPECIFIED.,.F.,.F.);"
      "#31=IFCCARTESIANPOINT((1000.,2000.));#32=IFCCARTESIANPOINT((2000.,0.));");
  EXPECT_GT(bezier.points.size(), 10U);
  const Path offset = PathOf(
      "#30=IFCOFFSETCURVE2D(#31,500.,.F.);#31=IFCPOLYLINE((#10,#32));"
      "#32=IFCCARTESIANPOINT((2000.,0.));");
  ExpectPoint(offset.points[0], 0.0, 0.5, 0.0);
}

struct BadCurve {
  const char* text;
  LossReason reason;
};

TEST(Curve, IsAFaultIfItCannotBeRead) {
  const BadCurve rows[] = {
      {"#30=IFCPOLYLINE((#10,#99));", LossReason::kDangling},
      {"#30=IFCPOLYLINE((#10));", LossReason::kDegenerate},
      {"#30=IFCPOLYLINE($);", LossReason::kDegenerate},
      {"#30=IFCPOLYLINE((#10,#13));", LossReason::kUnsupportedItem},
      {"#30=IFCCIRCLE(#12,0.);", LossReason::kDegenerate},
      {"#30=IFCCIRCLE(#99,1.);", LossReason::kDangling},
      {"#30=IFCTRIMMEDCURVE(#31,(),(),.T.,.PARAMETER.);#31=IFCCIRCLE(#12,1.);",
       LossReason::kDegenerate},
      {"#30=IFCTRIMMEDCURVE(#99,(#10),(#10),.T.,.CARTESIAN.);", LossReason::kDangling},
      {"#30=IFCCOMPOSITECURVE((#31),.F.);#31=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#30);",
       LossReason::kLimit},
      {"#30=IFCCOMPOSITECURVE((),.F.);", LossReason::kDegenerate},
      {"#30=IFCTRIMMEDCURVE(#30,(#10),(#10),.T.,.CARTESIAN.);", LossReason::kLimit},
  };
  for (const BadCurve& row : rows) {
    const CurveResult result = ReadText30(row.text);
    EXPECT_FALSE(result.path) << row.text;
    EXPECT_EQ(result.why.reason, row.reason) << row.text;
  }
}

// Each level refers to the next one twice, so that the whole has 2 to the power of 14 lines.
TEST(Curve, OfCurvesThatMultiplyIsALimit) {
  std::string text;
  for (int i = 0; i < 14; ++i) {
    const int at = 1000 + 3 * i;
    const std::string next = "#" + std::to_string(i == 13 ? 31 : at + 3);
    text += "#" + std::to_string(at) + "=IFCCOMPOSITECURVE((#" + std::to_string(at + 1) + ",#" +
            std::to_string(at + 2) + "),.F.);";
    for (int k = 1; k <= 2; ++k) {
      text += "#" + std::to_string(at + k) + "=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.," + next +
              ");";
    }
  }
  const ReadText read =
      ReadData(CommonText() + text + "#31=IFCPOLYLINE((#10,#32));#32=IFCCARTESIANPOINT((9.,0.));");
  const Model model(*read.server);
  ReadContext context{model, Units(), {}, 10'000};
  Unreadable why;
  EXPECT_FALSE(ReadCurve(context, model.Find(1000), why));
  EXPECT_EQ(why.reason, LossReason::kLimit);
}

}  // namespace
}  // namespace KelIFC::building
