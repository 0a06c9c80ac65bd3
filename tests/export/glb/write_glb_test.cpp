#include "export/glb/write_glb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "glb_file.h"
#include "tests/building/made_building.h"
#include "tests/export/test_path.h"
#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

using nlohmann::json;

class Glb : public testing::Test {
 protected:
  Glb() {
    options.path = PathOfTest().string() + ".glb";
    options.source = "model.ifc";
    building.schema = "IFC2X3";
    building.storeys = {{11, "s11", "Ground floor", 0.0, true, 3.0},
                        {12, "s12", "Upper floor", 3.0, true, std::nullopt}};
    building.materials = {{"Concrete"}};
    building.profiles.resize(1);
    building.profiles[0].name = "200/400";
    building.profiles[0].outline = {{-0.1, -0.2}, {0.1, -0.2}, {0.1, 0.2}, {-0.1, 0.2}};
    building.elements = {MemberFrom(1, {1.0, 0.0, 0.0}), MemberFrom(2, {4.0, 0.0, 0.0}, 5.0),
                         Slab(3, 4.0, 3.0)};
    building.elements[0].storey = 12;
    building.elements[0].material = 0;
    building.elements[1].storey = 11;
    building.elements[1].className = "IfcBeam";
  }
  ~Glb() override { std::remove(options.path.c_str()); }

  GlbFile Write() {
    result = WriteGlb(building, options);
    return GlbFile(options.path);
  }

  std::string Bytes() {
    WriteGlb(building, options);
    return ReadFile(options.path);
  }

  Building building;
  ExportOptions options;
  ExportResult result;
};

TEST_F(Glb, HasATreeOfStoreysAndElements) {
  const json nodes = Write().scene.at("nodes");
  ASSERT_EQ(nodes.size(), 7U);
  EXPECT_EQ(nodes[0]["name"], "model.ifc");
  EXPECT_EQ(nodes[0]["children"], json({1, 2, 3}));
  EXPECT_EQ(nodes[1]["name"], "Ground floor");
  EXPECT_EQ(nodes[1]["extras"]["id"], 11);
  EXPECT_EQ(nodes[1]["children"], json({4}));
  EXPECT_EQ(nodes[2]["children"], json({5}));
  EXPECT_EQ(nodes[3]["name"], "without a storey");
  EXPECT_EQ(nodes[3]["children"], json({6}));
  EXPECT_EQ(nodes[4]["extras"]["id"], 2);
  EXPECT_EQ(nodes[5]["extras"]["id"], 1);
  EXPECT_EQ(result.elements, 3U);
  EXPECT_TRUE(result.omissions.empty());
}

TEST_F(Glb, TurnsTheModelSoThatYPointsUp) {
  const json matrix = Write().scene.at("nodes")[0]["matrix"];
  EXPECT_EQ(matrix, json({1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1}));
}

TEST_F(Glb, ExtrasHoldTheDataOfAnElement) {
  const std::vector<json> nodes = Write().ElementNodes();
  const json column = nodes[1]["extras"];
  EXPECT_EQ(column["class"], "IfcColumn");
  EXPECT_EQ(column["guid"], "guid1");
  EXPECT_EQ(column["kind"], "member");
  EXPECT_EQ(column["profile"], "200/400");
  EXPECT_EQ(column["material"], "Concrete");
  EXPECT_EQ(column["storey"], 12);
  EXPECT_EQ(column["length"], 3.0);
  EXPECT_EQ(column["approximate"], false);
  EXPECT_FALSE(column.contains("area"));
  const json slab = nodes[2]["extras"];
  EXPECT_EQ(slab["area"], 12.0);
  EXPECT_EQ(slab["thickness"], 0.2);
  EXPECT_FALSE(slab.contains("profile"));
}

