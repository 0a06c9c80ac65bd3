#include "export/export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

constexpr int kFile = 1;
constexpr int kNotConvertible = 3;
constexpr int kLost = 4;
constexpr int kUsage = 64;
constexpr int kMissing = 69;

const std::string kHouse = std::string(KelIFC::kExamplesDir) + "/house.ifc";

/// A member whose extrusion has all that an export needs, and names of the test.
std::string ModelOf(const std::string& name) {
  return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n"
         "#1=IFCCARTESIANPOINT((0.,0.,0.));\n#2=IFCAXIS2PLACEMENT3D(#1,$,$);\n"
         "#3=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#2,$);\n"
         "#4=IFCLOCALPLACEMENT($,#2);\n#5=IFCDIRECTION((0.,0.,1.));\n"
         "#6=IFCRECTANGLEPROFILEDEF(.AREA.,'" +
         name +
         "',$,0.2,0.3);\n"
         "#7=IFCEXTRUDEDAREASOLID(#6,#2,#5,3.);\n"
         "#8=IFCSHAPEREPRESENTATION(#3,'Body','SweptSolid',(#7));\n"
         "#9=IFCPRODUCTDEFINITIONSHAPE($,$,(#8));\n"
         "#10=IFCCOLUMN('0aaaaaaaaaaaaaaaaaaaaa',$,'" +
         name + "',$,'" + name + "',#4,#9,'" + name +
         "');\n"
         "#11=IFCBUILDINGSTOREY('1aaaaaaaaaaaaaaaaaaaaa',$,'" +
         name +
         "',$,$,#4,$,$,.ELEMENT.,0.);\n"
         "#12=IFCRELCONTAINEDINSPATIALSTRUCTURE('2aaaaaaaaaaaaaaaaaaaaa',$,$,$,(#10),#11);\n"
         "#13=IFCMATERIAL('" +
         name +
         "');\n"
         "#14=IFCRELASSOCIATESMATERIAL('3aaaaaaaaaaaaaaaaaaaaa',$,$,$,(#10),#13);\n"
         "ENDSEC;\nEND-ISO-10303-21;\n";
}

/// The content of a file, or of all files of a folder by their names.
std::map<std::string, std::string> Contents(const std::string& path) {
  namespace fs = std::filesystem;
  std::map<std::string, std::string> contents;
  if (fs::is_regular_file(path)) contents[""] = ReadFile(path);
  if (!fs::is_directory(path)) return contents;
  for (const auto& entry : fs::directory_iterator(path)) {
    contents[entry.path().filename().string()] = ReadFile(entry.path().string());
  }
  return contents;
}

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// True for the formats that a browser reads.
bool IsMarkup(const std::string& format) { return format == "svg" || format == "view"; }

