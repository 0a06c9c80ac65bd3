#include "kelifc/server/load_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "kelifc/server/ifc_server.h"

#include "tests/model_files.h"
#include "tests/read_file.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::string ModelOf(const std::string& schema, const std::string& data) {
  return "ISO-10303-21;HEADER;FILE_SCHEMA(('" + schema + "'));ENDSEC;DATA;\n" + data +
         "ENDSEC;END-ISO-10303-21;";
}

/// A model that is loaded from memory, with its text.
struct Loaded {
  explicit Loaded(std::string model, STEP_DIALECT dialect, LoadLimits limits = LoadLimits())
      : text(std::move(model)) {
    LoadOptions options;
    options.dialect = dialect;
    options.limits = limits;
    result = server.LoadIfcMemory(text.data(), text.size(), options);
  }

  const LoadReport& Report() const { return server.GetLoadReport(); }

  std::string text;
  IfcServer server;
  int result = -1;
};

class LoadReportInDialect : public testing::TestWithParam<STEP_DIALECT> {};

TEST_P(LoadReportInDialect, CountsStatementsNumbersAndInstances) {
  const Loaded model(ModelOf("IFC2X3",
                             "#1=IFCDIRECTION((1.,0.));\n#2=IFCNOSUCHTHING(1);\n"
                             "#2=IFCNOSUCHTHING(2);\n#3=IFCDIRECTION((0.,1.));\n"),
                     GetParam());
  ASSERT_EQ(model.result, 0);
  EXPECT_EQ(model.Report().statements, 4U);
  EXPECT_EQ(model.Report().numbers, 3U);
  EXPECT_EQ(model.Report().made, 2U);
  EXPECT_EQ(model.Report().raw, 1U);
  EXPECT_EQ(model.Report().dropped, 0U);
  EXPECT_THAT(model.Report().rawByEntity, ElementsAre(Pair("IFCNOSUCHTHING", 1)));
  EXPECT_THAT(model.Report().droppedByEntity, IsEmpty());
}

TEST_P(LoadReportInDialect, CountsTheInstancesThatClassesAdd) {
  const Loaded model(
      ModelOf("IFC2X3", "#1=IFCCARTESIANPOINT((0.,0.));\n#2=IFCAXIS2PLACEMENT2D(#1,$);\n"),
      GetParam());
  ASSERT_EQ(model.result, 0);
  EXPECT_EQ(model.Report().statements, 2U);
  EXPECT_EQ(model.Report().made, 2U);
  EXPECT_EQ(model.Report().added, model.server.GetItems().size() - 2);
  EXPECT_GT(model.Report().added, 0U);
}

TEST_P(LoadReportInDialect, NamesTheLinesOfRepeatedNumbers) {
  const Loaded model(
      ModelOf("IFC2X3", "#7=IFCDIRECTION((1.));\n  #8=IFCDIRECTION((1.));\n#7=IFCNOTHING();\n"),
      GetParam());
  ASSERT_EQ(model.result, 0);
  const LoadFindings& findings = model.Report().findings;
  EXPECT_EQ(findings.GetCount(LoadFinding::kRepeatedNumber), 1U);
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kRepeatedNumber), ElementsAre(SourcePlace{4, 1}));
  EXPECT_THAT(findings.GetSubjects(LoadFinding::kRepeatedNumber),
              ElementsAre(FindingSubject{7, "", 0}));
  EXPECT_EQ(model.Report().made, 1U);
  EXPECT_EQ(model.Report().raw, 1U);
}

TEST_P(LoadReportInDialect, FindsReferencesToNumbersWithoutAStatement) {
  Loaded model(ModelOf("IFC2X3",
                       "#1=IFCPOLYLINE((#2,#3,\n  #4));\n#2=IFCCARTESIANPOINT((0.,0.));\n"
                       "#5=IFCNOTHING('#90 (,',$,(1,#2,#91));\n"),
               GetParam());
  ASSERT_EQ(model.result, 0);
  EXPECT_EQ(model.Report().findings.GetCount(LoadFinding::kDanglingReference), 0U);
  EXPECT_FALSE(model.Report().isChecked);
  for (int call = 0; call < 2; ++call) {
    ASSERT_TRUE(model.server.CheckModel());
    EXPECT_TRUE(model.Report().isChecked);
    const LoadFindings& findings = model.Report().findings;
    EXPECT_EQ(findings.GetCount(LoadFinding::kDanglingReference), 3U);
    EXPECT_THAT(findings.GetPlaces(LoadFinding::kDanglingReference),
                ElementsAre(SourcePlace{2, 20}, SourcePlace{3, 3}, SourcePlace{5, 32}));
    EXPECT_THAT(
        findings.GetSubjects(LoadFinding::kDanglingReference),
        ElementsAre(FindingSubject{1, "IFCPOLYLINE", 1}, FindingSubject{1, "IFCPOLYLINE", 1},
                    FindingSubject{5, "IFCNOTHING", 3}));
    ASSERT_EQ(model.Report().danglingByAttribute.size(), 2U);
    EXPECT_EQ(model.Report().danglingByAttribute.at({"IFCPOLYLINE", 1, "Points"}), 2U);
    EXPECT_EQ(model.Report().danglingByAttribute.at({"IFCNOTHING", 3, ""}), 1U);
  }
}

