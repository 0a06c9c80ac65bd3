#include "export/sqlite/write_sqlite.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "kelifc/kelifc.h"

#include "export/sqlite/schema.h"
#include "tests/building/made_building.h"
#include "tests/export/test_path.h"
#include "tests/paths.h"
#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;

using Rows = std::vector<std::vector<std::string>>;

class Sqlite : public testing::Test {
 protected:
  Sqlite() : folder(PathOfTest()) {
    fs::remove_all(folder);
    fs::create_directories(folder);
  }
  ~Sqlite() override {
    sqlite3_close(database);
    fs::remove_all(folder);
  }

  std::string Path() const { return (folder / "out.sqlite").string(); }

  ExportResult Write(const Building& building) {
    ExportOptions options;
    options.path = Path();
    options.source = "house.ifc";
    return SqliteFormat().write(building, options);
  }

  /// The rows that a query returns. Null is "-".
  Rows Query(const std::string& query) {
    if (database == nullptr) {
      EXPECT_EQ(sqlite3_open_v2(Path().c_str(), &database, SQLITE_OPEN_READONLY, nullptr),
                SQLITE_OK);
    }
    Rows rows;
    const auto Add = [](void* target, int count, char** values, char**) {
      std::vector<std::string>& row = static_cast<Rows*>(target)->emplace_back();
      for (int i = 0; i < count; ++i) row.emplace_back(values[i] == nullptr ? "-" : values[i]);
      return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, query.c_str(), Add, &rows, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    return rows;
  }

  const fs::path folder;
  sqlite3* database = nullptr;
};

/// Two columns with a designation, one of them in a storey; two slabs, and a part of one of them.
Building TakeoffBuilding() {
  Building building;
  building.storeys = {{1, "", "Ground", 0.0, true, std::nullopt}};
  building.materials = {{"S235"}};
  building.profiles = {Circle(0.2, "pipe")};
  building.profiles[0].designation = "CHS200";
  building.profiles[0].area = 0.5;
  building.elements = {MemberFrom(10, {0.0, 0.0, 0.0}, 3.0), MemberFrom(11, {1.0, 0.0, 0.0}, 4.0),
                       Slab(12, 4.0, 5.0), Slab(13, 1.0, 1.0, 0.20001), Slab(14, 4.0, 4.0)};
  building.elements[0].storey = 1;
  building.elements[0].volume = 1.5;
  building.elements[1].volume = 2.0;
  for (std::size_t i : {0, 1}) building.elements[i].material = 0;
  building.elements[2].volume = 4.0;
  building.elements[3].volume = 0.25;
  building.elements[4].volume = 3.2;
  building.elements[4].partOf = 12;
  return building;
}

TEST_F(Sqlite, HoldsARowForEachRowOfTheTables) {
  const Building building = TakeoffBuilding();
  const ExportResult result = Write(building);
  EXPECT_EQ(result.elements, 5u);
  EXPECT_TRUE(result.omissions.empty());
  for (const BuildingTable& table : BuildingTables()) {
    const Rows rows = Query("SELECT count(*) FROM " + std::string(table.name));
    EXPECT_EQ(rows.at(0).at(0), std::to_string(CountRows({building, ""}, table))) << table.name;
  }
}

TEST_F(Sqlite, IsADatabaseWithoutFaults) {
  Building building = TakeoffBuilding();
  building.elements[0].storey = 99;
  building.elements[1].member->profile = 99;
  Write(building);
  EXPECT_THAT(Query("PRAGMA integrity_check"), ElementsAre(ElementsAre("ok")));
  EXPECT_TRUE(Query("PRAGMA foreign_key_check").empty());
  EXPECT_FALSE(Query("PRAGMA foreign_key_list('elements')").empty());
  EXPECT_EQ(Query("SELECT typeof(id), typeof(class), typeof(volume), typeof(tag), approximate "
                  "FROM elements WHERE id = 10"),
            (Rows{{"integer", "text", "real", "null", "0"}}));
}

TEST_F(Sqlite, TextsAreTexts) {
  Building building = TakeoffBuilding();
  const std::string text = "'); DROP TABLE elements; -- \"\x01=1";
  building.materials[0].name = text;
  Write(building);
  EXPECT_EQ(Query("SELECT name, typeof(name) FROM materials"), (Rows{{text, "text"}}));
}

TEST_F(Sqlite, TakesOffMembersByProfile) {
  Write(TakeoffBuilding());
  EXPECT_EQ(Query("SELECT name, designation, shape, material, members, length, area, volume, "
                  "weight FROM takeoff_profiles"),
            (Rows{{"pipe", "CHS200", "circle", "S235", "2", "7.0", "0.5", "3.5", "27475.0"}}));
}

TEST_F(Sqlite, AProfileWithoutADesignationHasNoWeight) {
  Building building = TakeoffBuilding();
  building.profiles[0].designation.clear();
  Write(building);
  EXPECT_EQ(Query("SELECT weight FROM takeoff_profiles"), (Rows{{"-"}}));
}

TEST_F(Sqlite, TakesOffSurfacesByThicknessWithoutParts) {
  Write(TakeoffBuilding());
  EXPECT_EQ(Query("SELECT * FROM takeoff_thicknesses"),
            (Rows{{"0.2", "-", "IfcSlab", "2", "21.0", "4.25"}}));
}

TEST_F(Sqlite, TakesOffElementsByStorey) {
  Write(TakeoffBuilding());
  EXPECT_EQ(Query("SELECT * FROM takeoff_storeys"),
            (Rows{{"-", "-", "IfcColumn", "member", "1", "4.0", "-", "2.0"},
                  {"-", "-", "IfcSlab", "surface", "2", "-", "21.0", "4.25"},
                  {"1", "Ground", "IfcColumn", "member", "1", "3.0", "-", "1.5"}}));
}

TEST_F(Sqlite, HasAnIndexForEachReference) {
  Write(TakeoffBuilding());
  for (const char* query :
       {"SELECT * FROM elements WHERE storey = 1", "SELECT * FROM elements WHERE guid = 'x'",
        "SELECT * FROM axis_points WHERE element = 1"}) {
    EXPECT_THAT(Query("EXPLAIN QUERY PLAN " + std::string(query)).at(0).at(3), HasSubstr("SEARCH"));
  }
}

TEST_F(Sqlite, DescribesItsColumns) {
  Write(TakeoffBuilding());
  EXPECT_THAT(Query("SELECT sql FROM sqlite_schema WHERE name = 'storeys'").at(0).at(0),
              HasSubstr("-- distance to the next higher storey (m)"));
}

/// A page of the documentation, with single blanks.
std::string Page(const std::string& name) {
  const std::string text = ReadFile(std::string(kSourceDir) + "/" + name);
  return std::regex_replace(text, std::regex(" +"), " ");
}

TEST_F(Sqlite, TheDocumentationShowsTheTakeoffOfAnExample) {
  IfcServer server;
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  ASSERT_EQ(server.LoadIfc((std::string(kExamplesDir) + "/house.ifc").c_str(), options), 0);
  Write(ReadBuilding(server));
  const Rows rows = Query(
      "SELECT class, thickness, surfaces, area, round(volume, 3) AS volume FROM "
      "takeoff_thicknesses");
  EXPECT_EQ(rows.size(), 4u);
  for (const char* name : {"README.md", "docs/exports.md"}) {
    const std::string page = Page(name);
    for (const std::vector<std::string>& row : rows) {
      std::string line;
      for (const std::string& cell : row) line += (line.empty() ? "\n" : " ") + cell;
      EXPECT_THAT(page, HasSubstr(line + "\n"));
    }
  }
}

TEST_F(Sqlite, ReplacesTheOldFileAtTheEnd) {
  std::ofstream(Path()) << "old";
  ExportOptions options;
  options.path = Path();
  options.progress = [](double) { return false; };
  EXPECT_THROW(SqliteFormat().write(Building(), options), ExportError);
  EXPECT_EQ(fs::file_size(Path()), 3u);
  Write(Building());
  EXPECT_EQ(Query("SELECT count(*) FROM model"), (Rows{{"1"}}));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 1);
}

TEST_F(Sqlite, ABuildingWithEqualNumbersIsRefused) {
  Building building = TakeoffBuilding();
  building.elements[1].id = 10;
  try {
    Write(building);
    FAIL();
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kFile);
    EXPECT_THAT(error.what(), HasSubstr("out.sqlite"));
  }
  EXPECT_FALSE(fs::exists(Path()));
}

}  // namespace
}  // namespace KelIFC::exporting
