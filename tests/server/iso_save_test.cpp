#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

#include "tests/read_file.h"
#include "tests/server/load_text.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

using testing::HasSubstr;
using testing::Not;

/// A model of these statements, as it is saved after a load in a dialect.
std::string Saved(STEP_DIALECT dialect, const std::string& data) {
  const std::string text = HeadOf("IFC2X3") + data;
  IfcServer server;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), OptionsFor(dialect)), 0);
  const TempFile file;
  EXPECT_EQ(server.SaveIfcFile(file.GetPath()), 0);
  return file.Read();
}

TEST(IsoSave, WritesTheEscapesOfTheDialectOfTheModel) {
  const std::string wall = "#1=IFCMATERIAL('it''s \\X2\\00E4\\X0\\ C:\\\\');";
  EXPECT_THAT(Saved(STEP_DIALECT_ISO, wall),
              HasSubstr("#1=IFCMATERIAL('it''s \\X2\\00E4\\X0\\ C:\\\\');\n"));
  EXPECT_THAT(Saved(STEP_DIALECT_CLASSIC, "#1=IFCMATERIAL('it\\'s \\X\\E4 C:\\\\');"),
              HasSubstr("#1=IFCMATERIAL('it\\'s \\X\\E4 C:\\\\');\n"));
}

TEST(IsoSave, WritesRawInstancesInTheDialect) {
  const std::string saved =
      Saved(STEP_DIALECT_ISO, "#1=ifcFoo( 'it''s \xE4' , \"20F\" );#2=(A('x')B('\\S\\|'));");
  EXPECT_THAT(saved, HasSubstr("#1=IFCFOO('it''s \\X2\\00E4\\X0\\',\"20F\");\n"));
  EXPECT_THAT(saved, HasSubstr("#2=(A('x')B('\\X2\\00FC\\X0\\'));\n"));
}

TEST(IsoSave, WritesTheSameTextAgain) {
  const std::string data =
      "#1=IFCMATERIAL('it''s "
      "\\X4\\0001F3E0\\X0\\\\X\\0A;');\n#2=IFCBAR();\n#3=IFCFOO(\"0FF\",'/*');\n"
      "#4=(A('''')B(#1));\n";
  const std::string once = Saved(STEP_DIALECT_ISO, data);
  const std::size_t begin = once.find("DATA;\n") + 6;
  const std::string again =
      Saved(STEP_DIALECT_ISO, once.substr(begin, once.find("ENDSEC;", begin) - begin));
  EXPECT_EQ(again.substr(again.find("DATA;")), once.substr(once.find("DATA;")));
}

TEST(IsoSave, WritesWhatTheHostChangedAndAdded) {
  IfcServer server;
  LoadIso(server, HeadOf("IFC2X3") + "#1=IFCMATERIAL('x');");
  auto* material = dynamic_cast<KelIFC2x3::IfcMaterial*>(server.GetItem(std::size_t{1}));
  ASSERT_NE(material, nullptr);
  material->SetName("it's \xE2\x82\xAC");
  server.CreateItem("IFCMATERIAL")->Parse("IFCMATERIAL('T\\X\\FCr')");
  const TempFile file;
  server.SaveIfcFile(file.GetPath());
  EXPECT_THAT(file.Read(), HasSubstr("#1=IFCMATERIAL('it''s \\X2\\20AC\\X0\\');\n"
                                     "#2=IFCMATERIAL('T\\X2\\00FC\\X0\\r');\n"));
}

TEST(IsoSave, EscapesTheNameOfTheFile) {
  IfcServer server;
  LoadIso(server, HeadOf("IFC2X3") + "#1=IFCMATERIAL('x');");
  const std::string path = testing::TempDir() + "kelifc_it's_T\xC3\xBCr.ifc";
  ASSERT_EQ(server.SaveIfcFile(path.c_str()), 0);
  IfcServer again;
  EXPECT_EQ(again.LoadIfc(path.c_str(), OptionsFor(STEP_DIALECT_ISO)), 0);
  EXPECT_THAT(NumbersOf(again), testing::ElementsAre(1));
  const std::string text = ReadFile(path);
  EXPECT_THAT(text, HasSubstr("FILE_NAME('kelifc_it''s_T\\X2\\00FC\\X0\\r.ifc',"));
  std::remove(path.c_str());
}

TEST(IsoSave, IsClassicAgainAfterAReset) {
  IfcServer server;
  LoadIso(server, HeadOf("IFC2X3") + "#1=IFCMATERIAL('x');");
  server.Reset();
  server.CreateItem("IFCMATERIAL")->Parse("IFCMATERIAL('it\\'s')");
  const TempFile file;
  server.SaveIfcFile(file.GetPath());
  EXPECT_THAT(file.Read(), HasSubstr("IFCMATERIAL('it\\'s');\n"));
  EXPECT_THAT(file.Read(), Not(HasSubstr("''s")));
}

}  // namespace
}  // namespace KelIFC
