#include "export/svg/write_svg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <limits>
#include <memory>

#include "tests/export/svg/made_storeys.h"
#include "tests/export/test_path.h"
#include "tests/read_file.h"

namespace KelIFC::exporting::svg {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// True if the tags of a document match, and if attributes are quoted and have no markup in them.
bool IsWellFormed(const std::string& text) {
  std::vector<std::string> open;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    const std::size_t end = text.find('>', at);
    if (end == std::string::npos) return false;
    const std::string tag = text.substr(at + 1, end - at - 1);
    if (tag.find('<') != std::string::npos) return false;
    if (std::count(tag.begin(), tag.end(), '"') % 2 != 0) return false;
    if (tag.front() == '?' || tag.back() == '/') continue;
    if (tag.front() == '/') {
      if (open.empty() || open.back() != tag.substr(1)) return false;
      open.pop_back();
    } else {
      open.push_back(tag.substr(0, tag.find(' ')));
    }
  }
  return open.empty();
}

class Svg : public testing::Test {
 protected:
  Svg() : folder(PathOfTest()) { fs::remove_all(folder); }
  ~Svg() override { fs::remove_all(folder); }

  ExportResult Write(const Building& building) const {
    ExportOptions options;
    options.path = (folder / "out").string();
    options.source = "models/house.ifc";
    return WriteSvg(building, options);
  }

  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder / "out")) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  std::string Read(const std::string& name) const { return ReadFile(folder / "out" / name); }

  // The plan of the only storey.
  std::string PlanOf(const Building& building) const {
    Write(building);
    return Read("01-Ground.svg");
  }

  const fs::path folder;
};

// A storey with a slab of 10 m by 8 m. Its plan is at 1:50, and the centre of the slab is at
// (215, 128.5) on the paper, so its lower left corner is at (115, 208.5).
Building OneStorey() {
  Building building;
  building.storeys = {StoreyAt(1, 0.0, "Ground")};
  building.profiles = {Rectangle(0.4, 0.4)};
  building.elements = {Floor(10, 1, {}, 10.0, 8.0)};
  return building;
}

TEST_F(Svg, PrintsToScaleOnItsPaper) {
  const std::string plan = PlanOf(OneStorey());
  EXPECT_THAT(plan, HasSubstr("width=\"420mm\" height=\"297mm\" viewBox=\"0 0 420 297\""));
  EXPECT_THAT(plan, HasSubstr("@page { size: 420mm 297mm; margin: 0 }"));
  EXPECT_THAT(plan, HasSubstr(">1:50 on A3</text>"));
  EXPECT_THAT(plan, HasSubstr(">2.5 m</text>"));  // the end of the scale bar
}

TEST_F(Svg, DrawsTheEdgesOfASlab) {
  const std::string plan = PlanOf(OneStorey());
  EXPECT_THAT(plan, HasSubstr("<g id=\"slabs\">\n<g id=\"e10\"><title>IfcSlab #10</title>"
                              "<path d=\"M115 208.5 315 208.5 315 48.5 115 48.5Z\"/></g>\n</g>"));
  EXPECT_THAT(plan, HasSubstr(">h 200 / \xC2\xB1"
                              "0.000</text>"));
}

TEST_F(Svg, DrawsTheHolesOfASlabWithACross) {
  Building building = OneStorey();
  BuildingOpening hole;
  hole.outline = {{1.0, 1.0, -0.1}, {2.0, 1.0, -0.1}, {2.0, 3.0, -0.1}, {1.0, 3.0, -0.1}};
  hole.depth = 0.2;
  building.elements[0].openings.push_back(hole);
  const std::string plan = PlanOf(building);
  EXPECT_THAT(plan,
              HasSubstr("<path d=\"M135 188.5 155 188.5 155 148.5 135 148.5Z\"/>"
                        "<path class=\"cross\" d=\"M135 188.5 155 148.5M155 188.5 135 148.5\"/>"));
}

TEST_F(Svg, CutsAndHatchesAWallAndAColumn) {
  Building building = OneStorey();
  building.materials = {{"Concrete"}};
  building.elements.push_back(Wall(11, 1, {0.0, 0.1, 0.0}, 10.0, 3.0));
  building.elements.push_back(Column(12, 1, {5.0, 4.0, 0.0}, 3.0));
  building.elements[1].material = 0;
  const std::string plan = PlanOf(building);
  EXPECT_THAT(plan, HasSubstr("<g id=\"walls\">\n<g id=\"e11\" class=\"concrete\">"
                              "<title>IfcWall #11</title><path class=\"fill\" d=\"M"));
  EXPECT_THAT(plan, HasSubstr("<g id=\"columns\">\n<g id=\"e12\" class=\"general\">"));
  // The column is 8 mm wide.
  for (const char* corner : {"211 132.5", "219 132.5", "219 124.5", "211 124.5"}) {
    EXPECT_THAT(plan, HasSubstr(corner));
  }
  EXPECT_THAT(plan, HasSubstr(">400x400</text>"));
  EXPECT_THAT(plan, HasSubstr(">concrete</text>"));
  EXPECT_THAT(plan, HasSubstr(">other material</text>"));
}