TEST_P(LoadReportInDialect, ReferencesToLaterAndToDroppedStatementsAreNotDangling) {
  LoadOptions options;
  options.dialect = GetParam();
  options.keepUnknown = false;
  const std::string text = ModelOf("IFC2X_FINAL",
                                   "#1=IFCPOLYLINE((#2,#3));\n#2=IFCNOTHING();\n"
                                   "#3=IFCCARTESIANPOINT((0.));\n");
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  ASSERT_TRUE(server.CheckModel());
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 0U);
}

TEST_P(LoadReportInDialect, CountsWhatIsDroppedByItsEntity) {
  LoadOptions options;
  options.dialect = GetParam();
  options.keepUnknown = false;
  const std::string text =
      ModelOf("IFC2X_FINAL",
              "#1=IFCFOO(1);\n#2=IFCFOO(1);\n#2=IFCBAR ();\n#3=IFCBAZ();\n#4=IFCBAR();\n"
              "#3=IFCDIRECTION((1.));\n");
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  const LoadReport& report = server.GetLoadReport();
  EXPECT_EQ(report.statements, 6U);
  EXPECT_EQ(report.numbers, 4U);
  EXPECT_EQ(report.made, 1U);
  EXPECT_EQ(report.raw, 0U);
  EXPECT_EQ(report.dropped, 3U);
  EXPECT_THAT(report.droppedByEntity, ElementsAre(Pair("IFCBAR", 2), Pair("IFCFOO", 1)));
}

TEST_P(LoadReportInDialect, ChecksAStreamAndAFileToo) {
  const std::string text = ModelOf("IFC2X3", "#1=IFCPOLYLINE((#2));\n");
  LoadOptions options;
  options.dialect = GetParam();
  IfcServer server;
  std::istringstream stream(text);
  ASSERT_EQ(server.LoadIfcStream(stream, options), 0);
  ASSERT_TRUE(server.CheckModel());
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 1U);
  {
    const TempFile file(text);
    ASSERT_EQ(server.LoadIfc(file.GetPath(), options), 0);
    ASSERT_TRUE(server.CheckModel());
    EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 1U);
    ASSERT_EQ(server.LoadIfc(file.GetPath(), options), 0);
  }
  EXPECT_FALSE(server.CheckModel());  // the file is gone
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 0U);
}

TEST_P(LoadReportInDialect, IsNotCheckedIfTheSourceHasChanged) {
  const std::string text = ModelOf("IFC2X3", "#1=IFCPOLYLINE((#2));\n");
  LoadOptions options;
  options.dialect = GetParam();
  IfcServer server;
  const TempFile file(text);
  ASSERT_EQ(server.LoadIfc(file.GetPath(), options), 0);
  std::string changed = text;
  changed[changed.find("#2") + 1] = '3';  // the same length
  std::ofstream(file.GetPath(), std::ios::binary) << changed;
  EXPECT_FALSE(server.CheckModel());
  EXPECT_TRUE(server.GetLoadReport().hasSourceChanged);
  EXPECT_FALSE(server.GetLoadReport().isChecked);
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 0U);

  std::ofstream(file.GetPath(), std::ios::binary) << text << " ";
  EXPECT_FALSE(server.CheckModel());
  EXPECT_TRUE(server.GetLoadReport().hasSourceChanged);

  std::ofstream(file.GetPath(), std::ios::binary) << text;
  EXPECT_TRUE(server.CheckModel());
  EXPECT_FALSE(server.GetLoadReport().hasSourceChanged);
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kDanglingReference), 1U);
}

TEST_P(LoadReportInDialect, HoldsTheCountsUpToALimit) {
  LoadLimits limits;
  limits.maxInstances = 2;
  const std::string data =
      "#1=IFCDIRECTION((1.));\n#2=IFCDIRECTION((1.));\n#3=IFCDIRECTION((1.));\n"
      "#4=IFCDIRECTION((1.));\n";
  Loaded model(ModelOf("IFC2X3", data), GetParam(), limits);
  EXPECT_EQ(model.result, LOAD_RESULT_LIMIT_REACHED);
  EXPECT_EQ(model.Report().statements, 3U);
  EXPECT_FALSE(model.server.CheckModel());
  EXPECT_EQ(model.server.GetSourceLine(1), 0U);
}

