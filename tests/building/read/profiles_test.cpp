#include "kelifc/building/read/profiles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "kelifc/building/profile/make_profile.h"
#include "kelifc/building/profile/section_moments.h"

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

using P = ProfileParameter;

struct ProfileResult {
  ProfilePointer profile;
  Unreadable why;
};

// Reads the profile #30.
ProfileResult ReadText30(const std::string& text, const std::string& schema = "IFC2X3") {
  const ReadText read = ReadData(CommonText() + text, schema);
  const Model model(*read.server);
  ReadContext context{model, ReadUnits(model.Find(1)), {}, 1'000'000};
  ProfileReader reader(context);
  ProfileResult result;
  result.profile = reader.Read(model.Find(30), result.why);
  return result;
}

ProfileFacts ProfileOf(const std::string& text, const std::string& schema = "IFC2X3") {
  const ProfileResult result = ReadText30(text, schema);
  EXPECT_NE(result.profile, nullptr) << text << ' ' << TextOf(result.why.reason);
  return result.profile == nullptr ? ProfileFacts() : *result.profile;
}

struct ShapeCase {
  const char* text;  // what follows "#30=IFC"
  ProfileShape shape;
  std::vector<std::pair<ProfileParameter, double>> sizes;
};

TEST(Profile, OfASizedShapeHasItsSizesInMetres) {
  const ShapeCase cases[] = {
      {"RECTANGLEPROFILEDEF(.AREA.,'N',#12,300.,200.)",
       ProfileShape::kRectangle,
       {{P::kB, 0.3}, {P::kH, 0.2}}},
      {"ROUNDEDRECTANGLEPROFILEDEF(.AREA.,'N',#12,300.,200.,10.)",
       ProfileShape::kRoundedRectangle,
       {{P::kB, 0.3}, {P::kH, 0.2}, {P::kR, 0.01}}},
      {"RECTANGLEHOLLOWPROFILEDEF(.AREA.,'N',#12,300.,200.,8.,6.,14.)",
       ProfileShape::kHollowRectangle,
       {{P::kB, 0.3}, {P::kH, 0.2}, {P::kT, 0.008}, {P::kR1, 0.006}, {P::kR, 0.014}}},
      {"TRAPEZIUMPROFILEDEF(.AREA.,'N',#12,300.,100.,200.,50.)",
       ProfileShape::kTrapezium,
       {{P::kB, 0.3}, {P::kB1, 0.1}, {P::kH, 0.2}, {P::kOffset, 0.05}}},
      {"CIRCLEPROFILEDEF(.AREA.,'N',#12,100.)", ProfileShape::kCircle, {{P::kD, 0.2}}},
      {"CIRCLEHOLLOWPROFILEDEF(.AREA.,'N',#12,100.,5.)",
       ProfileShape::kHollowCircle,
       {{P::kD, 0.2}, {P::kT, 0.005}}},
      {"ELLIPSEPROFILEDEF(.AREA.,'N',#12,200.,100.)",
       ProfileShape::kEllipse,
       {{P::kB, 0.4}, {P::kH, 0.2}}},
      {"ISHAPEPROFILEDEF(.AREA.,'N',#12,220.,210.,9.5,16.,18.)",
       ProfileShape::kI,
       {{P::kB, 0.22}, {P::kH, 0.21}, {P::kTw, 0.0095}, {P::kTf, 0.016}, {P::kR, 0.018}}},
      {"ASYMMETRICISHAPEPROFILEDEF(.AREA.,'N',#12,220.,210.,9.,16.,18.,180.,12.,10.,$)",
       ProfileShape::kAsymmetricI,
       {{P::kB, 0.22}, {P::kB1, 0.18}, {P::kTf1, 0.012}, {P::kR1, 0.01}}},
      {"LSHAPEPROFILEDEF(.AREA.,'N',#12,100.,$,10.,12.,6.,3.,$,$)",
       ProfileShape::kL,
       {{P::kH, 0.1},
        {P::kB, 0.1},
        {P::kT, 0.01},
        {P::kR, 0.012},
        {P::kR1, 0.006},
        {P::kSlope, 0.05235987755982989}}},
      {"USHAPEPROFILEDEF(.AREA.,'N',#12,200.,75.,8.5,11.5,11.5,6.,$,$)",
       ProfileShape::kU,
       {{P::kH, 0.2}, {P::kB, 0.075}, {P::kTw, 0.0085}, {P::kTf, 0.0115}, {P::kR1, 0.006}}},
      {"TSHAPEPROFILEDEF(.AREA.,'N',#12,100.,80.,9.,11.,11.,5.,$,$,$,$)",
       ProfileShape::kT,
       {{P::kH, 0.1}, {P::kB, 0.08}, {P::kTw, 0.009}, {P::kTf, 0.011}, {P::kR1, 0.005}}},
      {"CSHAPEPROFILEDEF(.AREA.,'N',#12,200.,70.,2.,20.,3.,$)",
       ProfileShape::kC,
       {{P::kH, 0.2}, {P::kB, 0.07}, {P::kT, 0.002}, {P::kC, 0.02}, {P::kR1, 0.003}}},
      {"ZSHAPEPROFILEDEF(.AREA.,'N',#12,200.,70.,2.,3.,4.,5.)",
       ProfileShape::kZ,
       {{P::kH, 0.2},
        {P::kB, 0.07},
        {P::kTw, 0.002},
        {P::kTf, 0.003},
        {P::kR, 0.004},
        {P::kR1, 0.005}}},
  };
  for (const ShapeCase& test : cases) {
    for (const std::string& schema : kSchemas) {
      const ProfileFacts facts = ProfileOf("#30=IFC" + std::string(test.text) + ";", schema);
      EXPECT_EQ(facts.shape, test.shape) << test.text;
      EXPECT_EQ(facts.name, "N");
      EXPECT_EQ(facts.id, 30U);
      for (const auto& [parameter, size] : test.sizes) {
        EXPECT_NEAR(facts.parameters[static_cast<std::size_t>(parameter)], size, 1e-12)
            << test.text << ' ' << TextOf(parameter) << ' ' << schema;
      }
    }
  }
}

