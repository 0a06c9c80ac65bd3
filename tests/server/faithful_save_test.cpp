#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <future>
#include <sstream>
#include <string>

#include "kelifc/schema/ifc151.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

#include "tests/read_file.h"
#include "tests/server/probe.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr char kHead[] =
    "ISO-10303-21;\nHEADER;\n/* a note */\nFILE_DESCRIPTION(('View'),'2;1');\n"
    "FILE_NAME('old.ifc','2001-01-01T00:00:00',('An'),('Org'),'Old 1','Sys','');\n"
    "FILE_SCHEMA(('IFC2X3'));\nENDSEC;\n";
constexpr char kTail[] = "ENDSEC;\nEND-ISO-10303-21;\n";

LoadOptions Iso() {
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  return options;
}

SaveOptions Faithful() {
  SaveOptions options;
  options.faithful = true;
  return options;
}

// What follows the header.
std::string DataOf(const std::string& text) {
  const std::size_t begin = text.find("ENDSEC;\n");
  return begin == std::string::npos ? "no header" : text.substr(begin + 8);
}

/// A model in a file.
class FaithfulSave : public testing::Test {
 protected:
  FaithfulSave() {
    server.SetErrorHandler([this](const std::string& message) { told += message + "\n"; });
  }

  void Load(const std::string& data) {
    std::ofstream(source.GetPath(), std::ios::binary) << kHead << data;
    ASSERT_EQ(server.LoadIfc(source.GetPath(), Iso()), 0);
  }

  std::string Save() {
    EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_SAVED) << told;
    return ReadFile(target.GetPath());
  }

  // The data sections, after a save.
  std::string SaveData() { return DataOf(Save()); }

  template <class T>
  T& Get(std::size_t number) {
    return dynamic_cast<T&>(*server.GetItem(number));
  }

  void MovePoint(std::size_t number, double x) {
    Get<IfcCartesianPoint>(number).SetCoordinates(1, REAL(x));
  }

  const TempFile source;
  const TempFile target;
  std::string told;
  IfcServer server;
};

TEST_F(FaithfulSave, WithoutAChangeCopiesTheDataSection) {
  const std::string data =
      "DATA;\r\n/* a comment; with 'quotes */ #2 = IfcCartesianPoint ( ( 0.0005 , 2.50E0 ) ) ;\n"
      "#007=IFCWALL('0123456789ABCDEFGHIJ_$',#99,'it''s \\X\\E9',$,$,$,$,$);\n"
      "#1=IFCUNHEARD(1,.X.,(\"0F\"));#5=(IFCA(1)IFCB(2));\n\n#3=IFCAXIS2PLACEMENT2D(#2,$);\n" +
      std::string(kTail) + "after the end\n";
  Load(data);
  EXPECT_EQ(SaveData(), data);
}

TEST_F(FaithfulSave, KeepsTheHeaderButForThreeFields) {
  Load(std::string("DATA;\n") + kTail);
  const std::string text = Save();
  const std::string name = fs::path(target.GetPath()).filename().string();
  EXPECT_THAT(text, testing::StartsWith("ISO-10303-21;\nHEADER;\n/* a note */\n"
                                        "FILE_DESCRIPTION(('View'),'2;1');\nFILE_NAME('" +
                                        name + "','20"));
  EXPECT_THAT(text, HasSubstr("',('An'),('Org'),'KelIFC v. 25.0.3857','Sys','');\n"
                              "FILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n"));
}

TEST_F(FaithfulSave, RewritesTheStatementOfAChangedInstanceOnly) {
  Load(
      "DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n#2= IFCCARTESIANPOINT((1.0,2.0)) ;\n"
      "#3=IFCCARTESIANPOINT((1.0,2.0));\n" +
      std::string(kTail));
  MovePoint(2, 5);
  EXPECT_EQ(SaveData(),
            "DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n#2=IFCCARTESIANPOINT((5.,2.));\n"
            "#3=IFCCARTESIANPOINT((1.0,2.0));\n" +
                std::string(kTail));
}

TEST_F(FaithfulSave, ReportsTheBytesOfTheSourceForBothPasses) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n" + std::string(kTail));
  const std::uint64_t size = ReadFile(source.GetPath()).size();
  std::uint64_t last = 0;
  SaveOptions options = Faithful();
  options.progress = [&](std::uint64_t done, std::uint64_t total) {
    EXPECT_EQ(total, 2 * size);
    EXPECT_GT(done, last);
    last = done;
    return true;
  };
  EXPECT_EQ(server.SaveIfc(target.GetPath(), options), SAVE_RESULT_SAVED);
  EXPECT_EQ(last, 2 * size);
}

