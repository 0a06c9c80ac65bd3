#include "export/view/write_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "export/export.h"
#include "export/view/page_template.h"
#include "tests/building/made_building.h"
#include "tests/export/test_path.h"
#include "tests/export/view/decoded_page.h"
#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

using nlohmann::json;
using testing::ElementsAre;

constexpr std::uint32_t kNone = 4'294'967'295;

BuildingProfile Square(double size) {
  BuildingProfile profile;
  profile.name = "square";
  profile.shape = ProfileShape::kRectangle;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kH)] = size;
  profile.parameters[static_cast<std::size_t>(ProfileParameter::kB)] = size;
  const double half = 0.5 * size;
  profile.outline = {{-half, -half}, {half, -half}, {half, half}, {-half, half}};
  profile.area = size * size;
  return profile;
}

// Two equal columns and a slab far from the world's origin, on two storeys, and a body that was not
// kept.
Building SmallHouse() {
  const Point3 corner(5'400'000.0, 3'600'000.0, 100.0);
  Building building;
  building.release = IFC_RELEASE_2X3;
  building.schema = "IFC2X3";
  building.trueNorth = Vector2(0.0, 1.0);
  building.lengthUnit = {"MILLIMETRE", 0.001};
  building.storeys.resize(2);
  building.storeys[0].id = 11;
  building.storeys[0].name = "Ground";
  building.storeys[0].elevation = 100.0;
  building.storeys[0].hasElevation = true;
  building.storeys[0].height = 3.0;
  building.storeys[1].id = 12;
  building.materials = {{"Steel"}};
  building.profiles = {Square(0.2)};
  building.elements = {MemberFrom(21, corner),
                       MemberFrom(22, corner + Vector3(4.0, 0.0, 0.0), 2.5)};
  BuildingElement slab = Slab(23, 4.0, 5.0);
  const Vector3 move = corner - Point3();
  for (Point3& point : slab.surface->outline) point = point + move;
  slab.box = {slab.box.min + move, slab.box.max + move};
  building.elements.push_back(slab);
  building.elements.emplace_back();
  building.elements.back().id = 24;
  building.elements.back().className = "IfcBuildingElementProxy";
  return building;
}

class Page : public testing::Test {
 protected:
  Page() { std::filesystem::create_directory(folder); }
  ~Page() override { std::filesystem::remove_all(folder); }

  std::string Path(const std::string& name = "page.html") const { return (folder / name).string(); }

  ExportOptions Options() const {
    ExportOptions options;
    options.path = Path();
    options.source = "models/house.ifc";
    return options;
  }

  ExportResult Write(const Building& building) const {
    return FillPage(PageTemplate{{"<html>", "<body>"}, {"</body>", "</html>"}}, building,
                    Options());
  }

  DecodedPage Written(const Building& building) const {
    Write(building);
    return DecodedPage(ReadFile(Path()));
  }

 private:
  std::filesystem::path folder = PathOfTest();
};

TEST_F(Page, HasTheDataBetweenHeadAndTail) {
  const DecodedPage page = Written(SmallHouse());
  EXPECT_EQ(page.head, "<html><body>");
  EXPECT_EQ(page.tail, "</body></html>");
}

TEST_F(Page, DescribesTheBuilding) {
  const json description = Written(SmallHouse()).description;
  EXPECT_EQ(description.at("version"), 1);
  EXPECT_EQ(description.at("source"), "models/house.ifc");
  EXPECT_EQ(description.at("release"), "2x3");
  EXPECT_EQ(description.at("trueNorth"), json({0.0, 1.0}));
  EXPECT_EQ(description.at("lengthUnit"),
            json::parse(R"({"name": "MILLIMETRE", "metres": 0.001})"));
  EXPECT_EQ(description.at("box").at(1), json({5'400'004.1, 3'600'005.0, 103.0}));
  EXPECT_EQ(description.at("storeys").at(0).at("height"), 3.0);
  EXPECT_EQ(description.at("storeys").at(1).at("elevation"), nullptr);
  EXPECT_EQ(description.at("materials"), json::parse(R"([{"name": "Steel"}])"));
  const json& profile = description.at("profiles").at(0);
  EXPECT_EQ(profile.at("shape"), "rectangle");
  EXPECT_EQ(profile.at("parameters"), json::parse(R"({"h": 0.2, "b": 0.2})"));
  EXPECT_EQ(profile.at("outline").size(), 4U);
  EXPECT_EQ(profile.at("designation"), nullptr);
}

