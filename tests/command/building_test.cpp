#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <regex>

#include "tests/command/process.h"
#include "tests/paths.h"
#include "tools/kelifc/csv.h"
#include "tools/kelifc/json.h"
#include "tools/kelifc/json_writer.h"
#include "tools/kelifc/text.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string kHouse = std::string(KelIFC::kExamplesDir) + "/house.ifc";

constexpr int kNotConvertible = 3;
constexpr int kLost = 4;
constexpr int kUsage = 64;

std::vector<std::string> Members(const ordered_json& object) {
  std::vector<std::string> names;
  for (const auto& [name, value] : object.items()) names.push_back(name);
  return names;
}

ordered_json Json(const std::vector<std::string>& arguments) {
  const Outcome run = Kelifc(arguments);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
  return ordered_json::parse(run.out);
}

/// A model of one column without a shape, whose name a terminal must not see as it is.
constexpr char kLostColumn[] =
    "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n"
    "#1=IFCCOLUMN('0aaaaaaaaaaaaaaaaaaaaa',$,'=\\X\\1B[1m\\X2\\00FC\\X0\\',$,$,$,$,$);\n"
    "ENDSEC;\nEND-ISO-10303-21;\n";

class LostColumn : public testing::Test {
 protected:
  LostColumn() { WriteFile(path, kLostColumn); }

  TemporaryFolder folder;
  const std::string path = folder.Path("lost.ifc");
};

TEST(Elements, JsonHasItsMembersInTheirOrder) {
  const auto building = Json({"elements", "--json", "house.ifc"});
  EXPECT_THAT(Members(building),
              ElementsAre("file", "release", "schema", "application", "project", "trueNorth",
                          "lengthUnit", "storeys", "materials", "profiles", "elements",
                          "decomposed", "losses", "totals"));
  EXPECT_EQ(building["file"], "house.ifc");
  EXPECT_EQ(building["release"], "2x3");
  EXPECT_THAT(Members(building["lengthUnit"]), ElementsAre("name", "metres"));
  EXPECT_THAT(Members(building["storeys"][0]),
              ElementsAre("id", "guid", "name", "elevation", "height"));
  EXPECT_THAT(Members(building["profiles"][0]),
              ElementsAre("name", "shape", "parameters", "outline", "holes", "area", "iy", "iz",
                          "iyz", "designation"));
  EXPECT_THAT(Members(building["totals"]), ElementsAre("products", "members", "surfaces", "bodies",
                                                       "decomposed", "lost", "approximate"));
}

TEST(Elements, MembersOfAnElementDependOnItsKind) {
  const auto building = Json({"elements", "--json", "house.ifc"});
  const std::vector<std::string> common = {
      "id",     "class",          "guid",        "name",        "tag",     "type",
      "storey", "storeyByHeight", "partOf",      "material",    "kind",    "source",
      "mapped", "deviation",      "volumeRatio", "approximate", "cutouts", "box",
      "volume", "body",           "openings"};
  std::vector<std::string> member = common;
  for (const char* name : {"curve", "axis", "profile", "profileEnd", "y", "offset", "ends"}) {
    member.emplace_back(name);
  }
  std::vector<std::string> surface = common;
  for (const char* name :
       {"outline", "arcs", "holes", "normal", "thickness", "reference", "layers"}) {
    surface.emplace_back(name);
  }
  int members = 0;
  int surfaces = 0;
  for (const auto& element : building["elements"]) {
    const bool isMember = element["kind"] == "member";
    const bool isSurface = element["kind"] == "surface";
    ++(isMember ? members : surfaces);
    EXPECT_EQ(Members(element), isMember ? member : isSurface ? surface : common);
    EXPECT_THAT(Members(element["body"]), ElementsAre("box", "volume", "closed"));
  }
  EXPECT_GT(members, 0);
  EXPECT_GT(surfaces, 0);
}

