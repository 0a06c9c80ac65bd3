#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/global_id.h"
#include "kelifc/core/other.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;

constexpr char kHead2x3[] = "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;DATA;";
constexpr char kHead2x[] = "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X_FINAL'));ENDSEC;DATA;";
constexpr char kEnd[] = "ENDSEC;END-ISO-10303-21;";

int Load(IfcServer& server, const std::string& text) {
  return server.LoadIfcFile(TempFile(text).GetPath());
}

std::vector<std::size_t> NumbersOf(const IfcServer& server) {
  std::vector<std::size_t> numbers;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    numbers.push_back(n);
  }
  return numbers;
}

const IfcOther* OtherAt(IfcServer& server, std::size_t number) {
  return dynamic_cast<const IfcOther*>(server.GetItem(number));
}

std::string RecordAt(IfcServer& server, std::size_t number) {
  std::ostringstream out;
  server.GetItem(number)->Write(out);
  return out.str();
}

TEST(Load, ReadsInstancesUnderTheNumbersOfTheFile) {
  IfcServer server;
  EXPECT_EQ(Load(server, std::string(kHead2x3) +
                             "#5=IFCCARTESIANPOINT((1.,2.));\n#3=IFCCARTESIANPOINT((3.));" + kEnd),
            0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(3, 5));
  EXPECT_EQ(server.GetItems()[0], server.GetItem(std::size_t{5}));
  EXPECT_EQ(RecordAt(server, 5), "IFCCARTESIANPOINT((1.,2.)");
  EXPECT_EQ(RecordAt(server, 3), "IFCCARTESIANPOINT((3.)");
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_2X3);
  EXPECT_EQ(server.GetFileSchema(), "IFC2X3");
}

TEST(Load, ReturnsOneForAFileThatCannotBeOpened) {
  IfcServer server;
  EXPECT_EQ(server.LoadIfcFile("/no/such/file.ifc"), 1);
  EXPECT_EQ(server.LoadIfcFile(""), 1);
  EXPECT_EQ(server.LoadIfcFile(nullptr), 1);
}

TEST(Load, ReturnsOneForAPathThatIsNotAnOrdinaryFile) {
  IfcServer server;
  EXPECT_EQ(server.LoadIfcFile(testing::TempDir().c_str()), 1);
  EXPECT_EQ(server.LoadIfcFile("/dev/null"), 1);
}

TEST(Load, ReturnsTwoUnlessTheFirstStatementIsTheHead) {
  IfcServer server;
  EXPECT_EQ(Load(server, ""), 2);
  EXPECT_EQ(Load(server, "ISO-10303-21"), 2);
  EXPECT_EQ(Load(server, " ISO-10303-21;"), 2);
  EXPECT_EQ(Load(server, ";ISO-10303-21;"), 2);
  EXPECT_EQ(Load(server, "ISO-10303;FILE_SCHEMA(('IFC2X3'));"), 2);
  EXPECT_EQ(Load(server, "\xEF\xBB\xBFISO-10303-21;FILE_SCHEMA(('IFC2X3'));"), 2);
}

TEST(Load, StopsEarlyInAFileWithoutStatements) {
  IfcServer server;
  std::uint64_t bytes = 0;
  server.SetProgressHandler([&bytes](std::uint64_t done, std::uint64_t) {
    bytes = done;
    return true;
  });
  EXPECT_EQ(Load(server, std::string(5000000, 'x') + ";"), 2);
  EXPECT_EQ(bytes, 0u);
}

TEST(Load, AcceptsTheHeadInAnyCaseAndWithMoreTextAfterIt) {
  IfcServer server;
  EXPECT_EQ(Load(server, "iso-10303-21;FILE_SCHEMA(('IFC2X3'));"), 0);
  EXPECT_EQ(Load(server, "ISO-10303-21 and more;FILE_SCHEMA(('IFC2X3'));"), 0);
}

TEST(Load, SkipsACommentInTheFirstLine) {
  IfcServer server;
  EXPECT_EQ(Load(server, "/* a model */\nISO-10303-21;FILE_SCHEMA(('IFC2X3'));"), 0);
}