TEST_F(Svg, ShowsTheOpeningOfADoorAsAGap) {
  Building building = OneStorey();
  building.elements = {Wall(11, 1, {0.0, 0.1, 0.0}, 10.0, 3.0)};
  building.elements[0].openings = {OpeningAt(OpeningKind::kDoor, {4.0, 0.1, 0.0}, 1.0, 2.0),
                                   OpeningAt(OpeningKind::kWindow, {7.0, 0.1, 1.5}, 1.0, 1.0)};
  const std::string plan = PlanOf(building);
  // The wall is 200 mm long and begins at 115 mm; the door is from 195 mm to 215 mm. The window is
  // above the cut.
  EXPECT_THAT(plan, HasSubstr("<g id=\"openings\">\n<g class=\"door\"><path class=\"face\" d=\"M"));
  EXPECT_THAT(plan, Not(HasSubstr("<g class=\"window\">")));
  EXPECT_THAT(plan, HasSubstr("M195 126.5 195 130.5"));
  EXPECT_THAT(plan, HasSubstr("M215 130.5 215 126.5"));
}

TEST_F(Svg, DashesBeamsAboveTheCutAndNamesTheirProfiles) {
  Building building = OneStorey();
  building.profiles[0].designation = "HEB400";
  building.elements.push_back(Beam(11, 1, {0.0, 2.0, 2.8}, 10.0));
  const std::string plan = PlanOf(building);
  EXPECT_THAT(plan, HasSubstr("<g id=\"beams-above\">\n<g id=\"e11\"><title>IfcBeam #11, HEB400"
                              "</title><path d=\"M115 172.5 315 172.5 315 164.5 115 164.5Z\"/>"));
  EXPECT_THAT(plan, HasSubstr("#beams-above path, .slope, .above { stroke-width: 0.25; "
                              "stroke-dasharray: 3 1.2 }"));
  EXPECT_THAT(plan, HasSubstr("<g id=\"texts\">\n<text x=\"215\" y=\"163.7\">HEB400</text>"));
}

TEST_F(Svg, DrawsABodyThatIsNotClosedFromAbove) {
  Building building = OneStorey();
  BuildingElement body = ElementIn(11, "IfcStairFlight", 1);
  body.box = {{1.0, 1.0, 0.0}, {2.0, 2.0, 3.0}};
  auto mesh = std::make_shared<Mesh>();
  mesh->points = {{1.0, 1.0, 0.0}, {2.0, 1.0, 0.0}, {2.0, 2.0, 3.0}, {1.0, 2.0, 3.0}};
  mesh->AddFace({0, 1, 2, 3});
  body.body.mesh = mesh;
  building.elements.push_back(body);
  const ExportResult result = Write(building);
  EXPECT_EQ(result.elements, 2U);
  EXPECT_THAT(Read("01-Ground.svg"), HasSubstr("M135 188.5 155 188.5 155 168.5 135 168.5Z"));
}

TEST_F(Svg, PointsToTrueNorth) {
  Building building = OneStorey();
  EXPECT_THAT(PlanOf(building), Not(HasSubstr("id=\"north\"")));
  building.trueNorth = Vector2(1.0, 0.0);
  // The centre of the arrow is at (217, 267), and its tip is 8 mm to the right.
  EXPECT_THAT(PlanOf(building), HasSubstr("<g id=\"north\"><title>True north</title>"
                                          "<path d=\"M225 267 "));
}

TEST_F(Svg, NumbersTheFilesByHeight) {
  Building building;
  building.storeys = {StoreyAt(1, -3.0, "Basement"),
                      StoreyAt(2, 0.0,
                               "EG / \xC3\x9C"
                               "bersicht"),
                      StoreyAt(3, 3.0)};
  building.elements = {Column(10, 0, {}, 3.0)};
  building.profiles = {Rectangle(0.4, 0.4)};
  EXPECT_EQ(Write(building).elements, 1U);
  EXPECT_THAT(Files(), ElementsAre("00-unassigned.svg", "01-Basement.svg", "02-EG----bersicht.svg",
                                   "03-unnamed.svg"));
  EXPECT_THAT(Read("00-unassigned.svg"), HasSubstr(">Elements without a storey</text>"));
  EXPECT_THAT(Read("03-unnamed.svg"), HasSubstr(">Storey #3</text>"));
}

TEST_F(Svg, HasTheSamePlaceOfTheBuildingOnAllPlans) {
  Building building = OneStorey();
  building.storeys.push_back(StoreyAt(2, 3.0, "Upper"));
  building.storeys[0].height = 3.0;
  building.elements.push_back(Column(11, 1, {1.0, 1.0, 0.0}, 6.0));
  Write(building);
  for (const std::string& name : Files()) {
    EXPECT_THAT(Read(name), HasSubstr("131 192.5")) << name;
    EXPECT_THAT(Read(name), HasSubstr("139 184.5")) << name;
  }
}