TEST_F(FaithfulSave, LeavesTheOldFileIfItIsCancelledInOneOfThePasses) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n" + std::string(kTail));
  std::ofstream(target.GetPath()) << "old";
  for (const bool isFirstPass : {true, false}) {
    SaveOptions options = Faithful();
    options.progress = [&](std::uint64_t done, std::uint64_t total) {
      return !isFirstPass && done < total;
    };
    EXPECT_EQ(server.SaveIfc(target.GetPath(), options), SAVE_RESULT_CANCELLED);
    EXPECT_EQ(ReadFile(target.GetPath()), "old");
  }
  EXPECT_THAT(told, HasSubstr(": the save was cancelled\n"));
}

TEST_F(FaithfulSave, RewritesAStatementWhoseChangeIsBelowTheTolerance) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((0.0,2.0));\n" + std::string(kTail));
  MovePoint(1, 0.0005);
  EXPECT_EQ(SaveData(), "DATA;\n#1=IFCCARTESIANPOINT((0.,2.));\n" + std::string(kTail));
}

TEST_F(FaithfulSave, WritesAChangedTextInTheNotationOfTheStandard) {
  Load("DATA;\n#1=IFCWALL('0123456789ABCDEFGHIJ_$',$,'a',$,$,$,$,$);\n" + std::string(kTail));
  Get<KelIFC2x3::IfcWall>(1).SetName("it's \xC3\xA9");
  EXPECT_THAT(SaveData(), HasSubstr("'it''s \\X2\\00E9\\X0\\'"));
  IfcServer again;
  ASSERT_EQ(again.LoadIfc(target.GetPath(), Iso()), 0);
  const auto& wall = dynamic_cast<KelIFC2x3::IfcWall&>(*again.GetItem(std::size_t{1}));
  EXPECT_EQ(std::string(wall.GetName()), "it's \xC3\xA9");
}

TEST_F(FaithfulSave, LeavesOutTheStatementOfADeletedInstance) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.));\n/*x*/#2=IFCCARTESIANPOINT((2.));\n#3=IFCFOO(#2);\n" +
       std::string(kTail));
  server.DeleteItem(server.GetItem(std::size_t{2}));
  EXPECT_EQ(SaveData(),
            "DATA;\n#1=IFCCARTESIANPOINT((1.));\n/*x*/\n#3=IFCFOO(#2);\n" + std::string(kTail));
}

TEST_F(FaithfulSave, WritesNewInstancesAtTheEndOfTheLastDataSection) {
  Load("DATA;\n#9=IFCCARTESIANPOINT((1.));\nENDSEC;\nDATA('b',('IFC2X3'));\n#1=IFCFOO();\n" +
       std::string(kTail));
  server.InsertItem(20, new IfcCartesianPoint(2, 3));
  server.InsertItem(11, new IfcCartesianPoint(4, 5));
  EXPECT_EQ(SaveData(),
            "DATA;\n#9=IFCCARTESIANPOINT((1.));\nENDSEC;\nDATA('b',('IFC2X3'));\n#1=IFCFOO();\n"
            "#11=IFCCARTESIANPOINT((4.,5.));\n#20=IFCCARTESIANPOINT((2.,3.));\n" +
                std::string(kTail));
}

TEST_F(FaithfulSave, WritesNewInstancesAtTheEndOfAFileThatIsCut) {
  Load("DATA;\n#1=IFCFOO();\n#2=IFCFO");
  server.AddItem(new IfcCartesianPoint(2, 3));
  EXPECT_EQ(SaveData(), "DATA;\n#1=IFCFOO();\n#2=IFCCARTESIANPOINT((2.,3.));\n\n#2=IFCFO");
}

TEST_F(FaithfulSave, PutsAnInstanceThatTookANumberInThePlaceOfItsStatement) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.));\n#2=IFCFOO();\n" + std::string(kTail));
  server.InsertItem(1, new IfcCartesianPoint(2, 3));
  EXPECT_EQ(SaveData(),
            "DATA;\n#1=IFCCARTESIANPOINT((2.,3.));\n#2=IFCFOO();\n" + std::string(kTail));
}

TEST_F(FaithfulSave, CopiesTheEarlierStatementsOfANumber) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0));\n#1=IFCCARTESIANPOINT((2.0));\n" + std::string(kTail));
  MovePoint(1, 3);
  EXPECT_EQ(SaveData(), "DATA;\n#1=IFCCARTESIANPOINT((1.0));\n#1=IFCCARTESIANPOINT((3.));\n" +
                            std::string(kTail));
}