TEST(Load, ReturnsThreeForAFileWithAnUnknownSchema) {
  for (const char* schema : {"IFC4", "ifc2x3", ""}) {
    IfcServer server;
    EXPECT_EQ(Load(server, std::string("ISO-10303-21;FILE_SCHEMA(('") + schema +
                               "'));#1=IFCCARTESIANPOINT((1.));"),
              3);
    EXPECT_EQ(server.GetFileSchema(), schema);
    EXPECT_EQ(server.GetNumberCount(), 0u);
  }
}

TEST(Load, ReturnsThreeForAFileWithoutSchema) {
  IfcServer server;
  EXPECT_EQ(Load(server, "ISO-10303-21;DATA;#1=IFCCARTESIANPOINT((1.));ENDSEC;"), 3);
  EXPECT_EQ(server.GetFileSchema(), "");
}

TEST(Load, FindsEachSchema) {
  const std::pair<const char*, IFC_RELEASE> kSchemas[] = {
      {"IFC151", IFC_RELEASE_151},       {"IFC20_LONGFORM", IFC_RELEASE_20},
      {"IFC2X_FINAL", IFC_RELEASE_2X},   {"IFC2X2_FINAL", IFC_RELEASE_2X2},
      {"IFC2X3_FINAL", IFC_RELEASE_2X3}, {"IFC2X3','X", IFC_RELEASE_2X3},
  };
  for (const auto& [schema, release] : kSchemas) {
    IfcServer server;
    EXPECT_EQ(Load(server, std::string("ISO-10303-21;FILE_SCHEMA(('") + schema + "'));"), 0);
    EXPECT_EQ(server.GetRelease(), release) << schema;
    EXPECT_TRUE(server.GetItems().empty());
  }
}

TEST(Load, IsEmptyWhenTheSchemaIsUnknownButAReleaseWasSet) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_EQ(Load(server, "ISO-10303-21;FILE_SCHEMA(('IFC4'));#1=IFCCARTESIANPOINT((1.));"), 0);
  EXPECT_EQ(server.GetNumberCount(), 0u);
  EXPECT_EQ(Load(server, "ISO-10303-21;#1=IFCCARTESIANPOINT((1.));#2=IFCFOO(1);"), 0);
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(Load, ReplacesTheModelAndEmptiesItAlsoWhenItFails) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=IFCFOO(1);#2=IFCFOO(2);");
  Load(server, std::string(kHead2x3) + "#7=IFCFOO(7);");
  EXPECT_THAT(NumbersOf(server), ElementsAre(7));
  EXPECT_EQ(server.LoadIfcFile("/no/such/file.ifc"), 1);
  EXPECT_TRUE(server.GetItems().empty());
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_2X3);
  EXPECT_EQ(server.GetFileSchema(), "");
}

TEST(Load, ResolvesAReferenceToALaterStatement) {
  IfcServer server;
  Load(server, std::string(kHead2x3) +
                   "#10=IFCBOUNDINGBOX(#20,1.,1.,1.);#20=IFCCARTESIANPOINT((1.,2.,3.));");
  const auto* box = dynamic_cast<const IfcBoundingBox*>(server.GetItem(std::size_t{10}));
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(static_cast<const IfcUnknown*>(box->GetCorner()), server.GetItem(std::size_t{20}));
}

TEST(Load, IgnoresTheCaseOfNamesAndBlanksAroundThem) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#7 = IfcCartesianPoint ((1.,2.));\r\n # 8=ifcfoo\t(1) ;");
  EXPECT_EQ(RecordAt(server, 7), "IFCCARTESIANPOINT((1.,2.)");
  EXPECT_EQ(RecordAt(server, 8), "IFCFOO(1");
}

TEST(Load, ReadsLinesThatEndAsOnOtherSystems) {
  IfcServer server;
  EXPECT_EQ(Load(server,
                 "ISO-10303-21;\r\nFILE_SCHEMA((\r\n'IFC2X3'));\r\n#1=IFCFOO('a\r\nb'\r\n);"
                 "\r\n"),
            0);
  EXPECT_EQ(RecordAt(server, 1), "IFCFOO('a\nb'");
}

TEST(Load, LosesInstancesBeforeTheSchema) {
  IfcServer server;
  EXPECT_EQ(Load(server, "ISO-10303-21;#1=IFCFOO(1);FILE_SCHEMA(('IFC2X3'));#2=IFCFOO(2);"), 0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(2));
}