TEST_F(Glb, EqualSlabsAtOtherPlacesShareAMesh) {
  building.elements.push_back(Slab(4, 4.0, 3.0));
  for (Point3& p : building.elements[3].surface->outline) p += Vector3(7.1, 0.3, 3.3);
  const GlbFile file = Write();
  const std::vector<json> nodes = file.ElementNodes();
  ASSERT_EQ(nodes.size(), 4U);
  EXPECT_EQ(nodes[2]["mesh"], nodes[3]["mesh"]);
  EXPECT_NE(nodes[2]["translation"], nodes[3]["translation"]);
  EXPECT_EQ(file.scene["meshes"].size(), 3U);
}

TEST_F(Glb, AStoreyWithoutANameHasItsNumber) {
  building.storeys[0].name.clear();
  EXPECT_EQ(Write().scene["nodes"][1]["name"], "storey 11");
}

TEST_F(Glb, NodesHaveTheVolumeOfTheirElement) {
  const GlbFile file = Write();
  const std::vector<json> nodes = file.ElementNodes();
  EXPECT_NEAR(file.VolumeOf(nodes[0]), 5.0 * 0.08, 1e-6);
  EXPECT_NEAR(file.VolumeOf(nodes[1]), 3.0 * 0.08, 1e-6);
  EXPECT_NEAR(file.VolumeOf(nodes[2]), 12.0 * 0.2, 1e-6);
}

TEST_F(Glb, EqualProfilesShareTheirNumbers) {
  building.elements.push_back(MemberFrom(4, {9.0, 9.0, 0.0}));
  const json scene = Write().scene;
  EXPECT_EQ(scene["accessors"].size(), 4U);  // the prism and the slab
  EXPECT_EQ(scene["meshes"].size(), 3U);     // the prism as a beam, as a column; the slab
  EXPECT_EQ(scene["materials"].size(), 3U);
}

TEST_F(Glb, BoundsAreThoseOfTheVertices) {
  const GlbFile file = Write();
  for (std::size_t i = 0; i < file.scene["accessors"].size(); i += 2) {
    const std::vector<double> p = file.NumbersOf(i);
    const json& accessor = file.scene["accessors"][i];
    for (std::size_t k = 0; k < 3; ++k) {
      double min = p[k];
      double max = p[k];
      for (std::size_t v = k; v < p.size(); v += 3) {
        min = std::min(min, p[v]);
        max = std::max(max, p[v]);
      }
      EXPECT_EQ(accessor["min"][k].get<double>(), min);
      EXPECT_EQ(accessor["max"][k].get<double>(), max);
    }
  }
}

TEST_F(Glb, AnOpenBodyIsShownFromBothSides) {
  auto mesh = std::make_shared<Mesh>();
  mesh->points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}};
  mesh->AddFace({0, 1, 2});
  building.elements[0] = BuildingElement();
  building.elements[0].className = "IfcColumn";
  building.elements[0].body.mesh = mesh;
  const json scene = Write().scene;
  EXPECT_EQ(scene["materials"][0]["doubleSided"], true);
  EXPECT_FALSE(scene["materials"][1].contains("doubleSided"));
}

TEST_F(Glb, LargeMeshesHaveLongIndices) {
  BuildingProfile& profile = building.profiles[0];
  profile.outline.clear();
  constexpr int kPoints = 40000;
  for (int i = 0; i < kPoints; ++i) {
    const double angle = 6.283185307179586 * i / kPoints;
    profile.outline.emplace_back(10.0 * std::cos(angle), 10.0 * std::sin(angle));
  }
  const GlbFile file = Write();
  EXPECT_NEAR(file.VolumeOf(file.ElementNodes()[1]), 3.0 * 314.159265, 0.1);
  EXPECT_NEAR(file.VolumeOf(file.ElementNodes()[2]), 12.0 * 0.2, 1e-6);
  EXPECT_EQ(file.scene["bufferViews"].size(), 3U);
}