TEST_F(FaithfulSave, CopiesStatementsThatTheLoadDropped) {
  const std::string data =
      "DATA;\n#1=IFCFOO(1);\n#2=IFCCARTESIANPOINT((2.0));\n" + std::string(kTail);
  std::string text = std::string(kHead) + data;
  text.replace(text.find("IFC2X3"), 6, "IFC20_LONGFORM");
  std::ofstream(source.GetPath(), std::ios::binary) << text;
  LoadOptions options = Iso();
  options.keepUnknown = false;
  ASSERT_EQ(server.LoadIfc(source.GetPath(), options), 0);
  ASSERT_EQ(server.GetItem(std::size_t{1}), nullptr);
  EXPECT_EQ(SaveData(), data);
}

TEST_F(FaithfulSave, CopiesStatementsBeforeTheSchema) {
  const std::string data = "#1=IFCFOO(1);FILE_SCHEMA x;#1=IFCFOO( 2 );DATA;#1=IFCFOO(3);";
  std::string text = kHead;
  text.insert(text.find("FILE_SCHEMA"), data);
  std::ofstream(source.GetPath(), std::ios::binary) << text << "#1=IFCFOO( 4 );" << kTail;
  ASSERT_EQ(server.LoadIfc(source.GetPath(), Iso()), 0);
  const std::string saved = Save();
  EXPECT_THAT(saved, HasSubstr(data + "FILE_SCHEMA(("));
  EXPECT_EQ(DataOf(saved), "#1=IFCFOO( 4 );" + std::string(kTail));
}

TEST_F(FaithfulSave, CopiesAStatementWithoutAnEnd) {
  const std::string data = "DATA;\n#1=IFCFOO('a\n#2=IFCFOO(2)\n#3=IFCFOO(3);\n";
  Load(data + kTail);
  EXPECT_EQ(SaveData(), data + kTail);
}

TEST_F(FaithfulSave, WritesAnAddedInstanceThatTheHostChanged) {
  const std::string data =
      "DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n#2=IFCAXIS2PLACEMENT2D(#1,$);\n"
      "#3=IFCAXIS2PLACEMENT2D(#1,$);\n";
  Load(data + kTail);
  ASSERT_EQ(server.GetNumberCount(), 5u);
  Get<KelIFC2x3::IfcDirection>(5).SetDirectionRatio(2, REAL(0.0005));
  EXPECT_EQ(SaveData(), data + "#5=IFCDIRECTION(($,0.));\n" + kTail);
}

TEST_F(FaithfulSave, LeavesOutWhatAClassAddedDuringTheLoad) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n#2=IFCAXIS2PLACEMENT2D(#1,$);\n" +
       std::string(kTail));
  ASSERT_EQ(server.GetNumberCount(), 3u);
  EXPECT_THAT(SaveData(), testing::Not(HasSubstr("IFCDIRECTION")));
}

TEST_F(FaithfulSave, WritesWhatAClassAddedIfAChangedStatementRefersToIt) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0,2.0));\n#2=IFCAXIS2PLACEMENT2D(#1,$);\n" +
       std::string(kTail));
  Get<KelIFC2x3::IfcAxis2Placement2D>(2).SetRefDirection(&Get<KelIFC2x3::IfcDirection>(3));
  const std::string data = SaveData();
  EXPECT_THAT(data, HasSubstr("#2=IFCAXIS2PLACEMENT2D(#1,#3);\n"));
  EXPECT_THAT(data, HasSubstr("\n#3=IFCDIRECTION("));
}

TEST_F(FaithfulSave, ReplacesItsOwnSource) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0));\n#2=IFCFOO( 1 );\n" + std::string(kTail));
  MovePoint(1, 3);
  ASSERT_EQ(server.SaveIfc(source.GetPath(), Faithful()), SAVE_RESULT_SAVED) << told;
  EXPECT_EQ(DataOf(ReadFile(source.GetPath())),
            "DATA;\n#1=IFCCARTESIANPOINT((3.));\n#2=IFCFOO( 1 );\n" + std::string(kTail));
}

TEST_F(FaithfulSave, RefusesASourceThatHasChanged) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0));\n" + std::string(kTail));
  std::ofstream(target.GetPath()) << "old";
  std::ofstream(source.GetPath(), std::ios::binary)
      << kHead << "DATA;\n#1=IFCCARTESIANPOINT((7.0));\n"
      << kTail;
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_SOURCE_CHANGED);
  EXPECT_EQ(told, std::string(target.GetPath()) +
                      ": the source of the model has changed since it was loaded\n");
  EXPECT_EQ(ReadFile(target.GetPath()), "old");
}