TEST(Load, IgnoresASchemaInTheDataSection) {
  IfcServer server;
  EXPECT_EQ(Load(server, std::string(kHead2x3) + "FILE_SCHEMA(('IFC151'));#1=IFCFOO(1);"), 0);
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_2X3);
  EXPECT_EQ(server.GetFileSchema(), "IFC2X3");
  EXPECT_THAT(NumbersOf(server), ElementsAre(1));
}

TEST(Load, SkipsAnAssignmentInAHeaderText) {
  IfcServer server;
  EXPECT_EQ(Load(server,
                 "ISO-10303-21;FILE_DESCRIPTION(('#1=x'),'2;1');FILE_SCHEMA(('IFC2X3'));"
                 "#1=IFCFOO(1);"),
            0);
  EXPECT_EQ(RecordAt(server, 1), "IFCFOO(1");
}

TEST(Load, KeepsAnUnknownEntityAsTextInTheNewestReleases) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=ifcFoo(1,'a)',(#3));");
  ASSERT_NE(OtherAt(server, 1), nullptr);
  EXPECT_EQ(OtherAt(server, 1)->GetStepEntityName(), "ifcFoo");
  EXPECT_EQ(RecordAt(server, 1), "IFCFOO(1,'a)',(#3)");
}

TEST(Load, DropsAnUnknownEntityInTheOlderReleases) {
  for (const char* schema : {"IFC151", "IFC20_LONGFORM", "IFC2X_FINAL"}) {
    IfcServer server;
    Load(server, std::string("ISO-10303-21;FILE_SCHEMA(('") + schema +
                     "'));#1=IFCFOO(1);#2=IFCCARTESIANPOINT((1.));");
    EXPECT_THAT(NumbersOf(server), ElementsAre(2)) << schema;
  }
}

TEST(Load, ReadsAnInstanceOfManyTypesAsOneUnknownName) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#5=(IFCA(1)IFCB(2));");
  ASSERT_NE(OtherAt(server, 5), nullptr);
  EXPECT_EQ(OtherAt(server, 5)->GetStepEntityName(), "(IFCA(1)IFCB(2))");
  EXPECT_EQ(RecordAt(server, 5), "(IFCA(1)IFCB(2))(IFCA(1)IFCB(2)");
  Load(server, std::string(kHead2x) + "#5=(IFCA(1)IFCB(2));");
  EXPECT_EQ(server.GetNumberCount(), 0u);
}

TEST(Load, ReadsANumberWithoutEntityAsAnUnknownName) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=;");
  ASSERT_NE(OtherAt(server, 1), nullptr);
  EXPECT_EQ(RecordAt(server, 1), "(");
}

TEST(Load, DropsStatementsThatAreNotInstances) {
  IfcServer server;
  Load(server, std::string(kHead2x3) +
                   "IFCFOO(1);#1 IFCFOO(1);1=IFCFOO(1);=IFCFOO(1);#=IFCFOO(1);"
                   "#0=IFCFOO(1);$=IFCFOO(1);X#4=IFCFOO(1);&SCOPE;");
  EXPECT_TRUE(server.GetItems().empty());
}

/// Records, while it is parsed, the number that its server finds for it.
class SelfFinder : public Probe {
 public:
  explicit SelfFinder(std::vector<std::size_t>& list) : found(list) {}
  const char* Parse(const char* text) override {
    if (std::strstr(text, "ADD") != nullptr) GetServer()->AddItem(new SelfFinder(found));
    if (std::strstr(text, "AGAIN") != nullptr) GetServer()->InsertItem(77, this);
    found.push_back(GetServer()->Find(this));
    if (std::strstr(text, "TAKE") != nullptr) {
      GetServer()->InsertItem(found.back(), new SelfFinder(found));
      found.push_back(GetServer()->Find(this));
    }
    return nullptr;
  }

 private:
  std::vector<std::size_t>& found;
};

class SelfFinderServer : public IfcServer {
 public:
  IfcUnknown* InstantiateClass2x3(const char* name) override {
    return std::string(name) == "IFCSELF" ? new SelfFinder(found)
                                          : IfcServer::InstantiateClass2x3(name);
  }
  std::vector<std::size_t> found;
};