std::size_t CountLines(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

nlohmann::json Elements(const std::string& model) {
  return nlohmann::json::parse(Kelifc({"elements", "--json", model}).out);
}

/// The formats that this build can write, as the command offers them.
std::vector<std::string> Formats() {
  std::vector<std::string> names;
  for (const KelIFC::ExportFormat& format : KelIFC::ExportFormats()) {
    if (format.missing.empty()) names.emplace_back(format.name);
  }
  return names;
}

Outcome Export(const std::string& format, const std::string& output, const std::string& model) {
  if (format == "view") return Kelifc({"view", "--output", output, model});
  return Kelifc({"export", "--to", format, "--output", output, model});
}

class EachFormat : public testing::TestWithParam<std::string> {
 protected:
  TemporaryFolder folder;
};

TEST_P(EachFormat, WritesTheSameBytesEachTime) {
  const Outcome first = Export(GetParam(), folder.Path("first"), "house.ifc");
  ASSERT_EQ(first.status, 0) << first.err;
  EXPECT_EQ(first.out, "");
  EXPECT_EQ(Export(GetParam(), folder.Path("second"), "house.ifc").status, 0);
  const auto contents = Contents(folder.Path("first"));
  EXPECT_FALSE(contents.empty());
  EXPECT_EQ(contents, Contents(folder.Path("second")));
}

TEST_P(EachFormat, OutputDoesNotDependOnTheNumberOfThreads) {
  const std::string name = GetParam();
  for (const char* threads : {"1", "3"}) {
    std::vector<std::string> arguments = {"export", "--to", name};
    if (name == "view") arguments = {"view"};
    arguments.insert(arguments.end(),
                     {"--threads", threads, "--output", folder.Path(threads), "office.ifc"});
    EXPECT_EQ(Kelifc(arguments).status, 0);
  }
  EXPECT_EQ(Contents(folder.Path("1")), Contents(folder.Path("3")));
}

TEST_P(EachFormat, WritesABuildingWithoutElements) {
  WriteFile(folder.Path("empty.ifc"),
            "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\nENDSEC;\n"
            "END-ISO-10303-21;\n");
  const Outcome run = Export(GetParam(), folder.Path("out"), folder.Path("empty.ifc"));
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
}

TEST_P(EachFormat, PassesTextsOfTheModelAsTexts) {
  const std::string texts[] = {"</script><script>alert(1)</script>",
                               "\"><img src=x onerror=alert(1)>",
                               "--><!--]]>",
                               "=1+1",
                               "@SUM(A1)",
                               "+1",
                               "-1",
                               "\\X\\09=1",
                               "\\X\\0D=1",
                               "a,\"b\"\\X\\0Ac;d",
                               "''; drop table elements; --",
                               "\\X\\00\\X\\01\\X\\1B[31m\\X\\7F\\X2\\0085FFFEFFFF\\X0\\",
                               "\xFF\xC3(",
                               "\\X2\\D800\\X0\\",
                               "../../x",
                               "",
                               " ",
                               std::string(10000, 'W')};
  std::size_t number = 0;
  for (const std::string& text : texts) {
    const std::string model = folder.Path("model" + std::to_string(number++) + ".ifc");
    WriteFile(model, ModelOf(text));
    ASSERT_EQ(Elements(model)["elements"].size(), 1u) << text;
    const std::string output = folder.Path("out" + std::to_string(number));
    const Outcome run = Export(GetParam(), output, model);
    EXPECT_EQ(run.status, 0) << text << run.err;
    EXPECT_THAT(run.err, MatchesRegex("(kelifc: [ -~]*\n)*"));
    const auto contents = Contents(output);
    EXPECT_FALSE(contents.empty());
    for (const auto& [name, content] : contents) {
      EXPECT_THAT(name, MatchesRegex("[A-Za-z0-9_.-]{0,50}"));
      if (!IsMarkup(GetParam())) continue;
      EXPECT_FALSE(Contains(content, "<script>alert")) << text;
      EXPECT_FALSE(Contains(content, "<img")) << text;
    }
  }
}

TEST_P(EachFormat, ReportsAnOutputThatCannotBeWritten) {
  WriteFile(folder.Path("file"), "");
  const Outcome run = Export(GetParam(), folder.Path("file/out"), "house.ifc");
  EXPECT_EQ(run.status, kFile);
  EXPECT_THAT(run.err, MatchesRegex("kelifc: [^\n]*file/out[^\n]*\n"));
}

TEST_P(EachFormat, LeavesTheOldOutputIfTheModelCannotBeRead) {
  ASSERT_EQ(Export(GetParam(), folder.Path("out"), "house.ifc").status, 0);
  const auto before = Contents(folder.Path("out"));
  EXPECT_EQ(Export(GetParam(), folder.Path("out"), "missing.ifc").status, kFile);
  EXPECT_EQ(Export(GetParam(), folder.Path("out"), "shed.ifc").status, kNotConvertible);
  EXPECT_EQ(Contents(folder.Path("out")), before);
}

INSTANTIATE_TEST_SUITE_P(Formats, EachFormat, testing::ValuesIn(Formats()),
                         [](const auto& format) { return format.param; });

TEST(Export, HelpNamesTheFormats) {
  const Outcome run = Kelifc({"export", "--help"});
  EXPECT_EQ(run.status, 0);
  for (const KelIFC::ExportFormat& format : KelIFC::ExportFormats()) {
    if (format.name == "view") continue;
    EXPECT_THAT(run.out, HasSubstr(std::string(format.name)));
  }
}

TEST(Export, WrongUsageHasAStatusOfItsOwn) {
  using Arguments = std::vector<std::string>;
  for (const Arguments& arguments :
       {Arguments{"export", "house.ifc"}, Arguments{"export", "--to", "dwg", "house.ifc"},
        Arguments{"export", "--to", "view", "house.ifc"}, Arguments{"export", "--to", "csv"},
        Arguments{"export", "--to", "csv", "-"},
        Arguments{"export", "--to", "csv", "--output", "", "house.ifc"},
        Arguments{"export", "--to", "csv", "--node-tolerance", "2", "house.ifc"},
        Arguments{"view", "--to", "csv", "house.ifc"},
        Arguments{"view", "--csv-raw", "house.ifc"}}) {
    const Outcome run = Kelifc(arguments);
    EXPECT_EQ(run.status, kUsage) << testing::PrintToString(arguments);
    EXPECT_THAT(run.err, MatchesRegex("kelifc: [^\n]+\n"));
  }
}

TEST(Export, DoesNotReplaceTheModel) {
  const TemporaryFolder folder;
  const std::string model = folder.Path("house.ifc");
  WriteFile(model, ReadFile(kHouse));
  EXPECT_EQ(Export("csv", model, model).status, kUsage);
  EXPECT_EQ(ReadFile(model), ReadFile(kHouse));
}

TEST(Export, AFormatOfAMissingComponentHasAStatusOfItsOwn) {
  for (const KelIFC::ExportFormat& format : KelIFC::ExportFormats()) {
    if (format.missing.empty()) continue;
    const Outcome run = Export(std::string(format.name), "/dev/null/x", "house.ifc");
    EXPECT_EQ(run.status, kMissing);
    EXPECT_THAT(run.err, HasSubstr(std::string(format.missing)));
  }
  if (KelIFC::FindExportFormat("view") == nullptr) {
    EXPECT_EQ(Export("view", "/dev/null/x", "house.ifc").status, kMissing);
  }
}

TEST(Export, ReadsStandardInput) {
  const TemporaryFolder folder;
  const Outcome run =
      Kelifc({"export", "--to", "csv", "--output", folder.Path("out"), "-"}, "", kHouse);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(CountLines(ReadFile(folder.Path("out/model.csv"))), 2u);
}

TEST(Export, NamesLostProductsUnlessItIsQuiet) {
  const TemporaryFolder folder;
  const std::string out = folder.Path("out");
  const std::string message = "kelifc: house.ifc: 2 of 13 products were lost\n";
  EXPECT_EQ(Export("csv", out, "house.ifc").err, message);
  EXPECT_EQ(Kelifc({"export", "--to", "csv", "--quiet", "--output", out, "house.ifc"}).err, "");
  const Outcome run =
      Kelifc({"export", "--to", "csv", "--fail-on-loss", "--output", out, "house.ifc"});
  EXPECT_EQ(run.status, kLost);
  EXPECT_EQ(run.err, message);
  EXPECT_EQ(Kelifc({"export", "--to", "csv", "--fail-on-loss", "--output", out, "hall.ifc"}).status,
            0);
}

TEST(Export, TablesHaveARowForEachEntryOfTheBuilding) {
  const TemporaryFolder folder;
  for (const char* model : {"house.ifc", "office.ifc", "barn.ifc", "hall.ifc"}) {
    const nlohmann::json building = Elements(model);
    ASSERT_EQ(Export("csv", folder.Path("out"), model).status, 0);
    for (const char* table : {"storeys", "materials", "elements", "losses"}) {
      const std::string text = ReadFile(folder.Path("out/" + std::string(table) + ".csv"));
      EXPECT_EQ(CountLines(text), building[table].size() + 1) << model << " " << table;
    }
  }
}

TEST(Export, TheAuditCountsWhatEachFormatHolds) {
  const std::size_t elements = Elements("hall.ifc")["elements"].size();
  const nlohmann::json audit =
      nlohmann::json::parse(Kelifc({"audit", "--json", "--exports", "hall.ifc"}).out);
  std::vector<std::string> formats;
  for (const nlohmann::json& counted : audit["exports"]) {
    formats.push_back(counted["format"]);
    EXPECT_LE(counted["elements"].get<std::size_t>(), elements);
    for (const nlohmann::json& omission : counted["omissions"]) {
      EXPECT_GT(omission["count"].get<std::size_t>(), 0u);
      EXPECT_FALSE(omission["what"].get<std::string>().empty());
    }
    if (formats.back() != "csv") continue;
    EXPECT_EQ(counted["elements"], elements);
    EXPECT_EQ(counted["omissions"].dump(), R"([{"count":3,"what":"boundaries of bodies"}])");
  }
  EXPECT_EQ(formats, Formats());
  EXPECT_THAT(Kelifc({"audit", "--exports", "hall.ifc"}).out, HasSubstr("boundaries of bodies 3"));
  EXPECT_EQ(Kelifc({"audit", "hall.ifc"}).out.find("Exports"), std::string::npos);
}

TEST(Export, CsvGuardsTextsOfFormulasUnlessItIsRaw) {
  const TemporaryFolder folder;
  const std::string model = folder.Path("model.ifc");
  WriteFile(model, ModelOf("=1+1"));
  ASSERT_EQ(Export("csv", folder.Path("out"), model).status, 0);
  EXPECT_EQ(ReadFile(folder.Path("out/materials.csv")), "id,name\r\n0,'=1+1\r\n");
  const std::string raw = folder.Path("raw");
  ASSERT_EQ(Kelifc({"export", "--to", "csv", "--csv-raw", "--output", raw, model}).status, 0);
  EXPECT_EQ(ReadFile(raw + "/materials.csv"), "id,name\r\n0,=1+1\r\n");
}

}  // namespace
}  // namespace command_test
