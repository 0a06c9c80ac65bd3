#include "kelifc/building/read/shells.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/building/read/model_text.h"

namespace KelIFC::building {
namespace {

// A square of 1 m (#40 to #43) and a smaller one in it (#44 to #47).
const char kPoints[] =
    "#40=IFCCARTESIANPOINT((0.,0.,0.));#41=IFCCARTESIANPOINT((1000.,0.,0.));"
    "#42=IFCCARTESIANPOINT((1000.,1000.,0.));#43=IFCCARTESIANPOINT((0.,1000.,0.));"
    "#44=IFCCARTESIANPOINT((200.,200.,0.));#45=IFCCARTESIANPOINT((800.,200.,0.));"
    "#46=IFCCARTESIANPOINT((800.,800.,0.));#47=IFCCARTESIANPOINT((200.,800.,0.));"
    "#30=IFCFACEBASEDSURFACEMODEL((#31));#31=IFCCONNECTEDFACESET((#32));";

Mesh MeshOf(const std::string& text) {
  const auto shells = ReadForm<Shells>(kPoints + text);
  return shells.shells.empty() ? Mesh() : shells.shells.front();
}

double AreaOf(const Mesh& mesh, const Mesh::Loop& loop) {
  double area = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point3& a = mesh.points[loop[i]];
    const Point3& b = mesh.points[loop[(i + 1) % loop.size()]];
    area += 0.5 * (a.x * b.y - a.y * b.x);
  }
  return area;
}

TEST(Face, HasItsHolesAgainstTheOuterBound) {
  const std::string bounds[] = {
      "#33=IFCFACEBOUND(#35,.T.);#34=IFCFACEOUTERBOUND(#36,.T.);",
      "#33=IFCFACEBOUND(#35,.F.);#34=IFCFACEOUTERBOUND(#36,.T.);",
      "#33=IFCFACEBOUND(#35,.T.);#34=IFCFACEBOUND(#36,.T.);",
  };
  for (const std::string& text : bounds) {
    const Mesh mesh = MeshOf(text +
                             "#32=IFCFACE((#33,#34));#35=IFCPOLYLOOP((#44,#45,#46,#47));"
                             "#36=IFCPOLYLOOP((#40,#41,#42,#43));");
    ASSERT_EQ(mesh.FaceCount(), 1U);
    ASSERT_EQ(mesh.LoopCount(0), 2U);
    EXPECT_NEAR(AreaOf(mesh, mesh.LoopOf(0, 0)), 1.0, 1e-12) << text;
    EXPECT_NEAR(AreaOf(mesh, mesh.LoopOf(0, 1)), -0.36, 1e-12) << text;
  }
}

TEST(Face, LeavesRepeatedPointsOut) {
  const Mesh mesh = MeshOf(
      "#32=IFCFACE((#34));#34=IFCFACEOUTERBOUND(#36,.T.);"
      "#36=IFCPOLYLOOP((#40,#40,#41,#42,#42,#40));");
  ASSERT_EQ(mesh.FaceCount(), 1U);
  EXPECT_EQ(mesh.LoopOf(0, 0).size(), 3U);
}

TEST(Face, WithoutAnAreaIsLeftOut) {
  const Mesh mesh = MeshOf(
      "#32=IFCFACE((#34));#34=IFCFACEOUTERBOUND(#36,.T.);#36=IFCPOLYLOOP((#40,#41,#42));"
      "#131=IFCCONNECTEDFACESET((#32,#132));#132=IFCFACE((#134));"
      "#134=IFCFACEOUTERBOUND(#136,.T.);#136=IFCPOLYLOOP((#40,#41));");
  EXPECT_EQ(mesh.FaceCount(), 1U);
}

TEST(Face, OfEdgesFollowsTheirLinesAndArcs) {
  const Mesh mesh = MeshOf(
      "#32=IFCFACESURFACE((#34),#37,.T.);#37=IFCPLANE(#11);#34=IFCFACEOUTERBOUND(#36,.T.);"
      "#36=IFCEDGELOOP((#50,#51,#52));#50=IFCORIENTEDEDGE(*,*,#53,.T.);"
      "#51=IFCORIENTEDEDGE(*,*,#54,.T.);#52=IFCORIENTEDEDGE(*,*,#55,.F.);"
      "#53=IFCEDGE(#60,#61);#54=IFCEDGECURVE(#61,#62,#56,.T.);#55=IFCEDGE(#60,#62);"
      "#56=IFCCIRCLE(#11,1000.);#60=IFCVERTEXPOINT(#40);#61=IFCVERTEXPOINT(#41);"
      "#62=IFCVERTEXPOINT(#43);");
  ASSERT_EQ(mesh.FaceCount(), 1U);
  const Mesh::Loop loop = mesh.LoopOf(0, 0);
  EXPECT_GT(loop.size(), 10U);
  EXPECT_NEAR(AreaOf(mesh, loop), 0.7853981633974483, 2e-4);
}

TEST(Face, OnACurvedSurfaceIsUnsupported) {
  const Unreadable fault =
      ReadFault(std::string(kPoints) +
                "#32=IFCFACESURFACE((#34),#37,.T.);#37=IFCSURFACEOFREVOLUTION($,$,$);"
                "#34=IFCFACEOUTERBOUND(#36,.T.);#36=IFCPOLYLOOP((#40,#41,#42));");
  EXPECT_EQ(fault.reason, LossReason::kUnsupportedItem);
  EXPECT_EQ(fault.at, 32U);
}

TEST(Shell, OfMorePointsThanAllowedIsALimit) {
  ReadingOptions options;
  options.maxBodyPoints = 3;
  const Unreadable fault = ReadFault(std::string(kPoints) +
                                         "#32=IFCFACE((#34));#34=IFCFACEOUTERBOUND(#36,.T.);"
                                         "#36=IFCPOLYLOOP((#40,#41,#42,#43));",
                                     "IFC2X3", options);
  EXPECT_EQ(fault.reason, LossReason::kLimit);
}

}  // namespace
}  // namespace KelIFC::building
