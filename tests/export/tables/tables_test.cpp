#include "export/tables/tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "tests/building/made_building.h"
#include "tests/paths.h"
#include "tests/read_file.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// A cell as text; null is "-".
std::string Shown(const TableCell& cell) {
  struct Show {
    std::string operator()(std::monostate) const { return "-"; }
    std::string operator()(std::string_view text) const { return std::string(text); }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(double number) const {
      std::ostringstream text;
      text << number;
      return text.str();
    }
  };
  return std::visit(Show(), cell);
}

using Row = std::map<std::string, std::string>;

/// The rows of a table, by the names of the columns.
std::vector<Row> Rows(const Building& building, std::string_view name) {
  const BuildingTable& table = *FindBuildingTable(name);
  std::vector<Row> rows;
  ForEachRow({building, "house.ifc"}, table, [&](const std::vector<TableCell>& cells) {
    ASSERT_EQ(cells.size(), table.columns.size());
    Row& row = rows.emplace_back();
    for (std::size_t i = 0; i < cells.size(); ++i) {
      row[std::string(table.columns[i].name)] = Shown(cells[i]);
    }
  });
  return rows;
}

/// The cells of one column of a table.
std::vector<std::string> Column(const Building& building, std::string_view table,
                                const std::string& column) {
  std::vector<std::string> cells;
  for (const Row& row : Rows(building, table)) cells.push_back(row.at(column));
  return cells;
}

/// A building with a storey, a column, a slab with a hole and an opening, and a curved wall.
Building SmallBuilding() {
  Building building;
  building.release = IFC_RELEASE_2X3;
  building.storeys = {{7, "s", "Ground", 0.5, true, std::nullopt}};
  building.materials = {{"steel"}, {"concrete"}};
  building.profiles = {Circle(0.3, "C30")};
  BuildingElement column = MemberFrom(10, {1.0, 2.0, 0.0}, 3.0);
  column.storey = 7;
  column.material = 0;
  column.member->ends[1] = EndPlane{{1.0, 2.0, 3.0}, {0.0, 0.6, 0.8}};
  BuildingElement slab = Slab(11, 4.0, 5.0);
  slab.surface->arcs = {{1, {4.5, 2.5, 0.0}}};
  slab.surface->holes = {{{1.0, 1.0, 0.0}, {1.0, 2.0, 0.0}, {2.0, 2.0, 0.0}}};
  slab.surface->layers = {{1, 0.15}, {std::nullopt, 0.05}};
  BuildingOpening opening;
  opening.id = 20;
  opening.kind = OpeningKind::kDoor;
  opening.fill = 21;
  opening.outline = {{0.0, 0.0, 0.0}, {2.0, 0.0, 0.0}, {2.0, 1.0, 0.0}, {0.0, 1.0, 0.0}};
  slab.openings = {opening};
  BuildingElement wall = Slab(12, 1.0, 1.0);
  wall.partOf = 11;
  wall.surface = SurfaceRegion();
  wall.surface->thickness = 0.2;
  wall.surface->sweep = WallSweep{
      CurveForm::kArc, {{0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}, {2.0, 0.0, 0.0}}, {0.0, 0.0, 1.0}, 2.5};
  building.elements = {column, slab, wall};
  return building;
}

TEST(Tables, HaveDistinctNamesAndColumns) {
  std::set<std::string_view> names;
  for (const BuildingTable& table : BuildingTables()) {
    EXPECT_TRUE(names.insert(table.name).second) << table.name;
    EXPECT_FALSE(table.meaning.empty());
    std::set<std::string> columns;
    for (const TableColumn& column : table.columns) {
      std::string lower(column.name);
      for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      EXPECT_TRUE(columns.insert(lower).second) << table.name << "." << column.name;
      EXPECT_FALSE(column.meaning.empty()) << column.name;
      EXPECT_EQ(column.meaning.find('|'), std::string_view::npos) << column.name;
    }
    EXPECT_LT(table.keyColumns, table.columns.size());
  }
  EXPECT_EQ(names.size(), 10u);
}

TEST(Tables, ReferToATableBeforeThemOrToThemselvesWithAKeyOfOneColumn) {
  std::set<std::string_view> earlier;
  for (const BuildingTable& table : BuildingTables()) {
    earlier.insert(table.name);
    for (const TableColumn& column : table.columns) {
      if (column.references.empty()) continue;
      EXPECT_EQ(earlier.count(column.references), 1u) << table.name << "." << column.name;
      EXPECT_EQ(FindBuildingTable(column.references)->keyColumns, 1u);
    }
  }
}