INSTANTIATE_TEST_SUITE_P(Dialects, LoadReportInDialect,
                         testing::Values(STEP_DIALECT_CLASSIC, STEP_DIALECT_ISO));

struct FailedLoad {
  const char* name;
  std::string text;
  int result;
  SourcePlace place;
};

class LoadReportOfFailure : public testing::TestWithParam<FailedLoad> {};

TEST_P(LoadReportOfFailure, HasThePlaceOfTheStatementAtFault) {
  LoadLimits limits;
  limits.maxInstances = 2;
  limits.maxStatementBytes = 100;
  for (const STEP_DIALECT dialect : {STEP_DIALECT_CLASSIC, STEP_DIALECT_ISO}) {
    const Loaded model(GetParam().text, dialect, limits);
    EXPECT_EQ(model.result, GetParam().result);
    ASSERT_TRUE(model.Report().failure.has_value());
    EXPECT_EQ(model.Report().failure->line, GetParam().place.line);
    EXPECT_EQ(model.Report().failure->column, GetParam().place.column);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Loads, LoadReportOfFailure,
    testing::Values(FailedLoad{"NoStepFile", "HEAD;\nDATA;\n", LOAD_RESULT_NO_STEP_FILE, {1, 1}},
                    FailedLoad{"UnknownSchema",
                               "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('NONE'));\n",
                               LOAD_RESULT_UNKNOWN_SCHEMA,
                               {3, 1}},
                    FailedLoad{"LaterSchema",
                               "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('IFC4'));\n",
                               LOAD_RESULT_UNSUPPORTED_RELEASE,
                               {3, 1}},
                    FailedLoad{"TooManyInstances",
                               ModelOf("IFC2X3", "#1=IFCWALL();\n#2=IFCWALL();\n#3=IFCWALL();\n"),
                               LOAD_RESULT_LIMIT_REACHED,
                               {4, 1}},
                    FailedLoad{"TooLongStatement",
                               ModelOf("IFC2X3", "#1=IFCWALL();\n#2=IFCWALL('" +
                                                     std::string(100, 'x') + "');"),
                               LOAD_RESULT_LIMIT_REACHED,
                               {3, 1}}),
    [](const auto& info) { return info.param.name; });

TEST(LoadReport, HasNoFailureOfAModelThatIsLoadedOrCancelled) {
  const std::string text = ModelOf("IFC2X3", "");
  IfcServer server;
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), {}), 0);
  EXPECT_FALSE(server.GetLoadReport().failure.has_value());
  server.SetProgressHandler([](std::uint64_t, std::uint64_t) { return false; });
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), {}), LOAD_RESULT_CANCELLED);
  EXPECT_FALSE(server.GetLoadReport().failure.has_value());
}

TEST(LoadReport, IsEmptyAfterALoadWithoutOptions) {
  const TempFile file(ModelOf("IFC2X3", "#1=IFCPOLYLINE((#2));\n#1=IFCFOO();\n"));
  IfcServer server;
  ASSERT_EQ(server.LoadIfc(file.GetPath(), LoadOptions()), 0);
  EXPECT_EQ(server.GetLoadReport().statements, 2U);
  ASSERT_EQ(server.LoadIfcFile(file.GetPath()), 0);
  EXPECT_EQ(server.GetLoadReport().statements, 0U);
  EXPECT_EQ(server.GetLoadReport().findings.GetCount(LoadFinding::kRepeatedNumber), 0U);
  EXPECT_FALSE(server.CheckModel());
}

TEST(LoadReport, NamesTheNumberOfABadEscape) {
  const Loaded model(ModelOf("IFC2X3", "#4=IFCNOTHING('a',\n'b\\Qc');\n"), STEP_DIALECT_ISO);
  ASSERT_EQ(model.result, 0);
  const LoadFindings& findings = model.Report().findings;
  EXPECT_THAT(findings.GetPlaces(LoadFinding::kBadEscape), ElementsAre(SourcePlace{3, 3}));
  EXPECT_THAT(findings.GetSubjects(LoadFinding::kBadEscape), ElementsAre(FindingSubject{4, "", 0}));
}