TEST_F(Page, HasAColumnForEachPropertyOfTheElements) {
  Building building = SmallHouse();
  building.elements[0].storey = 12;
  building.elements[0].storeyByHeight = 11;
  building.elements[1].partOf = 23;
  building.elements[1].material = 0;
  building.elements[2].type = "FLOOR";
  building.elements[2].isApproximate = true;
  building.elements[2].volumeRatio = 0.75;
  const json description = Written(building).description;
  const json& elements = description.at("elements");
  EXPECT_EQ(elements.at("count"), 4);
  for (const auto& [name, column] : elements.items()) {
    if (name == "count") continue;
    EXPECT_EQ(column.size(), 4U) << name;
  }
  EXPECT_EQ(elements.at("id"), json({21, 22, 23, 24}));
  EXPECT_EQ(description.at("classes"), json({"IfcColumn", "IfcSlab", "IfcBuildingElementProxy"}));
  EXPECT_EQ(elements.at("class"), json({0, 0, 1, 2}));
  EXPECT_EQ(elements.at("type"), json({nullptr, nullptr, 0, nullptr}));
  EXPECT_EQ(elements.at("storey"), json({1, nullptr, nullptr, nullptr}));
  EXPECT_EQ(elements.at("storeyByHeight"), json({0, nullptr, nullptr, nullptr}));
  EXPECT_EQ(elements.at("partOf"), json({nullptr, 2, nullptr, nullptr}));
  EXPECT_EQ(elements.at("material"), json({nullptr, 0, nullptr, nullptr}));
  EXPECT_EQ(elements.at("profile"), json({0, 0, nullptr, nullptr}));
  EXPECT_EQ(elements.at("kind"), json({0, 0, 1, 2}));
  EXPECT_EQ(elements.at("approximate"), json({0, 0, 1, 0}));
  EXPECT_EQ(elements.at("volumeRatio"), json({nullptr, nullptr, 0.75, nullptr}));
  EXPECT_EQ(elements.at("length"), json({3.0, 2.5, nullptr, nullptr}));
  EXPECT_EQ(elements.at("area"), json({nullptr, nullptr, 20.0, nullptr}));
  EXPECT_EQ(elements.at("thickness"), json({nullptr, nullptr, 0.2, nullptr}));
}

TEST_F(Page, ListsOpeningsLossesAndTotals) {
  Building building = SmallHouse();
  building.elements[2].openings.resize(2);
  building.elements[2].openings[0].id = 31;
  building.elements[2].openings[1].id = 32;
  building.elements[2].openings[1].kind = OpeningKind::kDoor;
  building.elements[2].openings[1].fill = 33;
  building.losses.resize(1);
  building.losses[0].id = 41;
  building.losses[0].line = 7;
  building.losses[0].reason = LossReason::kOpen;
  building.totals.products = 5;
  building.totals.lost = 1;
  const json description = Written(building).description;
  EXPECT_EQ(description.at("openings"),
            json::parse(R"([{"element": 2, "id": 31, "kind": "void", "fill": null},
                            {"element": 2, "id": 32, "kind": "door", "fill": 33}])"));
  EXPECT_EQ(description.at("losses").at(0).at("line"), 7);
  EXPECT_EQ(description.at("losses").at(0).at("reason"), "open");
  EXPECT_EQ(description.at("losses").at(0).at("at"), nullptr);
  EXPECT_EQ(description.at("totals").at("lost"), 1);
}

