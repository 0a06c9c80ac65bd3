#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

const char kPoint[] = "#50=IFCCARTESIANPOINT((100.,200.,300.));#51=IFCAXIS2PLACEMENT3D(#50,$,$);";

TEST(Extrusion, HasProfilePositionDirectionAndDepth) {
  for (const std::string& schema : kSchemas) {
    const auto extrusion = ReadForm<Extrusion>(
        std::string(kPoint) +
            "#30=IFCEXTRUDEDAREASOLID(#14,#51,#52,3000.);#52=IFCDIRECTION((0.,3.,4.));",
        schema);
    ASSERT_NE(extrusion.profile, nullptr);
    EXPECT_EQ(extrusion.profile->id, 14U);
    EXPECT_EQ(extrusion.endProfile, nullptr);
    ExpectPoint(extrusion.position.origin, 0.1, 0.2, 0.3);
    ExpectVector(extrusion.direction, 0.0, 0.6, 0.8);
    EXPECT_DOUBLE_EQ(extrusion.depth, 3.0);
  }
}

TEST(Extrusion, OfANegativeDepthGoesTheOtherWay) {
  const auto extrusion = ReadForm<Extrusion>("#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,-3000.);");
  ExpectVector(extrusion.direction, 0.0, 0.0, -1.0);
  EXPECT_DOUBLE_EQ(extrusion.depth, 3.0);
}

TEST(Extrusion, CanHaveASecondProfile) {
  const auto extrusion = ReadForm<Extrusion>(
      "#30=IFCEXTRUDEDAREASOLIDTAPERED(#14,#11,#13,3000.,#31);"
      "#31=IFCRECTANGLEPROFILEDEF(.AREA.,$,#12,100.,100.);");
  ASSERT_NE(extrusion.endProfile, nullptr);
  EXPECT_EQ(extrusion.endProfile->id, 31U);
}

TEST(Revolution, HasItsAxisAndItsAngleInRadians) {
  for (const std::string& schema : kSchemas) {
    const auto revolution = ReadForm<Revolution>(
        std::string(kPoint) +
            "#30=IFCREVOLVEDAREASOLID(#14,#11,#52,90.);#52=IFCAXIS1PLACEMENT(#50,#53);"
            "#53=IFCDIRECTION((0.,2.,0.));",
        schema);
    ExpectPoint(revolution.axisPoint, 0.1, 0.2, 0.3);
    ExpectVector(revolution.axis, 0.0, 1.0, 0.0);
    EXPECT_NEAR(revolution.angle, 1.5707963267948966, 1e-12);
  }
}

TEST(Revolution, IsAtMostAFullTurnAndNeverNegative) {
  const auto revolution = ReadForm<Revolution>(std::string(kPoint) +
                                               "#30=IFCREVOLVEDAREASOLID(#14,#11,#52,-500.);"
                                               "#52=IFCAXIS1PLACEMENT(#50,$);");
  ExpectVector(revolution.axis, 0.0, 0.0, -1.0);
  EXPECT_NEAR(revolution.angle, 6.283185307179586, 1e-12);
}

const char kDirectrix[] =
    "#40=IFCPOLYLINE((#10,#41,#42));#41=IFCCARTESIANPOINT((0.,0.,1000.));"
    "#42=IFCCARTESIANPOINT((0.,1000.,1000.));";

TEST(SweptDisk, FollowsThePartOfItsDirectrixThatItsParametersName) {
  struct Case {
    const char* parameters;
    std::size_t points;
    double endY;
  };
  const Case cases[] = {{"0.,2.", 3, 1.0},
                        {"0.,1.", 3, 1.0},
                        {"$,$", 3, 1.0},
                        {"0.5,1.5", 3, 0.5},
                        {"1.,2.", 2, 1.0}};
  for (const std::string& schema : kSchemas) {
    for (const Case& test : cases) {
      const auto disk = ReadForm<SweptDisk>(
          std::string(kDirectrix) + "#30=IFCSWEPTDISKSOLID(#40,8.,2.," + test.parameters + ");",
          schema);
      EXPECT_DOUBLE_EQ(disk.radius, 0.008);
      EXPECT_DOUBLE_EQ(disk.innerRadius, 0.002);
      ASSERT_EQ(disk.directrix.points.size(), test.points) << test.parameters << schema;
      EXPECT_NEAR(disk.directrix.points.back().y, test.endY, 1e-12) << test.parameters;
    }
  }
}