TEST_F(FaithfulSave, RefusesASourceThatIsGone) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0));\n" + std::string(kTail));
  std::ofstream(target.GetPath()) << "old";
  fs::remove(source.GetPath());
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_NO_SOURCE);
  EXPECT_EQ(ReadFile(target.GetPath()), "old");
}

TEST_F(FaithfulSave, RefusesAModelThatWasNotLoadedForIt) {
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_NO_SOURCE);
  std::ofstream(source.GetPath()) << kHead << "DATA;\n" << kTail;
  ASSERT_EQ(server.LoadIfcFile(source.GetPath()), 0);
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_NO_SOURCE);
  ASSERT_EQ(server.LoadIfc(source.GetPath(), Iso()), 0);
  server.Reset();
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_NO_SOURCE);
}

TEST_F(FaithfulSave, FailsIfAnInstanceCannotBeWritten) {
  class Unwritable : public Probe {
   public:
    std::ostream& Write(std::ostream& out) const override {
      out.setstate(std::ios::badbit);
      return out;
    }
  };
  Load(std::string("DATA;\n") + kTail);
  server.AddItem(new Unwritable);
  EXPECT_EQ(server.SaveIfc(target.GetPath(), Faithful()), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_EQ(ReadFile(target.GetPath()), "");
}

TEST_F(FaithfulSave, ServesModelsFromMemoryAndFromStreams) {
  const std::string data = "DATA;\n#1=IFCFOO( 1 );\n" + std::string(kTail);
  {
    const std::string text = kHead + data;
    ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), Iso()), 0);
  }
  EXPECT_EQ(SaveData(), data);
  {
    std::istringstream in(kHead + data);
    ASSERT_EQ(server.LoadIfcStream(in, Iso()), 0);
  }
  EXPECT_EQ(SaveData(), data);
}

TEST_F(FaithfulSave, CopiesAByteOrderMark) {
  std::ofstream(source.GetPath(), std::ios::binary) << "\xEF\xBB\xBF" << kHead << "DATA;\n"
                                                    << kTail;
  ASSERT_EQ(server.LoadIfc(source.GetPath(), Iso()), 0);
  EXPECT_THAT(Save(), testing::StartsWith("\xEF\xBB\xBFISO-10303-21;\n"));
}

TEST_F(FaithfulSave, CopiesInstancesWhoseIdentifiersCannotBeRead) {
  const std::string data =
      "DATA;\n#1=IFCWALL('short',$,'a',$,$,$,$,$);\n#2=IFCWALL( $,$,'b',$,$,$,$,$);\n"
      "#3=IFCPROPERTYSINGLEVALUE('c',$,IFCPROJECT('',$),$);\n" +
      std::string(kTail);
  Load(data);
  const std::string invented = Get<KelIFC2x3::IfcWall>(1).GetGlobalId();
  ASSERT_EQ(invented.size(), 22u);
  EXPECT_EQ(SaveData(), data);
  EXPECT_EQ(std::string(Get<KelIFC2x3::IfcWall>(1).GetGlobalId()), invented);
}

TEST_F(FaithfulSave, WritesAnIdentifierThatTheHostSetForOneThatCannotBeRead) {
  Load("DATA;\n#1=IFCWALL('short',$,$,$,$,$,$,$);\n" + std::string(kTail));
  Get<KelIFC2x3::IfcWall>(1).SetGlobalId("0YvctVUKr0kugbFTf53O9L");
  EXPECT_EQ(SaveData(),
            "DATA;\n#1=IFCWALL('0YvctVUKr0kugbFTf53O9L',$,$,$,$,$,$,$);\n" + std::string(kTail));
}

TEST_F(FaithfulSave, AddsNothingToAFileThatIsCut) {
  const std::string data = "DATA;\n#1=IFCFOO();#2=IFCFO";
  Load(data);
  EXPECT_EQ(SaveData(), data);
}

#ifndef _WIN32
TEST_F(FaithfulSave, FollowsALinkToItsOwnSource) {
  Load("DATA;\n#1=IFCCARTESIANPOINT((1.0));\n#2=IFCFOO( 1 );\n" + std::string(kTail));
  MovePoint(1, 3);
  const std::string link = std::string(target.GetPath()) + ".link";
  fs::remove(link);
  fs::create_symlink(source.GetPath(), link);
  EXPECT_EQ(server.SaveIfc(link.c_str(), Faithful()), SAVE_RESULT_SAVED) << told;
  EXPECT_TRUE(fs::is_symlink(link));
  fs::remove(link);
  EXPECT_EQ(DataOf(ReadFile(source.GetPath())),
            "DATA;\n#1=IFCCARTESIANPOINT((3.));\n#2=IFCFOO( 1 );\n" + std::string(kTail));
}