// The area of a profile in square millimetres.
double AreaOf(const ProfileFacts& facts) {
  const std::vector<Region> regions = RegionsOf(facts);
  return regions.size() == 1 ? PropertiesOf(regions[0]).area * 1e6 : 0.0;
}

TEST(Profile, OfACraneRailIsItsOutline) {
  // A rail of 100 mm: a head of 60 mm that is 22 mm deep at its sides and 26 mm at the web of 30
  // mm, and a base of 140 mm that is 10, 14 and 20 mm thick at its sides, at the bends and at the
  // web.
  const double head = 60.0 * 22.0 + 4.0 * (60.0 + 30.0) / 2.0;
  const double web = 30.0 * (100.0 - 26.0 - 20.0);
  const double base = 30.0 * 20.0 + 2.0 * 20.0 * (20.0 + 14.0) / 2.0 + 2.0 * 35.0 * 12.0;
  for (const std::string schema : {"IFC2X2_FINAL", "IFC2X3"}) {
    const ProfileFacts facts = ProfileOf(
        "#30=IFCCRANERAILASHAPEPROFILEDEF(.AREA.,'A60',#12,100.,140.,$,60.,26.,22.,30.,70.,20.,14.,"
        "10.,45.);",
        schema);
    EXPECT_EQ(facts.shape, ProfileShape::kArbitrary);
    EXPECT_EQ(facts.name, "A60");
    EXPECT_NEAR(AreaOf(facts), head + web + base, 1e-6);
  }
}

TEST(Profile, OfACraneRailMayNumberTheDepthsFromTheEdge) {
  const std::string start = "#30=IFCCRANERAILASHAPEPROFILEDEF(.AREA.,$,#12,100.,140.,5.,60.,";
  EXPECT_NEAR(AreaOf(ProfileOf(start + "22.,26.,30.,70.,10.,14.,20.,$);")),
              AreaOf(ProfileOf(start + "26.,22.,30.,70.,20.,14.,10.,$);")), 1e-6);
}

TEST(Profile, OfACraneRailOfTheFormFIsAsWideBelowAsAbove) {
  // 100 mm wide and 80 mm high, the web 60 mm. Two rounded edges of 8 mm are missing.
  const double area = 100.0 * 20.0 + 60.0 * 40.0 + 100.0 * 12.0 + 5.0 * (100.0 + 60.0) / 2.0 +
                      3.0 * (100.0 + 60.0) / 2.0 - 2.0 * 64.0 * (1.0 - std::numbers::pi / 4.0);
  const ProfileFacts facts = ProfileOf(
      "#30=IFCCRANERAILFSHAPEPROFILEDEF(.AREA.,'F100',#12,80.,100.,8.,25.,20.,60.,15.,12.,$);");
  EXPECT_NEAR(AreaOf(facts), area, 1e-6);
}