TEST(SweptCurve, TakesItsReferenceFromTheSurface) {
  const auto swept = ReadForm<SweptCurve>(
      std::string(kDirectrix) +
      "#30=IFCSURFACECURVESWEPTAREASOLID(#14,#11,#40,0.,2.,#43);#43=IFCPLANE(#44);"
      "#44=IFCAXIS2PLACEMENT3D(#10,#45,$);#45=IFCDIRECTION((1.,0.,0.));");
  EXPECT_EQ(swept.directrix.points.size(), 3U);
  ExpectVector(swept.reference, 1.0, 0.0, 0.0);
}

// A tetrahedron whose four points are #60 to #63, and its shell #64.
const char kTetrahedron[] =
    "#60=IFCCARTESIANPOINT((0.,0.,0.));#61=IFCCARTESIANPOINT((1000.,0.,0.));"
    "#62=IFCCARTESIANPOINT((0.,1000.,0.));#63=IFCCARTESIANPOINT((0.,0.,1000.));"
    "#64=IFCCLOSEDSHELL((#65,#66,#67,#68));#65=IFCFACE((#70));#66=IFCFACE((#71));"
    "#67=IFCFACE((#72));#68=IFCFACE((#73));#70=IFCFACEOUTERBOUND(#74,.T.);"
    "#71=IFCFACEOUTERBOUND(#75,.T.);#72=IFCFACEOUTERBOUND(#76,.T.);"
    "#73=IFCFACEBOUND(#77,.F.);#74=IFCPOLYLOOP((#60,#62,#61));#75=IFCPOLYLOOP((#60,#61,#63));"
    "#76=IFCPOLYLOOP((#60,#63,#62));#77=IFCPOLYLOOP((#63,#62,#61));";

TEST(Brep, SharesThePointsOfItsFaces) {
  for (const std::string& schema : kSchemas) {
    const auto shells =
        ReadForm<Shells>(std::string(kTetrahedron) + "#30=IFCFACETEDBREP(#64);", schema);
    ASSERT_EQ(shells.shells.size(), 1U);
    EXPECT_FALSE(shells.isSurface);
    EXPECT_EQ(shells.shells[0].points.size(), 4U);
    EXPECT_EQ(shells.shells[0].FaceCount(), 4U);
    // The last bound is turned round: 61, 62, 63.
    const Mesh::Loop loop = shells.shells[0].LoopOf(3, 0);
    EXPECT_NEAR(shells.shells[0].points[loop[0]].x, 1.0, 1e-12);
  }
}

TEST(Brep, CanHaveVoids) {
  for (const std::string& schema : kSchemas) {
    const auto shells = ReadForm<Shells>(
        std::string(kTetrahedron) + "#30=IFCFACETEDBREPWITHVOIDS(#64,(#64));", schema);
    EXPECT_EQ(shells.shells.size(), 2U);
  }
}

TEST(SurfaceModel, IsOneMeshOfAllItsFaceSets) {
  const std::string items[] = {
      "#30=IFCFACEBASEDSURFACEMODEL((#31,#32));#31=IFCCONNECTEDFACESET((#65,#66));"
      "#32=IFCCONNECTEDFACESET((#67,#68));",
      "#30=IFCSHELLBASEDSURFACEMODEL((#31,#32));#31=IFCOPENSHELL((#65,#66));"
      "#32=IFCOPENSHELL((#67,#68));",
  };
  for (const std::string& item : items) {
    for (const std::string& schema : kSchemas) {
      const auto shells = ReadForm<Shells>(kTetrahedron + item, schema);
      EXPECT_TRUE(shells.isSurface);
      ASSERT_EQ(shells.shells.size(), 1U) << schema << item;
      EXPECT_EQ(shells.shells[0].points.size(), 4U);
      EXPECT_EQ(shells.shells[0].FaceCount(), 4U);
    }
  }
}

TEST(HalfSpace, PointsOutOfItsPlaneAsTheFlagSays) {
  const std::string plane = std::string(kPoint) + "#52=IFCPLANE(#51);";
  for (const std::string& schema : kSchemas) {
    const auto below = ReadForm<HalfSpace>(plane + "#30=IFCHALFSPACESOLID(#52,.T.);", schema);
    ExpectVector(below.normal, 0.0, 0.0, 1.0);
    ExpectPoint(below.point, 0.1, 0.2, 0.3);
    EXPECT_FALSE(below.boundary);
    const auto above = ReadForm<HalfSpace>(plane + "#30=IFCHALFSPACESOLID(#52,.F.);", schema);
    ExpectVector(above.normal, 0.0, 0.0, -1.0);
    const auto boxed = ReadForm<HalfSpace>(plane + "#30=IFCBOXEDHALFSPACE(#52,.F.,$);", schema);
    EXPECT_FALSE(boxed.boundary);
  }
}