TEST_F(FaithfulSave, WritesATargetThatIsNoOrdinaryFileDirectly) {
  const std::string data = "DATA;\n#1=IFCFOO( 1 );\n" + std::string(kTail);
  Load(data);
  const std::string pipe = std::string(target.GetPath()) + ".pipe";
  fs::remove(pipe);
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  auto read = std::async(std::launch::async, [&pipe] { return ReadFile(pipe); });
  EXPECT_EQ(server.SaveIfc(pipe.c_str(), Faithful()), SAVE_RESULT_SAVED) << told;
  EXPECT_EQ(DataOf(read.get()), data);
  EXPECT_TRUE(fs::is_fifo(pipe));
  fs::remove(pipe);
}

TEST_F(FaithfulSave, OntoAFullDiskIsAFailure) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no full disk to write to";
  Load(std::string("DATA;\n") + kTail);
  EXPECT_EQ(server.SaveIfc("/dev/full", Faithful()), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_THAT(told, testing::StartsWith("/dev/full: "));
}
#endif

/// A model of release 1.5.1 in a file.
class FaithfulSave151 : public FaithfulSave {
 protected:
  void Load(const std::string& data) {
    std::string text = kHead + data;
    text.replace(text.find("IFC2X3"), 6, "IFC151");
    std::ofstream(source.GetPath(), std::ios::binary) << text;
    ASSERT_EQ(server.LoadIfc(source.GetPath(), Iso()), 0);
  }
};

TEST_F(FaithfulSave151, CopiesAMaterialThatARegistryCompletes) {
  const std::string data =
      "DATA;\n#3=IFCPROJECTMATERIALREGISTRY((#4));\n#1=IFCMATERIAL( 'oak' ,$);\n"
      "#4=IFCMATERIAL( 'elm' ,$);\n#2=IFCPROJECTMATERIALREGISTRY( (#1,IFCMATERIAL('ash',$)) );\n" +
      std::string(kTail);
  Load(data);
  ASSERT_NE(Get<KelIFC151::IfcMaterial>(1).GetRegisteredBy(), nullptr);
  EXPECT_EQ(SaveData(), data);
}

TEST_F(FaithfulSave151, CopiesAMaterialWhoseRegistryIsAnInlineValueThatAnotherRegistryCompletes) {
  const std::string data =
      "DATA;\n#1=IFCMATERIAL(IFCFACE((#9)),$);\n#2=IFCPROJECTMATERIALREGISTRY((#1));\n" +
      std::string(kTail);
  Load(data);
  EXPECT_EQ(SaveData(), data);
}

TEST_F(FaithfulSave151, WritesAMaterialOfWhichTheHostChangedTheRegistry) {
  const std::string registries =
      "#2=IFCPROJECTMATERIALREGISTRY((#1));\n#3=IFCPROJECTMATERIALREGISTRY(());\n" +
      std::string(kTail);
  Load("DATA;\n#1=IFCMATERIAL('oak',$);\n" + registries);
  Get<KelIFC151::IfcMaterial>(1).SetRegisteredBy(&Get<KelIFC151::IfcProjectMaterialRegistry>(3));
  EXPECT_EQ(SaveData(), "DATA;\n#1=IFCMATERIAL('oak',#3);\n" + registries);
}

TEST_F(FaithfulSave151, WritesAMaterialThatTheHostRegisteredWithAnEarlierRegistry) {
  const std::string registry = "DATA;\n#2=IFCPROJECTMATERIALREGISTRY((#1));\n";
  Load(registry + "#1=IFCMATERIAL('oak',$);\n" + kTail);
  auto& material = Get<KelIFC151::IfcMaterial>(1);
  ASSERT_EQ(material.GetRegisteredBy(), nullptr);
  material.SetRegisteredBy(&Get<KelIFC151::IfcProjectMaterialRegistry>(2));
  EXPECT_EQ(SaveData(), registry + "#1=IFCMATERIAL('oak',#2);\n" + kTail);
}

TEST_F(FaithfulSave151, WritesAMaterialWithAnotherName) {
  const std::string registry = "#2=IFCPROJECTMATERIALREGISTRY((#1));\n" + std::string(kTail);
  Load("DATA;\n#1=IFCMATERIAL('oak',$);\n" + registry);
  Get<KelIFC151::IfcMaterial>(1).SetMaterialName("elm");
  EXPECT_EQ(SaveData(), "DATA;\n#1=IFCMATERIAL('elm',#2);\n" + registry);
}

}  // namespace
}  // namespace KelIFC