TEST(Profile, OfATWhoseWebSlopesIsItsOutline) {
  // The web is 10 mm thick at half the height. Its sides slope by 3 degrees, its foot is rounded.
  const ProfileFacts facts =
      ProfileOf("#30=IFCTSHAPEPROFILEDEF(.AREA.,$,#12,100.,80.,10.,8.,$,$,2.,3.,$,$);");
  EXPECT_EQ(facts.shape, ProfileShape::kArbitrary);
  const double k = std::tan(3.0 * std::numbers::pi / 180.0);
  // The middle of the web below the flange is 46 mm above the foot.
  const double web = 92.0 * (10.0 + 2.0 * (46.0 - 50.0) * k);
  // The contour turns by 87 degrees at each edge. An arc of 2 mm replaces two tangents.
  const double turn = 87.0 * std::numbers::pi / 180.0;
  const double edge = 4.0 * std::tan(turn / 2.0) - 4.0 * turn / 2.0;
  EXPECT_NEAR(AreaOf(facts), 80.0 * 8.0 + web - 2.0 * edge, 1e-6);
}

TEST(Profile, OfATIgnoresEdgesOfTheWebThatDoNotFit) {
  const ProfileFacts facts =
      ProfileOf("#30=IFCTSHAPEPROFILEDEF(.AREA.,$,#12,100.,80.,10.,8.,$,$,6.,$,$,$);");
  EXPECT_EQ(facts.shape, ProfileShape::kT);
  EXPECT_NEAR(AreaOf(facts), 80.0 * 8.0 + 92.0 * 10.0, 1e-6);
}

TEST(Profile, HasThePositionOfTheFile) {
  const ProfileFacts facts = ProfileOf(
      "#30=IFCCIRCLEPROFILEDEF(.AREA.,$,#31,100.);#31=IFCAXIS2PLACEMENT2D(#32,#33);"
      "#32=IFCCARTESIANPOINT((50.,20.));#33=IFCDIRECTION((0.,1.));");
  ExpectPoint(facts.position.origin, 0.05, 0.02);
  ExpectPoint(facts.position(Point2(1.0, 0.0)), 0.05, 1.02);
  ExpectPoint(facts.position(Point2(0.0, 1.0)), -0.95, 0.02);
}

const char kSquare[] =
    "#40=IFCPOLYLINE((#9,#41,#42,#43,#9));#41=IFCCARTESIANPOINT((400.,0.));"
    "#42=IFCCARTESIANPOINT((400.,400.));#43=IFCCARTESIANPOINT((0.,400.));";

TEST(Profile, OfACurveIsARegionWithHoles) {
  for (const std::string& schema : kSchemas) {
    const ProfileFacts facts =
        ProfileOf(std::string(kSquare) +
                      "#30=IFCARBITRARYPROFILEDEFWITHVOIDS(.AREA.,'N',#40,(#44));"
                      "#44=IFCCIRCLE(#45,100.);#45=IFCAXIS2PLACEMENT2D(#46,$);"
                      "#46=IFCCARTESIANPOINT((200.,200.));",
                  schema);
    EXPECT_EQ(facts.shape, ProfileShape::kArbitrary);
    ASSERT_EQ(facts.regions.size(), 1U);
    EXPECT_EQ(facts.regions[0].outer.points.size(), 4U);
    ASSERT_EQ(facts.regions[0].holes.size(), 1U);
    EXPECT_EQ(facts.regions[0].holes[0].arcs.size(), 2U);
  }
}

TEST(Profile, OfACentreLineIsAStrip) {
  const ProfileFacts facts = ProfileOf(
      "#30=IFCCENTERLINEPROFILEDEF(.AREA.,$,#31,10.);#31=IFCPOLYLINE((#9,#32));"
      "#32=IFCCARTESIANPOINT((100.,0.));");
  ASSERT_EQ(facts.regions.size(), 1U);
  ExpectPoint(facts.regions[0].outer.points[0], 0.0, -0.005);
}