TEST(Elements, TotalsBalanceInAllExamples) {
  for (const char* model : {"house.ifc", "office.ifc", "barn.ifc", "hall.ifc"}) {
    const auto building = Json({"elements", "--json", model});
    const auto& t = building["totals"];
    const auto Count = [&t](const char* name) { return t[name].get<std::size_t>(); };
    EXPECT_EQ(Count("members") + Count("surfaces") + Count("bodies") + Count("decomposed") +
                  Count("lost"),
              Count("products"))
        << model;
    EXPECT_GT(Count("products"), 0u) << model;
    EXPECT_EQ(Count("lost"), building["losses"].size());
    EXPECT_EQ(Count("decomposed"), building["decomposed"].size());
  }
}

TEST(Elements, BodiesAddTheBoundaryToEachElement) {
  const auto building = Json({"elements", "--json", "--bodies", "house.ifc"});
  for (const auto& element : building["elements"]) {
    const auto& body = element["body"];
    EXPECT_THAT(Members(body), ElementsAre("box", "volume", "closed", "points", "faces"));
    EXPECT_GT(body["points"].size(), 3u);
    for (const auto& face : body["faces"]) {
      for (const auto& loop : face) {
        for (const auto& index : loop) EXPECT_LT(index.get<std::size_t>(), body["points"].size());
      }
    }
  }
}

