#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/command/process.h"

namespace command_test {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

constexpr char kData[] =
    "#1=IFCPOLYLINE((#2,#9));\n#2=IFCCARTESIANPOINT((0.));\n#2=IFCCARTESIANPOINT((1.));\n"
    "#3=IFCFOO('\\Q');\n#4=IFCPERSON('it''s','b',$,$,$,$,$,$)\n"
    "#5=IFCPERSON('a','b',$,$,$,$,$,$);\n";

/// A file with a model in a folder of its own.
class Reading : public testing::Test {
 protected:
  std::string Model(const std::string& schema, const std::string& data) const {
    const std::string path = folder.Path("model.ifc");
    WriteFile(path, "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('" + schema + "'));\nENDSEC;\nDATA;\n" +
                        data + "ENDSEC;\nEND-ISO-10303-21;\n");
    return path;
  }

  static ordered_json ReportOf(const std::string& model, const std::string& dialect) {
    const Outcome run = Kelifc({"info", "--json", "--report", "--dialect", dialect, model});
    EXPECT_EQ(run.status, 0) << run.err;
    const auto info = ordered_json::parse(run.out);
    EXPECT_EQ(std::prev(info.end()).key(), "report");
    return info["report"];
  }

  TemporaryFolder folder;
};

TEST_F(Reading, AReportCountsWhatTheFileHolds) {
  const auto report = ReportOf(Model("IFC2X3", kData), "iso");
  EXPECT_EQ(report["statements"], 6);
  EXPECT_EQ(report["numbers"], 5);
  EXPECT_EQ(report["made"], 4);
  EXPECT_EQ(report["raw"], 1);
  EXPECT_EQ(report["dropped"], 0);
  EXPECT_EQ(report["added"], 0);
  EXPECT_EQ(report["repeatedNumbers"].dump(),
            R"({"count":1,"places":[{"line":8,"column":1,"number":2}]})");
  EXPECT_EQ(
      report["danglingReferences"].dump(),
      R"({"count":1,"places":[{"line":6,"column":20,"number":1,"entity":"IFCPOLYLINE",)"
      R"("attribute":1,"name":"Points"}],"attributes":[{"entity":"IFCPOLYLINE","attribute":1,)"
      R"("name":"Points","count":1}]})");
  EXPECT_EQ(report["badEscapes"].dump(),
            R"({"count":1,"places":[{"line":9,"column":12,"number":3}]})");
  EXPECT_EQ(report["statementsWithoutEnd"].dump(),
            R"({"count":1,"places":[{"line":10,"column":1}]})");
}

TEST_F(Reading, AReportNamesWhatWasLeftOut) {
  const auto report = ReportOf(Model("IFC20_LONGFORM", "#1=IFCFOO();\n"), "classic");
  EXPECT_EQ(report["numbers"], 1);
  EXPECT_EQ(report["dropped"], 1);
  EXPECT_EQ(report["droppedEntities"].dump(), R"({"IFCFOO":1})");
}

TEST_F(Reading, AReportForPeopleNamesTheLines) {
  const std::string model = Model("IFC2X3", kData);
  const Outcome run = Kelifc({"info", "--report", "--dialect", "iso", model});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.out, HasSubstr("\n1 x number used twice\n  line 8:1 (#2)\n"));
  EXPECT_THAT(run.out, HasSubstr("  line 6:20 (#1=IFCPOLYLINE, attribute 1 Points)\n"));
  EXPECT_THAT(run.out, Not(HasSubstr("Nothing is wrong")));
  EXPECT_EQ(run.out.rfind(Kelifc({"info", "--dialect", "iso", model}).out, 0), 0U);
}

TEST_F(Reading, AReportSaysThatNothingIsWrong) {
  const Outcome run = Kelifc({"info", "--report", Model("IFC2X3", "#1=IFCDIRECTION((1.));\n")});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.out, HasSubstr("\nNothing is wrong in the file.\n"));
}

TEST_F(Reading, InTheIsoDialectALaterReleaseIsNamed) {
  const std::string model = Model("IFC4", "#1=IFCDIRECTION((1.));\n");
  for (const char* command : {"structure", "info"}) {
    const Outcome run = Kelifc({command, "--dialect", "iso", model});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, "kelifc: " + model + ": the release IFC4 is not supported\n");
  }
}

TEST_F(Reading, InTheIsoDialectTheSchemaMayHaveAnyCase) {
  const std::string model = Model("IFC2x3", "#1=IFCDIRECTION((1.));\n");
  EXPECT_EQ(Kelifc({"info", model}).status, 2);
  const auto info = ordered_json::parse(Kelifc({"info", "--json", "--dialect", "iso", model}).out);
  EXPECT_EQ(info["release"], "2x3");
}

TEST_F(Reading, AFileBeyondTheLimitIsRefused) {
  const std::string model = Model("IFC2X3", "");
  std::error_code error;
  std::filesystem::resize_file(model, (std::uintmax_t{8} << 30) + 1, error);  // sparse
  if (error) GTEST_SKIP() << error.message();
  const Outcome run = Kelifc({"info", "--dialect", "iso", model});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "kelifc: " + model + ": the model exceeds a limit\n");
}

TEST_F(Reading, TheOtherOptionsDoNotChangeTheOutput) {
  const std::string model = Model("IFC2X3", kData);
  const Outcome plain = Kelifc({"info", "--json", model});
  for (const auto& options : {std::vector<std::string>{"--quiet"},
                              {"--no-progress"},
                              {"--threads", "3"},
                              {"--dialect", "classic"}}) {
    std::vector<std::string> arguments = {"info", "--json", model};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Outcome run = Kelifc(arguments);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, plain.out);
    EXPECT_EQ(run.err, "");
  }
}

TEST_F(Reading, RefusesValuesThatAreNone) {
  const std::string model = Model("IFC2X3", kData);
  EXPECT_EQ(Kelifc({"info", "--dialect", "other", model}).status, 64);
  EXPECT_EQ(Kelifc({"info", "--threads", "0", model}).status, 64);
  EXPECT_EQ(Kelifc({"info", "--threads", "many", model}).status, 64);
  EXPECT_EQ(Kelifc({"structure", "--report", model}).status, 64);
}

TEST_F(Reading, ASaveInTheIsoDialectLoadsAgain) {
  const std::string model = Model("IFC2X3", kData);
  const std::string saved = folder.Path("saved.ifc");
  EXPECT_EQ(Kelifc({"save", "--dialect", "iso", "--quiet", model, saved}).status, 0);
  EXPECT_THAT(ReadFile(saved), HasSubstr("'it''s'"));
  EXPECT_EQ(ReportOf(saved, "iso")["numbers"], 5);
}

}  // namespace
}  // namespace command_test