TEST(Profile, OfSeveralProfilesHasTheirRegions) {
  const ProfileFacts facts = ProfileOf(std::string(kSquare) +
                                       "#30=IFCCOMPOSITEPROFILEDEF(.AREA.,'N',(#31,#14),$);"
                                       "#31=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#40);");
  ASSERT_EQ(facts.regions.size(), 2U);
  EXPECT_EQ(facts.regions[1].outer.points.size(), 4U);
}

const char kOperator[] =
    "#35=IFCCARTESIANTRANSFORMATIONOPERATOR2D(#36,#37,#38,2.);"
    "#36=IFCDIRECTION((-1.,0.));#37=IFCDIRECTION((0.,1.));"
    "#38=IFCCARTESIANPOINT((10.,0.));";

TEST(Profile, DerivedFromAShapeScalesItsSizesAndMirrorsItsPosition) {
  for (const std::string& schema : kSchemas) {
    const ProfileFacts facts = ProfileOf(
        std::string(kOperator) + "#30=IFCDERIVEDPROFILEDEF(.AREA.,'N',#14,#35,$);", schema);
    EXPECT_EQ(facts.shape, ProfileShape::kRectangle);
    EXPECT_NEAR(facts.parameters[static_cast<std::size_t>(P::kB)], 0.6, 1e-12);
    ExpectPoint(facts.position(Point2(1.0, 0.0)), -0.99, 0.0);
    ExpectPoint(facts.position(Point2(0.0, 1.0)), 0.01, 1.0);
  }
}

TEST(Profile, DerivedFromARegionMovesItsPosition) {
  const ProfileFacts facts = ProfileOf(std::string(kSquare) + kOperator +
                                       "#30=IFCDERIVEDPROFILEDEF(.AREA.,$,#31,#35,$);"
                                       "#31=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,'P',#40);");
  EXPECT_EQ(facts.name, "P");
  ExpectPoint(facts.position(Point2(0.4, 0.4)), -0.79, 0.8);
}

struct BadProfile {
  const char* text;
  LossReason reason;
};

TEST(Profile, IsAFaultIfItCannotBeRead) {
  const BadProfile rows[] = {
      {"#30=IFCARBITRARYOPENPROFILEDEF(.CURVE.,$,#31);", LossReason::kUnsupportedProfile},
      {"#30=IFCCRANERAILFSHAPEPROFILEDEF(.AREA.,$,#12,1.,1.,1.,1.,1.,1.,1.,1.,1.);",
       LossReason::kDegenerate},
      {"#30=IFCCRANERAILASHAPEPROFILEDEF(.AREA.,$,#12,1.E300,9.,$,9.,2.,2.,1.,4.,2.,2.,2.,$);",
       LossReason::kNotFinite},
      {"#30=IFCCOLUMN('c',$,$,$,$,$,$,$);", LossReason::kUnsupportedProfile},
      {"#30=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#99);", LossReason::kDangling},
      {"#30=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,$);", LossReason::kDegenerate},
      {"#30=IFCRECTANGLEPROFILEDEF(.AREA.,$,#99,1.,1.);", LossReason::kDangling},
      {"#30=IFCRECTANGLEPROFILEDEF(.AREA.,$,#12,1.E300,1.);", LossReason::kNotFinite},
      {"#30=IFCCENTERLINEPROFILEDEF(.AREA.,$,#31,0.);#31=IFCPOLYLINE((#9,#32));"
       "#32=IFCCARTESIANPOINT((100.,0.));",
       LossReason::kDegenerate},
      {"#30=IFCCOMPOSITEPROFILEDEF(.AREA.,$,(#30),$);", LossReason::kCycle},
      {"#30=IFCCOMPOSITEPROFILEDEF(.AREA.,$,(#99),$);", LossReason::kDangling},
      {"#30=IFCDERIVEDPROFILEDEF(.AREA.,$,#14,#99,$);", LossReason::kDangling},
  };
  for (const BadProfile& row : rows) {
    const ProfileResult result = ReadText30(row.text);
    EXPECT_EQ(result.profile, nullptr) << row.text;
    EXPECT_EQ(result.why.reason, row.reason) << row.text;
  }
}

}  // namespace
}  // namespace KelIFC::building
