#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <filesystem>
#include <locale>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string Save(IfcServer& server) {
  const TempFile file;
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 0);
  return file.Read();
}

// Returns the text between DATA and ENDSEC.
std::string SaveData(IfcServer& server) {
  const std::string text = Save(server);
  const std::size_t begin = text.find("DATA;\n") + 6;
  return text.substr(begin, text.rfind("ENDSEC;\n") - begin);
}

/// The lines of a text, without their ends.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(Save, WritesTheHeaderOfAnEmptyModel) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  const TempFile file;
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 0);
  const std::string name = std::string(file.GetPath()).substr(testing::TempDir().size());
  const std::vector<std::string> lines = LinesOf(file.Read());
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_EQ(lines[0], "ISO-10303-21;");
  EXPECT_EQ(lines[1], "HEADER;");
  EXPECT_EQ(lines[2], "FILE_DESCRIPTION(('Merrow generated IFC file.'),'2;1');");
  const std::string time = lines[3].substr(std::string("FILE_NAME('").size() + name.size() + 3, 19);
  EXPECT_EQ(lines[3], "FILE_NAME('" + name + "','" + time +
                          "',(''),('Halvern'),'KelIFC v. 25.0.3857','','');");
  EXPECT_EQ(lines[4], "FILE_SCHEMA(('IFC2X3'));");
  EXPECT_EQ(lines[5], "ENDSEC;");
  EXPECT_EQ(lines[6], "DATA;");
  EXPECT_EQ(lines[7], "ENDSEC;");
  EXPECT_EQ(lines[8], "END-ISO-10303-21;");
}

TEST(Save, WritesTheSevenFieldsOfTheFileName) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  const std::string record = LinesOf(Save(server)).at(3);
  EXPECT_EQ(std::count(record.begin(), record.end(), ','), 6) << record;
}

TEST(Save, WritesTheLocalTimeOfTheSave) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_TRUE(std::regex_search(Save(server),
                                std::regex("','\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d',\\('")));
}

TEST(Save, WritesTheSchemaOfTheRelease) {
  const std::pair<IFC_RELEASE, const char*> kReleases[] = {
      {IFC_RELEASE_151, "IFC151"},     {IFC_RELEASE_20, "IFC20_LONGFORM"},
      {IFC_RELEASE_2X, "IFC2X_FINAL"}, {IFC_RELEASE_2X2, "IFC2X2_FINAL"},
      {IFC_RELEASE_2X3, "IFC2X3"},
  };
  for (const auto& [release, schema] : kReleases) {
    IfcServer server;
    server.SetRelease(release);
    EXPECT_THAT(Save(server), HasSubstr(std::string("FILE_SCHEMA(('") + schema + "'));"));
  }
}

TEST(Save, WritesTheLongerSchemaStringAsTheShorterOne) {
  IfcServer server;
  server.LoadIfcFile(TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3_FINAL'));").GetPath());
  EXPECT_THAT(Save(server), HasSubstr("FILE_SCHEMA(('IFC2X3'));"));
}

TEST(Save, KeepsTheNumbersAndWritesThemInAscendingOrder) {
  IfcServer server;
  server.LoadIfcFile(TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));"
                              "#5=IFCCARTESIANPOINT((5.));#3=ifcfoo('a''b',#9);#9=IFCFOO();")
                         .GetPath());
  EXPECT_EQ(SaveData(server), "#3=IFCFOO('a''b',#9);\n#5=IFCCARTESIANPOINT((5.));\n#9=IFCFOO();\n");
}

TEST(Save, WritesNumbersFarApart) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  server.InsertItem(2147483647, new Probe("a"));
  server.InsertItem(1, new Probe("b"));
  EXPECT_EQ(SaveData(server), "#1=PROBE(b);\n#2147483647=PROBE(a);\n");
}

TEST(Save, WritesManyNumbersInNoOrder) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  constexpr std::size_t kPrime = 997;
  std::string expected;
  for (std::size_t i = 1; i < kPrime; ++i) {
    const std::size_t number = i * 389 % kPrime;
    server.InsertItem(number, new Probe(std::to_string(number)));
  }
  for (std::size_t i = 1; i < kPrime; ++i) {
    if (i % 3 == 0) {
      server.DeleteItem(server.GetItem(i));
    } else {
      expected += "#" + std::to_string(i) + "=PROBE(" + std::to_string(i) + ");\n";
    }
  }
  EXPECT_EQ(SaveData(server), expected);
}

TEST(Save, SkipsAnInstanceThatIsDeletedWhileAnEarlierOneIsWritten) {
  class Remover : public Probe {
   public:
    std::ostream& Write(std::ostream& out) const override {
      auto* server = const_cast<IfcServer*>(GetServer());
      server->DeleteItem(server->GetItem(std::size_t{3}));
      return Probe::Write(out);
    }
  };
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  server.InsertItem(1, new Remover);
  server.InsertItem(2, new Probe);
  server.InsertItem(3, new Probe);
  EXPECT_EQ(SaveData(server), "#1=PROBE();\n#2=PROBE();\n");
}

TEST(Save, WritesAnAddedInstanceLast) {
  IfcServer server;
  server.LoadIfcFile(
      TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));#500=IFCFOO();#3=IFCFOO();").GetPath());
  server.AddItem(new Probe("new"));
  EXPECT_THAT(SaveData(server), EndsWith("#500=IFCFOO();\n#501=PROBE(new);\n"));
}

TEST(Save, LeavesAGapForADeletedInstanceAndKeepsReferencesToIt) {
  IfcServer server;
  server.LoadIfcFile(TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));"
                              "#1=IFCBOUNDINGBOX(#2,1.,1.,1.);#2=IFCCARTESIANPOINT((1.));")
                         .GetPath());
  server.DeleteItem(server.GetItem(std::size_t{2}));
  EXPECT_EQ(SaveData(server), "#1=IFCBOUNDINGBOX(#2,1.,1.,1.);\n");
}