TEST(Load, LetsAnInstanceFindItsNumberWhileItIsRead) {
  SelfFinderServer server;
  Load(server, std::string(kHead2x3) +
                   "#5=IFCSELF();#3=IFCSELF(ADD);#9=IFCSELF(AGAIN);#8=IFCSELF(TAKE);#1=IFCSELF();"
                   "#1=IFCSELF();");
  // The first of two slots counts, and a number that was reassigned is lost. If two statements have
  // the same number, the later instance parses both.
  EXPECT_THAT(server.found, ElementsAre(5, 3, 9, 8, 0, 1, 1));
}

TEST(Load, AssignsARepeatedNumberToTheLaterInstance) {
  IfcServer server;
  Load(server, std::string(kHead2x3) +
                   "#1=IFCCARTESIANPOINT((1.));#1=IFCFOO(1);#1=IFCFOO(2);#2=IFCFOO(3);");
  EXPECT_EQ(server.GetItems().size(), 4u);
  EXPECT_EQ(server.GetItem(std::size_t{1}), server.GetItems()[2]);
  EXPECT_EQ(RecordAt(server, 1), "IFCFOO((1.)12");
  EXPECT_EQ(server.Find(server.GetItems()[0]), 0u);
}

TEST(Load, ReadsNumbersBeyondTheRangeAsItsBound) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#99999999999=IFCFOO(1);#-1=IFCFOO(2);");
  EXPECT_THAT(NumbersOf(server), ElementsAre(2147483647, 0xFFFFFFFFFFFFFFFF));
}

TEST(Load, ReadsNumbersInEveryForm) {
  IfcServer server;
  Load(server,
       std::string(kHead2x3) +
           "#999999999=IFCFOO(1);#1000000000=IFCFOO(2);#0000000000007=IFCFOO(3);"
           "#+8=IFCFOO(4);# 9 =IFCFOO(5);  #10,x=IFCFOO(6);#11x=IFCFOO(7);#12.5=IFCFOO(8);");
  EXPECT_THAT(NumbersOf(server), ElementsAre(7, 8, 9, 10, 11, 12, 999999999, 1000000000));
}

TEST(Load, SpreadsFarApartNumbersWithoutHarm) {
  std::string text = kHead2x3;
  for (int i = 1; i < 2000; ++i) text += "#" + std::to_string(i << 20) + "=IFCFOO(1);";
  IfcServer server;
  EXPECT_EQ(Load(server, text), 0);
  EXPECT_EQ(server.GetNumberCount(), 1999u);
}

// An instance that registers another one while it is parsed.
class Adder : public Probe {
 public:
  const char* Parse(const char*) override {
    GetServer()->AddItem(new Probe("added"));
    return nullptr;
  }
};

class AdderServer : public IfcServer {
 public:
  IfcUnknown* InstantiateClass(const char* name) override {
    if (std::string(name) == "ADDER") return new Adder;
    return IfcServer::InstantiateClass(name);
  }
};

TEST(Load, NumbersWhatItAddsAboveAllStatementsOfTheFile) {
  AdderServer server;
  Load(server, std::string(kHead2x) + "#3=ADDER();#900=IFCDROPPED(1);#5=ADDER();");
  EXPECT_THAT(NumbersOf(server), ElementsAre(3, 5, 901, 902));
  EXPECT_EQ(server.AddItem(new Probe), 903u);
}

TEST(Load, NumbersWhatItAddsAboveStatementsBeforeTheSchema) {
  AdderServer server;
  Load(server, "ISO-10303-21;#40=X();FILE_SCHEMA(('IFC2X3'));#3=ADDER();");
  EXPECT_THAT(NumbersOf(server), ElementsAre(3, 41));
}

TEST(Load, NumbersWhatItAddsBesideANumberWithoutSuccessor) {
  AdderServer server;
  Load(server, std::string(kHead2x) + "#3=ADDER();#-1=ADDER();#70=IFCDROPPED(1);");
  EXPECT_THAT(NumbersOf(server), ElementsAre(3, 71, 72, 0xFFFFFFFFFFFFFFFF));
}

TEST(Load, ForgetsTheNumbersOfAFileAfterTheLoad) {
  IfcServer server;
  Load(server, std::string(kHead2x) + "#3=IFCCARTESIANPOINT((1.));#900=IFCDROPPED(1);");
  EXPECT_EQ(server.AddItem(new Probe), 4u);
  server.Reset();
  EXPECT_EQ(server.AddItem(new Probe), 1u);
}