TEST(Tables, HaveCellsOfTheTypesOfTheirColumns) {
  const Building building = SmallBuilding();
  for (const BuildingTable& table : BuildingTables()) {
    std::size_t rows = 0;
    ForEachRow({building, "f"}, table, [&](const std::vector<TableCell>& cells) {
      ++rows;
      for (std::size_t i = 0; i < cells.size(); ++i) {
        if (cells[i].index() == 0) {
          EXPECT_GE(i, table.keyColumns) << "a key is null";
        } else {
          EXPECT_EQ(cells[i].index(), static_cast<std::size_t>(table.columns[i].type) + 1)
              << table.name << "." << table.columns[i].name;
        }
      }
    });
    EXPECT_EQ(rows, CountRows({building, "f"}, table)) << table.name;
  }
}

TEST(Tables, NoTableHasAnUnknownName) { EXPECT_EQ(FindBuildingTable("walls"), nullptr); }

TEST(Tables, TheModelIsOneRow) {
  Building building = SmallBuilding();
  building.trueNorth = Vector2(0.0, 1.0);
  building.totals.products = 4;
  const std::vector<Row> rows = Rows(building, "model");
  ASSERT_EQ(rows.size(), 1u);
  EXPECT_EQ(rows[0].at("file"), "house.ifc");
  EXPECT_EQ(rows[0].at("release"), "2x3");
  EXPECT_EQ(rows[0].at("trueNorthY"), "1");
  EXPECT_EQ(rows[0].at("products"), "4");
  EXPECT_EQ(rows[0].at("project"), "-");
}

TEST(Tables, AStoreyWithoutAnElevationHasNull) {
  Building building = SmallBuilding();
  EXPECT_THAT(Column(building, "storeys", "elevation"), ElementsAre("0.5"));
  building.storeys[0].hasElevation = false;
  EXPECT_THAT(Column(building, "storeys", "elevation"), ElementsAre("-"));
  EXPECT_THAT(Column(building, "storeys", "height"), ElementsAre("-"));
}

TEST(Tables, AProfileHasTheParametersOfItsShapeAndItsOutline) {
  Building building;
  BuildingProfile profile = Circle(0.3, "C30");
  profile.outline = {{1.0, 0.0}, {0.5, 1.25}, {-1.0, 0.0}};
  profile.holes = {{{0.1, 0.0}, {0.0, 0.1}, {0.2, 0.2}}, {}};
  building.profiles = {profile};
  const Row row = Rows(building, "profiles").at(0);
  EXPECT_EQ(row.at("id"), "0");
  EXPECT_EQ(row.at("shape"), "circle");
  EXPECT_EQ(row.at("d"), "0.3");
  EXPECT_EQ(row.at("tw"), "-");
  EXPECT_EQ(row.at("outline"),
            "POLYGON ((1 0, 0.5 1.25, -1 0, 1 0), (0.1 0, 0 0.1, 0.2 0.2, 0.1 0))");
}

TEST(Tables, AnElementHasTheColumnsOfItsKind) {
  const std::vector<Row> rows = Rows(SmallBuilding(), "elements");
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].at("id"), "10");
  EXPECT_EQ(rows[0].at("kind"), "member");
  EXPECT_EQ(rows[0].at("curve"), "line");
  EXPECT_EQ(rows[0].at("length"), "3");
  EXPECT_EQ(rows[0].at("profile"), "0");
  EXPECT_EQ(rows[0].at("storey"), "7");
  EXPECT_EQ(rows[0].at("yX"), "1");
  EXPECT_EQ(rows[0].at("maxZ"), "3");
  EXPECT_EQ(rows[0].at("area"), "-");
  EXPECT_EQ(rows[0].at("normalZ"), "-");
  EXPECT_EQ(rows[1].at("thickness"), "0.2");
  EXPECT_EQ(rows[1].at("normalZ"), "1");
  EXPECT_EQ(rows[1].at("profile"), "-");
  EXPECT_EQ(rows[1].at("storey"), "-");
  EXPECT_EQ(rows[2].at("height"), "2.5");
  EXPECT_EQ(rows[2].at("normalZ"), "-");
  EXPECT_EQ(rows[2].at("directionZ"), "1");
  EXPECT_EQ(rows[2].at("partOf"), "11");
}

TEST(Tables, AReferenceThatLeadsNowhereIsNull) {
  Building building = SmallBuilding();
  building.elements[0].storey = 8;
  building.elements[0].material = 2;
  building.elements[0].member->profile = 5;
  building.elements[2].partOf = 99;
  building.elements[1].surface->layers[0].material = 2;
  const std::vector<Row> rows = Rows(building, "elements");
  for (const char* column : {"storey", "material", "profile"}) {
    EXPECT_EQ(rows[0].at(column), "-") << column;
  }
  EXPECT_EQ(rows[2].at("partOf"), "-");
  EXPECT_THAT(Column(building, "layers", "material"), ElementsAre("-", "-"));
}

