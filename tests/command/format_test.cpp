#include <gtest/gtest.h>

#include <limits>

#include "tools/kelifc/json.h"
#include "tools/kelifc/structure_format.h"
#include "tools/kelifc/text.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(CommandText, EachByteOfLatin1IsOneCharacter) {
  EXPECT_EQ(Utf8FromLatin1("a\x7F\x80\xE9\xFF"), "a\x7F\xC2\x80\xC3\xA9\xC3\xBF");
}

TEST(CommandJson, NumbersReadBackAsTheSameDouble) {
  for (const double value : {0.1, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, -0.0, 2.7}) {
    const double read = Json::parse(Json(value).dump()).get<double>();
    EXPECT_EQ(read, value);
  }
}

TEST(CommandJson, ANumberThatIsNotFiniteIsNull) {
  EXPECT_EQ(ToText({{"a", kInfinity}, {"b", std::numeric_limits<double>::quiet_NaN()}}),
            "{\n  \"a\": null,\n  \"b\": null\n}\n");
}

TEST(CommandJson, AListHasALineForEachEntry) {
  EXPECT_EQ(ToText({{"list", {1, 2}}, {"none", Json::array()}, {"map", {{"k", true}}}}),
            "{\n  \"list\": [\n    1,\n    2\n  ],\n  \"none\": [],\n"
            "  \"map\": {\n    \"k\": true\n  }\n}\n");
}

TEST(CommandJson, BytesThatAreNotUtf8AreReplaced) {
  EXPECT_EQ(ToText({{"file", "a\xFF"}}), "{\n  \"file\": \"a\xEF\xBF\xBD\"\n}\n");
}

TEST(CommandTable, ColumnsAreAsWideAsTheirWidestCell) {
  TextTable table({"name", "n"}, {false, true});
  table.Add({"Erdgescho\xC3\x9F", "-1"});
  table.Add({"x"});
  EXPECT_EQ(table.ToText(), "  name          n\n  Erdgescho\xC3\x9F   -1\n  x\n");
}

TEST(CommandTable, NumbersHaveUpToSixDigits) {
  EXPECT_EQ(Brief(2.7), "2.7");
  EXPECT_EQ(Brief(-3200.0), "-3200");
  EXPECT_EQ(Brief(kInfinity), "-");
}

Element SomeElement() { return {"E", "{G}", "IFC_R_30x50", 1, {{0, 0, 0}, {0, 0, 2.5}}}; }

Json JsonOf(const Structure& structure) {
  return Json::parse(StructureJson("house.ifc", structure));
}

TEST(StructureFormat, AnElementHasItsMembersInOrder) {
  Structure structure;
  structure.columns = {SomeElement()};
  EXPECT_EQ(JsonOf(structure)["columns"].dump(),
            R"([{"name":"E","guid":"{G}","section":"IFC_R_30x50","storey":1,)"
            R"("points":[[0.0,0.0,0.0],[0.0,0.0,2.5]]}])");
}

TEST(StructureFormat, AnElementInNoStoreyHasNull) {
  Structure structure;
  structure.columns = {SomeElement()};
  structure.columns[0].storey.reset();
  EXPECT_TRUE(JsonOf(structure)["columns"][0]["storey"].is_null());
}

TEST(StructureFormat, ABeamWithoutABoundaryHasNull) {
  Structure structure;
  structure.beams = {{SomeElement(), {}}, {SomeElement(), {{{1, 2, 3}}, {{1, 1, 1}}}}};
  const Json beams = JsonOf(structure)["beams"];
  EXPECT_TRUE(beams[0]["brep"].is_null());
  EXPECT_EQ(beams[1]["brep"].dump(), R"({"points":[[1.0,2.0,3.0]],"faces":[[1,1,1]]})");
}

TEST(StructureFormat, WallsAndPlatesHoldTheirParts) {
  Structure structure;
  structure.walls = {{SomeElement(), true, {SomeElement()}, {}}};
  structure.plates = {{SomeElement(), {SomeElement()}}};
  const Json json = JsonOf(structure);
  EXPECT_EQ(json["walls"][0]["closed"], true);
  EXPECT_EQ(json["walls"][0]["windows"][0]["name"], "E");
  EXPECT_EQ(json["walls"][0]["doors"].dump(), "[]");
  EXPECT_EQ(json["plates"][0]["holes"].size(), 1U);
}

TEST(StructureFormat, AFootHasALocationInsteadOfPoints) {
  Structure structure;
  structure.foots = {{{"F", "{G}", "", {}, {{1, 2, 3}}}}};
  EXPECT_EQ(JsonOf(structure)["foots"][0].dump(),
            R"({"name":"F","guid":"{G}","section":"","storey":null,"location":[1.0,2.0,3.0]})");
}

TEST(StructureFormat, ASectionHasTheSizesOfItsKind) {
  Structure structure;
  structure.sections = {{"IFC_R_30x50", 1, {{"width", 0.3}, {"height", 0.5}}}, {"IFC_N6", 8, {}}};
  EXPECT_EQ(JsonOf(structure)["sections"].dump(),
            R"([{"name":"IFC_R_30x50","kind":1,"width":0.3,"height":0.5},)"
            R"({"name":"IFC_N6","kind":8}])");
}

TEST(StructureFormat, TheTableListsElementsWithTheirParts) {
  Structure structure;
  structure.release = "2x3";
  structure.walls = {{SomeElement(), true, {SomeElement(), SomeElement()}, {}}};
  structure.sections = {{"IFC_H_20", 9, {{"thickness", 0.2}}}};
  const std::string text = StructureTable(structure);
  EXPECT_NE(text.find("windows: E, E"), std::string::npos) << text;
  EXPECT_NE(text.find("0 0 0, 0 0 2.5"), std::string::npos) << text;
  EXPECT_NE(text.find("thickness 0.2"), std::string::npos) << text;
  EXPECT_EQ(text.find("Columns\n"), std::string::npos) << text;
}

}  // namespace
}  // namespace command