// Returns the box of an element's solid as the arrays of the page describe it.
BuildingBox SolidBox(const DecodedPage& page, std::size_t element) {
  const std::vector<float> positions = page.Floats("positions");
  const std::vector<float> m = page.Floats("elementMatrix");
  const std::vector<std::uint32_t> meshes = page.Integers("meshes");
  const std::size_t mesh = std::size_t{6} * page.Integers("elementMesh").at(element);
  const json& origin = page.description.at("origin");
  BuildingBox box;
  for (std::size_t i = meshes.at(mesh); i < meshes.at(mesh) + meshes.at(mesh + 1); i++) {
    std::array<double, 3> p = {};
    for (std::size_t axis = 0; axis < 3; axis++) {
      const std::size_t at = 12 * element + axis;
      p[axis] = origin.at(axis).get<double>() + m.at(at + 9);
      for (std::size_t k = 0; k < 3; k++) {
        p[axis] += static_cast<double>(positions.at(3 * i + k)) * m.at(at + 3 * k);
      }
    }
    box.min = {std::min(box.min.x, p[0]), std::min(box.min.y, p[1]), std::min(box.min.z, p[2])};
    box.max = {std::max(box.max.x, p[0]), std::max(box.max.y, p[1]), std::max(box.max.z, p[2])};
  }
  return box;
}

void ExpectNear(const Point3& a, const Point3& b) {
  EXPECT_NEAR(a.x, b.x, 1e-5);
  EXPECT_NEAR(a.y, b.y, 1e-5);
  EXPECT_NEAR(a.z, b.z, 1e-5);
}

TEST_F(Page, ShowsTheSolidsAtTheirPlaces) {
  const Building building = SmallHouse();
  const DecodedPage page = Written(building);
  for (std::size_t i = 0; i < 3; i++) {
    SCOPED_TRACE(i);
    const BuildingBox box = SolidBox(page, i);
    ExpectNear(box.min, building.elements[i].box.min);
    ExpectNear(box.max, building.elements[i].box.max);
  }
  const std::vector<std::uint32_t> meshOf = page.Integers("elementMesh");
  EXPECT_THAT(meshOf, ElementsAre(0, 0, 1, kNone));
  const std::vector<std::uint32_t> meshes = page.Integers("meshes");
  EXPECT_EQ(meshes.size(), 12U);
  EXPECT_EQ(page.Integers("triangles").size(), 3U * (meshes[3] + meshes[9]));
  EXPECT_EQ(page.Integers("edges").size(), 2U * (meshes[5] + meshes[11]));
}

TEST_F(Page, ShowsTheAxesAndTheOutlines) {
  const DecodedPage page = Written(SmallHouse());
  EXPECT_THAT(page.Integers("loops"), ElementsAre(0, 0, 2, 0, 1, 2, 2, 0, 2, 4, 4, 1));
  const std::vector<float> points = page.Floats("loopPoints");
  const json& origin = page.description.at("origin");
  ASSERT_EQ(points.size(), 24U);
  EXPECT_NEAR(points[0] + origin[0].get<double>(), 5'400'000.0, 1e-5);
  EXPECT_NEAR(points[5] + origin[2].get<double>(), 103.0, 1e-5);
}

TEST_F(Page, AccountsForAllElements) {
  const ExportResult result = Write(SmallHouse());
  EXPECT_EQ(result.elements, 4U);
  ASSERT_EQ(result.omissions.size(), 1U);
  EXPECT_EQ(result.omissions[0].what, "solids of listed elements");
  EXPECT_EQ(result.omissions[0].count, 1U);
}

TEST_F(Page, OfAnEmptyBuildingHasNoBox) {
  const DecodedPage page = Written(Building());
  EXPECT_EQ(page.description.at("box"), nullptr);
  EXPECT_EQ(page.description.at("elements").at("count"), 0);
  EXPECT_TRUE(page.Integers("meshes").empty());
}