TEST_F(Svg, CountsElementsThatNoPlanShows) {
  Building building = OneStorey();
  building.elements.push_back(ElementIn(11, "IfcStair", 1));
  building.elements.push_back(Column(12, 1, {}, 3.0));
  building.elements[2].member->profile = 5;
  const ExportResult result = Write(building);
  EXPECT_EQ(result.elements, 1U);
  ASSERT_EQ(result.omissions.size(), 1U);
  EXPECT_EQ(result.omissions[0].what, "elements that no plan shows");
  EXPECT_EQ(result.omissions[0].count, 2U);
}

TEST_F(Svg, EscapesTheTextOfTheModel) {
  Building building = OneStorey();
  const std::string hostile =
      "</title><script>alert(1)</script>\"'&\x01\x1B]0;\xFF" + std::string(10'000, 'x');
  building.storeys[0].name = hostile;
  building.schema = hostile;
  building.application = hostile;
  building.materials = {{hostile}};
  building.profiles[0].name = hostile;
  building.elements.push_back(Column(11, 1, {5.0, 4.0, 0.0}, 3.0));
  building.elements[1].name = hostile;
  building.elements[1].className = hostile;
  building.elements[1].member->y = {1.0, 0.0, 0.0};
  Write(building);
  const std::string plan = Read(Files().front());
  EXPECT_TRUE(IsWellFormed(plan));
  EXPECT_THAT(plan, Not(HasSubstr("<script")));
  EXPECT_THAT(plan, Not(HasSubstr("\x01")));
  EXPECT_THAT(plan, Not(HasSubstr("\xFF")));
  EXPECT_LT(plan.size(), 20'000U);
}

TEST_F(Svg, HasNoScriptsAndNoReferencesToOtherFiles) {
  Building building = OneStorey();
  building.elements.push_back(Wall(11, 1, {0.0, 0.1, 0.0}, 10.0, 3.0));
  const std::string plan = PlanOf(building);
  EXPECT_TRUE(IsWellFormed(plan));
  for (const char* part : {"href", "script", "@import", "<image", "<use", "http:", "onload"}) {
    // The name of the namespace is the only address.
    const std::size_t at = plan.find(part, plan.find("viewBox"));
    EXPECT_EQ(at, std::string::npos) << part;
  }
  EXPECT_THAT(plan, HasSubstr("<title id=\"title\">Ground - plan</title>"));
  EXPECT_THAT(plan, HasSubstr("Elements that are cut: 1, below the cut: 1, above it: 0"));
}

TEST_F(Svg, WritesNoNumberThatIsNotFinite) {
  Building building = OneStorey();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  building.elements.push_back(Column(11, 1, {5.0, 4.0, 0.0}, 3.0));
  building.elements[1].member->points[1].x = nan;
  building.elements.push_back(Wall(12, 1, {0.0, 0.1, 0.0}, 10.0, 3.0));
  building.elements[2].openings = {OpeningAt(OpeningKind::kDoor, {nan, 0.1, 0.0}, 1.0, 2.0)};
  building.trueNorth = Vector2(nan, 1.0);
  const ExportResult result = Write(building);
  EXPECT_EQ(result.elements, 2U);
  const std::string plan = Read("01-Ground.svg");
  EXPECT_THAT(plan, Not(HasSubstr("nan")));
  EXPECT_THAT(plan, Not(HasSubstr("inf")));
}

TEST_F(Svg, IsTheSameEachTime) {
  Building building = OneStorey();
  building.elements.push_back(Wall(11, 1, {0.0, 0.1, 0.0}, 10.0, 3.0));
  building.elements.push_back(Column(12, 1, {5.0, 4.0, 0.0}, 3.0));
  EXPECT_EQ(PlanOf(building), PlanOf(building));
}

TEST_F(Svg, WritesNothingForAnEmptyBuilding) {
  const ExportResult result = Write({});
  EXPECT_EQ(result.elements, 0U);
  EXPECT_THAT(result.omissions, IsEmpty());
  EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(Svg, LeavesOutEmptyPlansOfVeryManyStoreys) {
  Building building = OneStorey();
  for (std::size_t i = 0; i < 600; ++i) {
    building.storeys.push_back(StoreyAt(i + 2, 3.0 * static_cast<double>(i + 1)));
  }
  const ExportResult result = Write(building);
  EXPECT_THAT(Files(), ElementsAre("01-Ground.svg"));
  ASSERT_EQ(result.omissions.size(), 1U);
  EXPECT_EQ(result.omissions[0].count, 600U);
}

TEST_F(Svg, EndsIfTheUserCancels) {
  Building building = OneStorey();
  for (std::size_t i = 0; i < 1000; ++i) building.elements.push_back(building.elements[0]);
  ExportOptions options;
  options.path = (folder / "out").string();
  options.progress = [](double) { return false; };
  try {
    WriteSvg(building, options);
    FAIL() << "it was not cancelled";
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kCancelled);
  }
  EXPECT_FALSE(fs::exists(folder / "out"));
}

}  // namespace
}  // namespace KelIFC::exporting::svg