TEST(HalfSpace, CanHaveABoundary) {
  for (const std::string& schema : kSchemas) {
    const auto half = ReadForm<HalfSpace>(
        std::string(kPoint) +
            "#52=IFCPLANE(#11);#30=IFCPOLYGONALBOUNDEDHALFSPACE(#52,.T.,#51,#53);"
            "#53=IFCPOLYLINE((#9,#54,#55,#9));#54=IFCCARTESIANPOINT((400.,0.));"
            "#55=IFCCARTESIANPOINT((400.,400.));",
        schema);
    ASSERT_TRUE(half.boundary);
    EXPECT_EQ(half.boundary->outer.points.size(), 3U);
    ExpectPoint(half.position.origin, 0.1, 0.2, 0.3);
  }
}

TEST(Primitive, HasItsSizes) {
  struct Case {
    const char* text;
    Primitive::Form form;
    std::array<double, 3> sizes;
  };
  const Case cases[] = {
      {"IFCBLOCK(#11,1.,2.,3.)", Primitive::Form::kBlock, {0.001, 0.002, 0.003}},
      {"IFCRECTANGULARPYRAMID(#11,1.,2.,3.)", Primitive::Form::kPyramid, {0.001, 0.002, 0.003}},
      {"IFCRIGHTCIRCULARCYLINDER(#11,5.,2.)", Primitive::Form::kCylinder, {0.002, 0.002, 0.005}},
      {"IFCRIGHTCIRCULARCONE(#11,5.,2.)", Primitive::Form::kCone, {0.002, 0.002, 0.005}},
      {"IFCSPHERE(#11,4.)", Primitive::Form::kSphere, {0.004, 0.004, 0.004}},
  };
  for (const Case& test : cases) {
    const auto read =
        ReadForm<Primitive>("#30=IFCCSGSOLID(#31);#31=" + std::string(test.text) + ";");
    EXPECT_EQ(read.form, test.form) << test.text;
    for (std::size_t i = 0; i < 3; ++i) EXPECT_DOUBLE_EQ(read.sizes[i], test.sizes[i]);
  }
}

struct BadItem {
  std::string text;
  LossReason reason;
  std::size_t at;
};

TEST(Item, IsAFaultIfItCannotBeRead) {
  const std::string brep = kTetrahedron;
  const BadItem rows[] = {
      {"#30=IFCSECTIONEDSPINE($,$,$);", LossReason::kUnsupportedItem, 30},
      {"#30=IFCEXTRUDEDAREASOLID(#99,#11,#13,1.);", LossReason::kDangling, 30},
      {"#30=IFCEXTRUDEDAREASOLID($,#11,#13,1.);", LossReason::kDegenerate, 30},
      {"#30=IFCEXTRUDEDAREASOLID(#14,#11,#31,1.);#31=IFCDIRECTION((0.,0.,0.));",
       LossReason::kDegenerate, 30},
      {"#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,1.E300);", LossReason::kNotFinite, 30},
      {"#30=IFCEXTRUDEDAREASOLID(#31,#11,#13,1.);#31=IFCARBITRARYOPENPROFILEDEF(.CURVE.,$,$);",
       LossReason::kUnsupportedProfile, 31},
      {"#30=IFCFACETEDBREP(#99);", LossReason::kDangling, 30},
      {"#30=IFCFACETEDBREP(#31);#31=IFCCLOSEDSHELL((#99));", LossReason::kDangling, 31},
      {"#30=IFCFACETEDBREP(#31);#31=IFCCLOSEDSHELL(());", LossReason::kDegenerate, 30},
      {"#30=IFCHALFSPACESOLID(#31,.T.);#31=IFCCURVEBOUNDEDPLANE(#99,$,());",
       LossReason::kUnsupportedItem, 31},
      {"#30=IFCGEOMETRICSET((#10));", LossReason::kUnsupportedItem, 30},
      {"#30=IFCBOUNDINGBOX(#10,1.,1.,1.);", LossReason::kUnsupportedItem, 30},
      {"", LossReason::kDangling, 22},
  };
  for (const BadItem& row : rows) {
    const Unreadable fault = ReadFault(row.text);
    EXPECT_EQ(fault.reason, row.reason) << row.text;
    EXPECT_EQ(fault.at, row.at) << row.text;
  }
}

}  // namespace
}  // namespace KelIFC::building