TEST(LoadReport, StringsOfBothDialectsHideReferences) {
  Loaded classic(ModelOf("IFC2X3", "#1=IFCNOTHING('\\'#8','\\X\\23#7','');\n"),
                 STEP_DIALECT_CLASSIC);
  ASSERT_TRUE(classic.server.CheckModel());
  EXPECT_EQ(classic.Report().findings.GetCount(LoadFinding::kDanglingReference), 0U);
  Loaded iso(ModelOf("IFC2X3", "#1=IFCNOTHING('''#8\\','\\S\\'#7','');\n"), STEP_DIALECT_ISO);
  ASSERT_TRUE(iso.server.CheckModel());
  EXPECT_EQ(iso.Report().findings.GetCount(LoadFinding::kDanglingReference), 0U);
}

TEST_P(LoadReportInDialect, FindsAttributesThatCannotBeRead) {
  Loaded model(ModelOf("IFC2X3",
                       "#1=IFCCARTESIANPOINT(('a',2.));\n#2=IFCPOLYLINE(#1);\n"
                       "#3=IFCPOLYLINE((#1,#4));\n#4=IFCDIRECTION((1.,0.));\n"
                       "#5=IFCPERSON($,12,'b',$,$,$,$,$);\n#6=IFCPOLYLINE((#1,#7,#7));\n"),
               GetParam());
  ASSERT_EQ(model.result, 0);
  ASSERT_TRUE(model.server.CheckModel());
  const LoadFindings& findings = model.Report().findings;
  EXPECT_EQ(findings.GetCount(LoadFinding::kUnreadAttribute), 4U);
  EXPECT_EQ(findings.GetCount(LoadFinding::kDanglingReference), 2U);
  EXPECT_THAT(
      findings.GetPlaces(LoadFinding::kUnreadAttribute),
      ElementsAre(SourcePlace{2, 23}, SourcePlace{3, 16}, SourcePlace{4, 20}, SourcePlace{6, 16}));
  EXPECT_EQ(model.Report().unreadByAttribute.at({"IFCPOLYLINE", 1, "Points"}), 2U);
  EXPECT_EQ(model.Report().unreadByAttribute.at({"IFCPERSON", 2, "FamilyName"}), 1U);
}

TEST(LoadReport, KnowsNoAttributesOfInstancesOfSeveralTypes) {
  Loaded model(ModelOf("IFC2X3", "#1=(IFCA(1,#8)IFCB());\n"), STEP_DIALECT_ISO);
  ASSERT_TRUE(model.server.CheckModel());
  EXPECT_THAT(model.Report().findings.GetSubjects(LoadFinding::kDanglingReference),
              ElementsAre(FindingSubject{1, "", 0}));
  EXPECT_THAT(model.Report().rawByEntity, ElementsAre(Pair("", 1)));
}

TEST(LoadFindings, HaveATextForEachKind) {
  for (std::size_t kind = 0; kind < kLoadFindingKinds; ++kind) {
    EXPECT_STRNE(GetFindingText(static_cast<LoadFinding>(kind)), "");
  }
}

/// The number of `#n=` that begin a statement outside strings and comments. Strings have doubled
/// quotes only, so a quote always begins or ends one.
std::uint64_t CountStatements(const std::string& text) {
  std::uint64_t count = 0;
  bool isBegin = true;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\'') {
      i = text.find('\'', i + 1);
    } else if (text.compare(i, 2, "/*") == 0) {
      i = text.find("*/", i + 2) + 1;
    } else if (text[i] == ';') {
      isBegin = true;
    } else if (static_cast<unsigned char>(text[i]) > ' ') {
      if (isBegin && text[i] == '#') ++count;
      isBegin = false;
    }
    if (i == std::string::npos) break;
  }
  return count;
}

TEST(LoadReport, AccountsForEachStatementOfRealModels) {
  if (RealModels().empty()) GTEST_SKIP() << kNoRealModels;
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  for (const std::filesystem::path& path : RealModels()) {
    SCOPED_TRACE(path.filename().string());
    const std::string text = ReadFile(path);
    IfcServer server;
    ASSERT_EQ(server.LoadIfc(path.string().c_str(), options), 0);
    const LoadReport& report = server.GetLoadReport();
    EXPECT_EQ(report.statements, CountStatements(text));
    EXPECT_EQ(report.made + report.raw, report.numbers);
    EXPECT_EQ(report.dropped, 0U);
    EXPECT_EQ(report.numbers + report.added, server.GetNumberCount());
    for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
      const StatementPlace place = server.GetStatementPlace(n);
      if (place.line == 0) continue;
      ASSERT_EQ(text[static_cast<std::size_t>(place.offset)], '#');
      ASSERT_EQ(std::stoull(text.substr(static_cast<std::size_t>(place.offset) + 1, 24)), n);
    }
    EXPECT_TRUE(server.CheckModel());
    // Few values in real files are not what the schema says.
    EXPECT_LE(report.findings.GetCount(LoadFinding::kUnreadAttribute), report.statements / 100);
  }
}

}  // namespace
}  // namespace KelIFC