TEST(Save, SkipsNullEntriesAndInstancesWithoutNumber) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  server.InsertItem(1, new Probe("earlier"));
  server.InsertItem(1, new Probe("later"));
  server.AddItem(nullptr);
  EXPECT_EQ(SaveData(server), "#1=PROBE(later);\n");
}

TEST(Save, WritesValuesInTheirOwnForm) {
  IfcServer server;
  server.LoadIfcFile(TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));"
                              "#1=IFCCARTESIANPOINT((1.0E-5,2.50,0.0005,1.E2));")
                         .GetPath());
  EXPECT_EQ(SaveData(server), "#1=IFCCARTESIANPOINT((0.,2.5,0.,100.));\n");
}

TEST(Save, ReadsBackWhatItWrote) {
  IfcServer server;
  const TempFile first(
      "ISO-10303-21;FILE_SCHEMA(('IFC2X2_FINAL'));"
      "#1=IFCBOUNDINGBOX(#2,1.,$,*);#2=IFCCARTESIANPOINT(());#4=(A(1)B(2));");
  ASSERT_EQ(server.LoadIfcFile(first.GetPath()), 0);
  const TempFile second;
  ASSERT_EQ(server.SaveIfcFile(second.GetPath()), 0);
  IfcServer again;
  ASSERT_EQ(again.LoadIfcFile(second.GetPath()), 0);
  EXPECT_EQ(again.GetRelease(), IFC_RELEASE_2X2);
  EXPECT_EQ(again.GetNumberCount(), 3u);
}

TEST(Save, WritesTheLastComponentOfThePathAsTheName) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
#ifdef _WIN32  // elsewhere the backslash is a character of the name
  std::filesystem::create_directory(testing::TempDir() + "kelifc_save");
#endif
  const std::string path = testing::TempDir() + "kelifc_save\\it's.ifc";
  EXPECT_EQ(server.SaveIfcFile(path.c_str()), 0);
  std::ifstream file(path);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  std::remove(path.c_str());
  EXPECT_THAT(text, HasSubstr("FILE_NAME('it's.ifc','"));
}

TEST(Save, ReturnsOneWithoutAReleaseAndDoesNotChangeTheFile) {
  IfcServer server;
  std::string told;
  server.SetErrorHandler([&told](const std::string& message) { told = message; });
  const TempFile file("precious");
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 1);
  EXPECT_EQ(file.Read(), "precious");
  EXPECT_THAT(told, StartsWith(file.GetPath()));
}

TEST(Save, ReturnsOneAndReportsToTheHostIfTheFileCannotBeCreated) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  std::vector<std::string> told;
  server.SetErrorHandler([&told](const std::string& message) { told.push_back(message); });
  EXPECT_EQ(server.SaveIfcFile("/no/such/folder/a.ifc"), 1);
  EXPECT_EQ(server.SaveIfcFile(testing::TempDir().c_str()), 1);
  EXPECT_EQ(server.SaveIfcFile(""), 1);
  EXPECT_EQ(server.SaveIfcFile(nullptr), 1);
  ASSERT_EQ(told.size(), 4u);
  EXPECT_THAT(told[0], StartsWith("/no/such/folder/a.ifc: "));
  EXPECT_THAT(told[1], StartsWith(testing::TempDir() + ": "));
}

TEST(Save, ReportsToTheStandardErrorStreamIfTheHostHasNoHandler) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  testing::internal::CaptureStderr();
  EXPECT_EQ(server.SaveIfcFile("/no/such/folder/a.ifc"), 1);
  const std::string line = testing::internal::GetCapturedStderr();
  EXPECT_THAT(line, StartsWith("kelifc: /no/such/folder/a.ifc: "));
  EXPECT_EQ(line.find('\n'), line.size() - 1);
}

TEST(Save, ReportsThatAFileCannotBeWrittenToItsEnd) {
  if (!std::ofstream("/dev/full").is_open()) GTEST_SKIP() << "no full device on this system";
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  std::string told;
  server.SetErrorHandler([&told](const std::string& message) { told = message; });
  EXPECT_EQ(server.SaveIfcFile("/dev/full"), 0);
  EXPECT_EQ(told, "/dev/full: the file could not be written to its end: No space left on device");
}

TEST(Save, ReportsThatTheFileWasRemovedWhileItWasWritten) {
  class Thief : public Probe {
   public:
    explicit Thief(const char* file) : path(file) {}
    std::ostream& Write(std::ostream& out) const override {
      std::remove(path);
      return Probe::Write(out);
    }

   private:
    const char* path;
  };
  const TempFile file;
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  server.AddItem(new Thief(file.GetPath()));
  std::string told;
  server.SetErrorHandler([&told](const std::string& message) { told += message; });
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 0);
#ifdef _WIN32
  EXPECT_EQ(told, "");  // there an open file stays
#else
  EXPECT_EQ(told, std::string(file.GetPath()) + ": the file is gone");
#endif
}

TEST(Save, IgnoresTheProcessLocale) {
  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  IfcServer server;
  server.LoadIfcFile(TempFile("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));"
                              "#123456=IFCBOUNDINGBOX(#654321,1234567.5,$,$);")
                         .GetPath());
  const std::locale before = std::locale::global(std::locale(std::locale(), new Grouping));
  const std::string text = Save(server);
  std::locale::global(before);
  EXPECT_THAT(text, HasSubstr("#123456=IFCBOUNDINGBOX(#654321,1234567.5,$,$);\n"));
  EXPECT_THAT(text, HasSubstr("25.0.3857"));
}

}  // namespace
}  // namespace KelIFC