TEST(Tables, LayersFollowEachOther) {
  const Building building = SmallBuilding();
  EXPECT_THAT(Column(building, "layers", "layer"), ElementsAre("0", "1"));
  EXPECT_THAT(Column(building, "layers", "material"), ElementsAre("1", "-"));
  EXPECT_THAT(Column(building, "layers", "thickness"), ElementsAre("0.15", "0.05"));
}

TEST(Tables, AxisPointsHaveThePlanesOfTheEnds) {
  const Building building = SmallBuilding();
  EXPECT_THAT(Column(building, "axis_points", "element"),
              ElementsAre("10", "10", "12", "12", "12"));
  EXPECT_THAT(Column(building, "axis_points", "point"), ElementsAre("0", "1", "0", "1", "2"));
  EXPECT_THAT(Column(building, "axis_points", "z"), ElementsAre("0", "3", "0", "0", "0"));
  EXPECT_THAT(Column(building, "axis_points", "planeZ"), ElementsAre("-", "3", "-", "-", "-"));
  EXPECT_THAT(Column(building, "axis_points", "normalY"), ElementsAre("-", "0.6", "-", "-", "-"));
}

TEST(Tables, OutlinePointsCoverOutlinesHolesAndOpenings) {
  const Building building = SmallBuilding();
  EXPECT_THAT(Column(building, "outline_points", "ring"),
              ElementsAre("outline", "outline", "outline", "outline", "hole", "hole", "hole",
                          "opening", "opening", "opening", "opening"));
  EXPECT_THAT(Column(building, "outline_points", "throughX"),
              ElementsAre("-", "4.5", "-", "-", "-", "-", "-", "-", "-", "-", "-"));
}

TEST(Tables, AnOpeningNamesItsElementAndWhatFillsIt) {
  const Row row = Rows(SmallBuilding(), "openings").at(0);
  EXPECT_EQ(row.at("element"), "11");
  EXPECT_EQ(row.at("id"), "20");
  EXPECT_EQ(row.at("kind"), "door");
  EXPECT_EQ(row.at("fill"), "21");
  EXPECT_EQ(row.at("area"), "2");
}

TEST(Tables, ALossHasItsReason) {
  Building building;
  building.losses = {{5, 0, "IfcBeam", "", "B", LossReason::kOpen, 6}};
  const Row row = Rows(building, "losses").at(0);
  EXPECT_EQ(row.at("line"), "-");
  EXPECT_EQ(row.at("reason"), "open");
  EXPECT_EQ(row.at("at"), "6");
}

TEST(Tables, TextsAreWellFormedAndNumbersFinite) {
  Building building = SmallBuilding();
  building.elements[0].name = std::string("a\0b", 3);
  building.elements[1].name = "\xFF\xC3\xBC";
  building.elements[2].name = "";
  building.elements[0].volume = kInfinity;
  building.elements[1].volume = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(Column(building, "elements", "name"), ElementsAre("a\xEF\xBF\xBD"
                                                                "b",
                                                                "\xEF\xBF\xBD\xC3\xBC", "-"));
  EXPECT_THAT(Column(building, "elements", "volume"), ElementsAre("-", "-", "0"));
}

TEST(Tables, AnEmptyBuildingHasNoRowsButThatOfTheModel) {
  const Building building;
  for (const BuildingTable& table : BuildingTables()) {
    EXPECT_EQ(Rows(building, table.name).size(), table.name == "model" ? 1u : 0u) << table.name;
  }
}

std::string_view TypeText(ColumnType type) {
  constexpr std::string_view kTexts[] = {"text", "integer", "real", "boolean"};
  return kTexts[static_cast<std::size_t>(type)];
}

/// A table as the documentation shows it.
std::string Documentation(const BuildingTable& table) {
  std::string text = "### `" + std::string(table.name) + "`\n\n" + std::string(table.meaning) +
                     "\n\n| column | type | unit | content |\n|---|---|---|---|\n";
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    const TableColumn& column = table.columns[i];
    text += "| `" + std::string(column.name) + "`" + (i < table.keyColumns ? " (key)" : "") +
            " | " + std::string(TypeText(column.type)) + " | " + std::string(column.unit) + " | " +
            std::string(column.meaning);
    if (!column.references.empty()) text += "; refers to `" + std::string(column.references) + "`";
    text += " |\n";
  }
  return text;
}

TEST(Tables, AreDocumented) {
  const std::string page = ReadFile(std::string(kSourceDir) + "/docs/exports.md");
  for (const BuildingTable& table : BuildingTables()) {
    EXPECT_NE(page.find(Documentation(table)), std::string::npos)
        << "docs/exports.md lacks this:\n\n"
        << Documentation(table);
  }
}

}  // namespace
}  // namespace KelIFC