TEST(Elements, CsvHasARowForEachElement) {
  const Outcome run = Kelifc({"elements", "--csv", "house.ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string heading =
      "id,class,guid,name,tag,type,kind,storey,material,profile,designation,length,area,thickness,"
      "volume,deviation,approximate,partOf\r\n";
  EXPECT_EQ(run.out.substr(0, heading.size()), heading);
  const auto elements = Json({"elements", "--json", "house.ifc"})["elements"].size();
  EXPECT_EQ(static_cast<std::size_t>(std::count(run.out.begin(), run.out.end(), '\n')),
            elements + 1);
}

TEST(Elements, TableShowsCountsStoreysAndElements) {
  const Outcome run = Kelifc({"elements", "house.ifc"});
  EXPECT_EQ(run.status, 0);
  for (const char* text : {"Products", "Approximate", "Storeys", "Ground floor", "Elements",
                           "member", "surface", "IfcColumn"}) {
    EXPECT_THAT(run.out, HasSubstr(text));
  }
}

TEST(Elements, OutputGoesToTheNamedFile) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("house.json");
  const Outcome run = Kelifc({"elements", "--json", "--output", path, "house.ifc"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(ReadFile(path), Kelifc({"elements", "--json", "house.ifc"}).out);
}

TEST(Elements, AFullDiskIsAFailure) {
  EXPECT_EQ(Kelifc({"elements", "--output", "/dev/full", "house.ifc"}).err,
            "kelifc: /dev/full: No space left on device\n");
}

TEST(Elements, JsonAndCsvExcludeEachOther) {
  EXPECT_EQ(Kelifc({"elements", "--json", "--csv", "house.ifc"}).status, kUsage);
  EXPECT_EQ(Kelifc({"elements", "--csv-raw", "house.ifc"}).status, kUsage);
}

TEST(Elements, TheOldestReleasesCannotBeConverted) {
  for (const char* command : {"elements", "audit"}) {
    const Outcome run = Kelifc({command, "shed.ifc"});
    EXPECT_EQ(run.status, kNotConvertible);
    EXPECT_THAT(run.err, HasSubstr("kelifc: shed.ifc: release "));
  }
  EXPECT_EQ(Kelifc({"diff", "house.ifc", "shed.ifc"}).status, kNotConvertible);
}

TEST_F(LostColumn, IsListedWithItsReasonAndItsLine) {
  const auto losses = Json({"elements", "--json", path})["losses"];
  ASSERT_EQ(losses.size(), 1u);
  EXPECT_THAT(Members(losses[0]),
              ElementsAre("id", "line", "class", "guid", "name", "reason", "at"));
  EXPECT_EQ(losses[0]["id"], 1);
  EXPECT_EQ(losses[0]["line"], 6);
  EXPECT_EQ(losses[0]["class"], "IfcColumn");
  EXPECT_EQ(losses[0]["name"], "=\x1B[1m\xC3\xBC");
  EXPECT_EQ(losses[0]["reason"], "no-representation");
  const auto classic = Json({"elements", "--json", "--dialect", "classic", "house.ifc"})["losses"];
  EXPECT_EQ(classic[0]["line"], 159);
}

TEST_F(LostColumn, GivesAStatusOfItsOwnIfTheUserAsksForIt) {
  for (const char* command : {"elements", "audit"}) {
    EXPECT_EQ(Kelifc({command, path}).status, 0);
    const Outcome run = Kelifc({command, "--json", "--fail-on-loss", path});
    EXPECT_EQ(run.status, kLost);
    EXPECT_EQ(run.err, "kelifc: " + path + ": 1 of 1 products were lost\n");
    EXPECT_EQ(run.out, Kelifc({command, "--json", path}).out);
    EXPECT_EQ(Kelifc({command, "--fail-on-loss", "hall.ifc"}).status, 0);
  }
}

TEST_F(LostColumn, ItsNameIsShownWithoutControlCharacters) {
  for (const char* command : {"elements", "audit"}) {
    const Outcome run = Kelifc({command, path});
    EXPECT_THAT(run.out, HasSubstr("=\\x1B[1m\xC3\xBC"));
    EXPECT_THAT(run.out, Not(HasSubstr("\x1B")));
  }
}

TEST(Audit, JsonHasItsMembersInTheirOrder) {
  const auto audit = Json({"audit", "--json", "house.ifc"});
  EXPECT_THAT(Members(audit), ElementsAre("file", "classes", "storeys", "profiles", "losses"));
  EXPECT_THAT(Members(audit["classes"]["IfcColumn"]),
              ElementsAre("products", "members", "surfaces", "bodies", "decomposed", "approximate",
                          "lost"));
  EXPECT_THAT(Members(audit["storeys"][0]),
              ElementsAre("id", "name", "elevation", "stated", "byHeight", "differing"));
  EXPECT_THAT(Members(audit["profiles"][0]), ElementsAre("name", "shape", "contradicts"));
}

TEST_F(LostColumn, IsCountedByItsReason) {
  EXPECT_EQ(Json({"audit", "--json", path})["classes"].dump(),
            R"({"IfcColumn":{"products":1,"members":0,"surfaces":0,"bodies":0,"decomposed":0,)"
            R"("approximate":0,"lost":{"no-representation":1}}})");
}

TEST(Audit, TableShowsClassesAndStoreys) {
  const Outcome run = Kelifc({"audit", "house.ifc"});
  EXPECT_EQ(run.status, 0);
  for (const char* text : {"IfcColumn", "all", "Storeys", "by height", "Ground floor"}) {
    EXPECT_THAT(run.out, HasSubstr(text));
  }
}

TEST(Diff, OfAModelFromItselfIsNothing) {
  const auto difference = Json({"diff", "--json", "house.ifc", "house.ifc"});
  EXPECT_THAT(Members(difference), ElementsAre("added", "removed", "changed", "same"));
  EXPECT_TRUE(difference["added"].empty());
  EXPECT_TRUE(difference["removed"].empty());
  EXPECT_TRUE(difference["changed"].empty());
  EXPECT_EQ(difference["same"], Json({"elements", "--json", "house.ifc"})["elements"].size());
}

TEST(Diff, ListsWhatIsInOneModelOnly) {
  const auto difference = Json({"diff", "--json", "house.ifc", "hall.ifc"});
  EXPECT_FALSE(difference["added"].empty());
  EXPECT_FALSE(difference["removed"].empty());
  const Outcome table = Kelifc({"diff", "house.ifc", "hall.ifc"});
  EXPECT_THAT(table.out, HasSubstr("Removed"));
  EXPECT_THAT(table.out, HasSubstr("IfcColumn"));
}

TEST(Diff, AChangeNamesWhatChanged) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("renewed.ifc");
  std::string text = ReadFile(kHouse);
  text = std::regex_replace(text, std::regex("(IFCRECTANGLEPROFILEDEF\\([^,]*,[^,]*,[^,]*,)[^,]*,"),
                            "$010.123,");
  WriteFile(path, text);
  const auto changed = Json({"diff", "--json", "house.ifc", path})["changed"];
  ASSERT_FALSE(changed.empty());
  EXPECT_THAT(Members(changed[0]),
              ElementsAre("old", "new", "matchedBy", "moved", "rotated", "profile", "length"));
  EXPECT_EQ(changed[0]["matchedBy"], "guid");
}

TEST(Diff, OneModelOnlyCanBeStandardInput) {
  EXPECT_EQ(Kelifc({"diff", "-", "-"}).status, kUsage);
  const Outcome run = Kelifc({"diff", "--json", "house.ifc", "-"}, "", kHouse);
  EXPECT_EQ(run.status, 0) << run.err;
}

TEST(Csv, QuotesAndGuardsText) {
  command::CsvRow row(false);
  row.Add("plain");
  row.Add("a,b");
  row.Add("say \"x\"\n");
  row.Add("=1+1");
  row.Add("-2");
  row.Add("\tx");
  row.Add("@x");
  row.Add("+x,");
  row.Add(-2.5);
  row.Add(std::size_t{7});
  row.Add(true);
  row.AddEmpty();
  EXPECT_EQ(row.Take(),
            "plain,\"a,b\",\"say \"\"x\"\"\n\",'=1+1,'-2,'\tx,'@x,\"'+x,\",-2.5,7,true,\r\n");
  row.AddEmpty();
  row.Add("x");
  EXPECT_EQ(row.Take(), ",x\r\n");
}

TEST(Csv, LeavesRawTextAsItIs) {
  command::CsvRow row(true);
  row.Add("=1+1");
  EXPECT_EQ(row.Take(), "=1+1\r\n");
}

TEST(Visible, ShowsControlCharactersAndBrokenTextAsNumbers) {
  EXPECT_EQ(command::Visible("a\x1B[m\n\x7F"), "a\\x1B[m\\x0A\\x7F");
  EXPECT_EQ(command::Visible("\xC3\xBC \xE2\x82\xAC \xF0\x9F\x8F\xA0"),
            "\xC3\xBC \xE2\x82\xAC \xF0\x9F\x8F\xA0");
  EXPECT_EQ(command::Visible("\xC2\x9B"), "\\xC2\\x9B");
  EXPECT_EQ(command::Visible("\xE2\x82"), "\\xE2\\x82");
  EXPECT_EQ(command::Visible("\xFF\x80"), "\\xFF\\x80");
}

TEST(JsonWriter, WritesWhatToTextWrites) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("out.json");
  const command::Json object = {{"text", "\"\n\xFF"},
                                {"numbers", {1.0, 0.1, 1e-7, -0.0, 1e300}},
                                {"nothing", nullptr},
                                {"empty", command::Json::array()},
                                {"nested", {{"list", {1, 2}}, {"yes", true}}}};
  command::Output output(path);
  command::JsonWriter json(output);
  json.BeginObject();
  json.Member("text", "\"\n\xFF");
  json.Key("numbers");
  json.BeginList();
  for (const double number : {1.0, 0.1, 1e-7, -0.0, 1e300}) json.Value(number);
  json.EndList();
  json.Key("nothing");
  json.Null();
  json.Key("empty");
  json.BeginList();
  json.EndList();
  json.Key("nested");
  json.BeginObject();
  json.Key("list");
  json.BeginList();
  json.Value(std::size_t{1});
  json.Value(std::size_t{2});
  json.EndList();
  json.Member("yes", true);
  json.EndObject();
  json.EndObject();
  output.Close();
  EXPECT_EQ(ReadFile(path), command::ToText(object));
  EXPECT_EQ(command::NumberText(std::numeric_limits<double>::infinity()), "null");
}

}  // namespace
}  // namespace command_test