TEST_F(Glb, AModelFarAwayIsMovedToZero) {
  for (BuildingElement& element : building.elements) {
    const Vector3 away(3.5e6, 5.5e6, 0.0);
    element.box.min += away;
    element.box.max += away;
    if (element.member) {
      for (Point3& p : element.member->points) p += away;
    } else {
      for (Point3& p : element.surface->outline) p += away;
    }
  }
  const GlbFile file = Write();
  const json origin = file.scene["nodes"][0]["extras"]["origin"];
  EXPECT_NEAR(origin[0].get<double>(), 3.5e6, 10.0);
  for (const json& node : file.ElementNodes()) {
    for (const json& coordinate : node["translation"])
      EXPECT_LT(std::abs(coordinate.get<double>()), 10.0);
  }
  EXPECT_NEAR(file.VolumeOf(file.ElementNodes()[2]), 12.0 * 0.2, 1e-5);
}

TEST_F(Glb, ElementsWithoutASolidAreCounted) {
  building.elements[1].member->profile = 9;
  const GlbFile file = Write();
  EXPECT_EQ(file.ElementNodes().size(), 2U);
  EXPECT_EQ(result.elements, 2U);
  ASSERT_EQ(result.omissions.size(), 1U);
  EXPECT_EQ(result.omissions[0].what, "elements without a solid");
  EXPECT_EQ(result.omissions[0].count, 1U);
}

TEST_F(Glb, OpeningsAndLayersAreCounted) {
  building.elements[2].openings.resize(2);
  building.elements[2].surface->layers.resize(3);
  Write();
  EXPECT_EQ(result.elements, 3U);
  ASSERT_EQ(result.omissions.size(), 2U);
  EXPECT_EQ(result.omissions[0].what, "openings");
  EXPECT_EQ(result.omissions[0].count, 2U);
  EXPECT_EQ(result.omissions[1].what, "layers");
  EXPECT_EQ(result.omissions[1].count, 3U);
}

TEST_F(Glb, AnEmptyBuildingIsARootOnly) {
  building = Building();
  const GlbFile file = Write();
  EXPECT_EQ(file.scene["nodes"].size(), 1U);
  EXPECT_FALSE(file.scene["nodes"][0].contains("children"));
  EXPECT_FALSE(file.scene.contains("buffers"));
  EXPECT_TRUE(file.binary.empty());
}

TEST_F(Glb, TextOfTheModelStaysText) {
  const std::string hostile = "\"}],\n\x01</script>\x7F \xE2\x82\xAC";
  building.elements[0].name = hostile;
  building.elements[1].name = "\xFF" + std::string(10000, 'x');
  building.storeys[0].name = hostile;
  building.elements[2].className = hostile;
  building.elements[2].name.clear();
  const GlbFile file = Write();
  EXPECT_EQ(file.scene["nodes"][1]["name"], hostile);
  EXPECT_EQ(file.ElementNodes()[1]["name"], hostile);
  EXPECT_EQ(file.ElementNodes()[0]["name"], "\xEF\xBF\xBD" + std::string(10000, 'x'));
  EXPECT_EQ(file.ElementNodes()[2]["name"], hostile + " 3");
}

TEST_F(Glb, NumbersThatAreNotFiniteAreNull) {
  building.elements[2].deviation = INFINITY;
  building.elements[2].volume = NAN;
  const json extras = Write().ElementNodes()[2]["extras"];
  EXPECT_TRUE(extras["deviation"].is_null());
  EXPECT_TRUE(extras["volume"].is_null());
}

TEST_F(Glb, TheSameBuildingGivesTheSameBytes) { EXPECT_EQ(Bytes(), Bytes()); }

TEST_F(Glb, ReportsProgressAndCanBeCancelled) {
  double last = -1.0;
  options.progress = [&](double share) {
    EXPECT_GE(share, last);
    last = share;
    return true;
  };
  Write();
  EXPECT_EQ(last, 1.0);
  options.progress = nullptr;
  const std::string before = Bytes();
  options.progress = [](double share) { return share < 0.5; };
  EXPECT_THROW(WriteGlb(building, options), ExportError);
  EXPECT_EQ(ReadFile(options.path), before);
}

TEST_F(Glb, AFolderThatIsMissingIsAnError) {
  options.path = (PathOfTest() / "missing" / "model.glb").string();
  EXPECT_THROW(WriteGlb(building, options), ExportError);
}

}  // namespace
}  // namespace KelIFC::exporting