std::string LongModel() {
  std::string text = kHead2x3;
  for (int i = 1; i < 40000; ++i)
    text += "#" + std::to_string(i) + "=IFCCARTESIANPOINT((1.,2.));\n";
  return text + kEnd;
}

TEST(Load, ReportsItsProgressOverBothPasses) {
  const std::string text = LongModel();
  std::vector<std::uint64_t> steps;
  IfcServer server;
  server.SetProgressHandler([&](std::uint64_t done, std::uint64_t total) {
    EXPECT_EQ(total, 2 * text.size());
    steps.push_back(done);
    return true;
  });
  EXPECT_EQ(Load(server, text), 0);
  ASSERT_GT(steps.size(), 4u);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  EXPECT_EQ(steps.back(), 2 * text.size());
}

TEST(Load, StopsOnRequestOfTheHostWithAnEmptyModel) {
  const std::string text = LongModel();
  for (const std::uint64_t limit : {std::uint64_t{0}, static_cast<std::uint64_t>(text.size())}) {
    IfcServer server;
    server.SetProgressHandler([limit](std::uint64_t done, std::uint64_t) { return done <= limit; });
    EXPECT_EQ(Load(server, text), 1);
    EXPECT_TRUE(server.GetItems().empty());
    EXPECT_EQ(server.GetNumberCount(), 0u);
    server.SetProgressHandler(nullptr);
    EXPECT_EQ(Load(server, text), 0);
    EXPECT_EQ(server.GetNumberCount(), 39999u);
  }
}

TEST(Load, FindsTheFirstObjectWithAGlobalIdentifier) {
  const _GUID guid = {0x12345678, 1, 2, {3, 4, 5, 6, 7, 8, 9, 10}};
  char text[23];
  ASSERT_NE(EncodeGlobalId64(guid, text, sizeof text), nullptr);
  const std::string project = std::string("=IFCPROJECT('") + text + "',$,$,$,$,$,$,$,$);";
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=IFCFOO(1);#2" + project + "#3" + project);
  EXPECT_EQ(server.GetItem(guid), server.GetItem(std::size_t{2}));
  EXPECT_EQ(server.GetItem(_GUID{9, 9, 9, {}}), nullptr);
  server.DeleteItem(server.GetItem(std::size_t{2}));
  EXPECT_EQ(server.GetItem(guid), nullptr);
  server.Reset();
  EXPECT_EQ(server.GetItem(guid), nullptr);
}

TEST(Load, ReplacesAnInvalidGlobalIdentifier) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=IFCPROJECT('12345678901234567890',$,$,$,$,$,$,$,$);");
  const std::string record = RecordAt(server, 1);
  EXPECT_EQ(record.find("12345678901234567890"), std::string::npos);
  EXPECT_EQ(record.find("',"), std::string("IFCPROJECT('").size() + 22);
}

TEST(Load, DoesNotRefreshTheIndexOfGlobalIdentifiers) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  const _GUID guid = {1, 2, 3, {4}};
  EXPECT_EQ(server.GetItem(guid), nullptr);
  char text[23];
  EncodeGlobalId64(guid, text, sizeof text);
  const auto add = [&server](const std::string& id) {
    IfcUnknown* project = server.CreateItem("IFCPROJECT");
    project->Parse(("IFCPROJECT('" + id + "')").c_str());
    return project;
  };
  add(IfcServer::CreateGlobalId2x());
  EXPECT_EQ(server.GetItem(guid), nullptr);
  IfcUnknown* late = add(text);
  EXPECT_EQ(server.GetItem(guid), nullptr);
  server.DeleteItem(late);
}

TEST(Load, FindsTheFirstProjectOfTheRelease) {
  IfcServer server;
  Load(server, std::string(kHead2x3) + "#1=IFCFOO(1);#2=IFCPROJECT($);#3=IFCPROJECT($);");
  const auto* project = reinterpret_cast<const void*>(server.GetProject2x3());
  EXPECT_EQ(project, dynamic_cast<const void*>(server.GetItem(std::size_t{2})));
  EXPECT_EQ(server.GetProject2x2(), nullptr);
  EXPECT_EQ(server.GetProject2x(), nullptr);
  EXPECT_EQ(server.GetProject20(), nullptr);
  EXPECT_EQ(server.GetProject151(), nullptr);
}

}  // namespace
}  // namespace KelIFC