TEST_F(Page, HasTheTextOfTheModelInTheDataOnly) {
  const std::string script = "</script><script>alert(1)</script><!--";
  const std::string control("a\0\x1B[31m\xFF", 8);
  Building building = SmallHouse();
  building.schema = script;
  building.storeys[0].name = script;
  building.materials[0].name = std::string(10'000, '<');
  building.elements[0].name = script;
  building.elements[1].name = control;
  building.elements[2].className = "=cmd|' /C calc'!A0";
  Write(building);
  const std::string html = ReadFile(Path());
  const DecodedPage page(html);
  EXPECT_EQ(page.tail, "</body></html>");
  EXPECT_EQ(html.find("alert"), std::string::npos);
  EXPECT_EQ(html.find("calc"), std::string::npos);
  EXPECT_EQ(html.find('\x1B'), std::string::npos);
  const json& names = page.description.at("elements").at("name");
  EXPECT_EQ(names.at(0), script);
  EXPECT_EQ(names.at(1), std::string("a\0\x1B[31m\xEF\xBF\xBD", 10));
  EXPECT_EQ(page.description.at("materials").at(0).at("name"), std::string(10'000, '<'));
}

TEST_F(Page, HasNoNumberThatIsNotFinite) {
  const double infinity = std::numeric_limits<double>::infinity();
  Building building = SmallHouse();
  building.elements[0].member->points[1].z = infinity;
  building.elements[0].box.max.z = infinity;
  building.elements[1].deviation = infinity;
  building.elements[2].surface->outline[0].x = std::nan("");
  const DecodedPage page = Written(building);
  EXPECT_EQ(page.description.at("elements").at("deviation").at(1), nullptr);
  EXPECT_EQ(page.description.at("box").at(1).at(2), 102.5);
  for (const char* const name : {"positions", "elementMatrix", "loopPoints"}) {
    for (const float number : page.Floats(name)) EXPECT_TRUE(std::isfinite(number)) << name;
  }
}

TEST_F(Page, HasTheSameBytesEachTime) {
  Write(SmallHouse());
  const std::string first = ReadFile(Path());
  Write(SmallHouse());
  EXPECT_EQ(ReadFile(Path()), first);
}

TEST_F(Page, LeavesTheFileAsItWasIfItIsCancelled) {
  std::ofstream(Path()) << "old";
  for (const double limit : {0.2, 0.7, 0.999}) {
    ExportOptions options = Options();
    options.progress = [&](double share) { return share < limit; };
    try {
      FillPage(PageTemplate(), SmallHouse(), options);
      FAIL() << limit;
    } catch (const ExportError& error) {
      EXPECT_EQ(error.failure, ExportFailure::kCancelled);
    }
    EXPECT_EQ(ReadFile(Path()), "old");
  }
}

TEST_F(Page, IsAFormatThatSaysWhatIsMissing) {
  const ExportFormat* const format = FindExportFormat("view");
  ASSERT_NE(format, nullptr);
  EXPECT_EQ(format->extension, ".html");
  EXPECT_EQ(format->missing.empty(), HasPageTemplate());
}

TEST_F(Page, OfTheBuildHasTheDataInItsPlace) {
  if (!HasPageTemplate()) GTEST_SKIP() << "this build has no page";
  ExportBuilding(SmallHouse(), *FindExportFormat("view"), Options());
  const DecodedPage page(ReadFile(Path()));
  EXPECT_EQ(page.head.substr(0, 15), "<!doctype html>");
  EXPECT_NE(page.head.find("Content-Security-Policy"), std::string::npos);
  EXPECT_NE(page.tail.find("</html>"), std::string::npos);
  EXPECT_EQ(page.description.at("elements").at("count"), 4);
}

}  // namespace
}  // namespace KelIFC::exporting
