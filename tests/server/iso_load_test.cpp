#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "kelifc/core/other.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/load_text.h"

// Loads in the dialect of ISO 10303-21, where they differ from classic ones.

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Loads statements of release 2x3.
int LoadData(IfcServer& server, const std::string& data) {
  return LoadIso(server, HeadOf("IFC2X3") + data);
}

std::uint64_t CountOf(const IfcServer& server, LoadFinding kind) {
  return server.GetLoadFindings().GetCount(kind);
}

std::string NameOf(IfcServer& server, std::size_t number) {
  const auto* root = dynamic_cast<const KelIFC2x3::IfcRoot*>(server.GetItem(number));
  return root == nullptr ? "none" : std::string(root->GetName());
}

TEST(IsoLoad, HasTextsInUtf8) {
  IfcServer server;
  EXPECT_EQ(LoadData(server,
                     "#1=IFCWALL('g',$,'T\\X2\\00FC\\X0\\r',$,$,$,$,$);\n"
                     "#2=IFCWALL('g',$,'T\\S\\|r',$,$,$,$,$);\n"
                     "#3=IFCWALL('g',$,'T\\X\\FCr',$,$,$,$,$);\n"
                     "#4=IFCWALL('g',$,'T\xC3\xBCr',$,$,$,$,$);\n"
                     "#5=IFCWALL('g',$,'T\xFCr',$,$,$,$,$);\n"
                     "#6=IFCWALL('g',$,'it''s C:\\\\\\X4\\0001F3E0\\X0\\',$,$,$,$,$);"),
            0);
  for (std::size_t n = 1; n <= 5; ++n) EXPECT_EQ(NameOf(server, n), "T\xC3\xBCr") << n;
  EXPECT_EQ(NameOf(server, 6), "it's C:\\\xF0\x9F\x8F\xA0");
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_ISO);
}

TEST(IsoLoad, GoesOnAfterAStringThatEndsInABackslash) {
  const std::string text = HeadOf("IFC2X3") +
                           "#1=IFCWALL('g',$,'caf\\X2\\00E9\\X0\\',$,$,$,$,'t');"
                           "#2=IFCWALL('g',$,'b',$,$,$,$,$);";
  IfcServer server;
  LoadIso(server, text);
  EXPECT_EQ(NameOf(server, 1), "caf\xC3\xA9");
  EXPECT_EQ(NameOf(server, 2), "b");
  IfcServer classic;
  classic.LoadIfcMemory(text.data(), text.size(), OptionsFor(STEP_DIALECT_CLASSIC));
  EXPECT_EQ(NameOf(classic, 2), "none");
}

TEST(IsoLoad, ReplacesAndReportsABadEscape) {
  IfcServer server;
  EXPECT_EQ(LoadData(server, "#1=IFCWALL('g',$,'C:\\temp',\n 'a\\X2\\00E4 b',$,$,$,$);"), 0);
  EXPECT_EQ(NameOf(server, 1), "C:\xEF\xBF\xBDtemp");
  const auto* wall = dynamic_cast<const KelIFC2x3::IfcRoot*>(server.GetItem(std::size_t{1}));
  EXPECT_EQ(wall->GetDescription(), "a\xC3\xA4 b");
  EXPECT_THAT(server.GetLoadFindings().GetPlaces(LoadFinding::kBadEscape),
              ElementsAre(SourcePlace{2, 21}, SourcePlace{3, 4}));
}

TEST(IsoLoad, ReadsTokensInAnyCaseAndWithAnythingBetween) {
  IfcServer server;
  EXPECT_EQ(LoadIso(server,
                    "\xEF\xBB\xBF\n/* a\nmodel */ iso-10303-21 ;\nheader;\n"
                    "file_schema ( ( 'Ifc2x3' ) ) ;\nendsec;data;\n"
                    "#0000000000007 /* n */ = /*\n*/ ifcCartesianPoint /* c */ ( ( 1. , 2.e0 ) ) ;"
                    "# 8=IFCWALL($,$,$,$,$,$,$,$);\n"
                    "#9=ifcSlab('2O2Fr$t4X7Zf8NOew3FLOH',$,$,$,$,$,$,$,.floor.);"),
            0);
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_2X3);
  EXPECT_EQ(server.GetFileSchema(), "Ifc2x3");
  EXPECT_THAT(NumbersOf(server), ElementsAre(7, 8, 9));
  EXPECT_EQ(RecordOf(server, 7), "IFCCARTESIANPOINT((1.,2.)");
  EXPECT_EQ(RecordOf(server, 9), "IFCSLAB('2O2Fr$t4X7Zf8NOew3FLOH',$,$,$,$,$,$,$,.FLOOR.");
}

TEST(IsoLoad, ReadsAnEmptyListWithBlanks) {
  IfcServer server;
  LoadData(server, "#1=IFCPOLYLINE( ( ) );#2=IFCPOLYLINE((#3 ,\n#4 ));");
  EXPECT_EQ(RecordOf(server, 1), "IFCPOLYLINE(()");
  EXPECT_EQ(RecordOf(server, 2), "IFCPOLYLINE((#3, #4)");
}

TEST(IsoLoad, ReadsBinaryValues) {
  IfcServer server;
  LoadIso(server, HeadOf("IFC20_LONGFORM") + "#1=IFCOWNERHISTORY(#2,#3,\"22\",'a','b',$);");
  EXPECT_NE(RecordOf(server, 1).find("\"10\""), std::string::npos) << RecordOf(server, 1);
}

TEST(IsoLoad, ReadsSeveralSectionsAndNeedsNoClosingLine) {
  IfcServer server;
  LoadIso(server,
          "ISO-10303-21;HEADER;FILE_SCHEMA(('IFC2X3'));ENDSEC;"
          "DATA('a',('IFC2X3'));#1=IFCDIRECTION((3.));ENDSEC;"
          "DATA;#2=IFCDIRECTION((4.));ENDSEC;");
  EXPECT_THAT(NumbersOf(server), ElementsAre(1, 2));
  EXPECT_EQ(CountOf(server, LoadFinding::kStatementWithoutEnd), 0U);
}

TEST(IsoLoad, KeepsAnUnknownEntityAsTextInAllReleases) {
  for (const char* schema :
       {"IFC151", "IFC20_LONGFORM", "IFC2X_FINAL", "IFC2X2_FINAL", "IFC2X3_FINAL"}) {
    IfcServer server;
    EXPECT_EQ(LoadIso(server, HeadOf(schema) + "#1=IfcFoo( 1,'it''s' );#2=!MINE(#1);"), 0);
    const auto* foo = dynamic_cast<const IfcOther*>(server.GetItem(std::size_t{1}));
    ASSERT_NE(foo, nullptr) << schema;
    EXPECT_EQ(foo->GetStepEntityName(), "IfcFoo");
    EXPECT_EQ(RecordOf(server, 1), "IFCFOO(1,'it\\'s'");
    EXPECT_EQ(RecordOf(server, 2), "!MINE(#1");
  }
}

TEST(IsoLoad, KeepsAnInstanceOfSeveralTypesAsText) {
  for (const char* schema : {"IFC20_LONGFORM", "IFC2X3"}) {
    IfcServer server;
    EXPECT_EQ(LoadIso(server, HeadOf(schema) + "#5= ( IFCA(1) ifcB('x''y')\n);"), 0);
    const auto* complex = dynamic_cast<const IfcOther*>(server.GetItem(std::size_t{5}));
    ASSERT_NE(complex, nullptr) << schema;
    EXPECT_EQ(complex->GetStepEntityName(), "");
    EXPECT_EQ(RecordOf(server, 5), "(IFCA(1)IFCB('x\\'y')");
  }
}

TEST(IsoLoad, DropsWhatIsUnknownIfTheHostSaysSo) {
  const std::string text = HeadOf("IFC2X_FINAL") + "#1=IFCFOO(1);#2=(IFCA(1)IFCB(2));";
  LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
  options.keepUnknown = false;
  IfcServer server;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_THAT(NumbersOf(server), IsEmpty());
  options = OptionsFor(STEP_DIALECT_CLASSIC);
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_THAT(NumbersOf(server), IsEmpty());
  options.keepUnknown = true;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(1, 2));
}

TEST(IsoLoad, DoesNotMakeUnknownEntitiesByName) {
  IfcServer server;
  LoadIso(server, HeadOf("IFC2X_FINAL") + "#1=IFCFOO(1);");
  EXPECT_EQ(server.InstantiateClass2x("IFCFOO"), nullptr);
  EXPECT_EQ(server.CreateItem("IFCFOO"), nullptr);
}

TEST(IsoLoad, ReadsOnlyTheLastStatementOfANumber) {
  IfcServer server;
  LoadData(server,
           "#1=IFCDIRECTION((1.));\n#2=IFCFOO(1);\n #1=IFCFOO(2);\n#1=IFCFOO(3);\n#2=IFCFOO(4);");
  EXPECT_EQ(RecordOf(server, 1), "IFCFOO(3");
  EXPECT_EQ(RecordOf(server, 2), "IFCFOO(4");
  EXPECT_EQ(server.GetItems().size(), 5U);
  EXPECT_THAT(server.GetLoadFindings().GetPlaces(LoadFinding::kRepeatedNumber),
              ElementsAre(SourcePlace{4, 2}, SourcePlace{5, 1}, SourcePlace{6, 1}));
}

TEST(IsoLoad, ReadsNoStatementThatItDropsIntoAnotherInstance) {
  IfcServer server;
  LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
  options.keepUnknown = false;
  const std::string text = HeadOf("IFC20_LONGFORM") +
                           "#1=IFCFOO('a');\n#1=IFCMATERIAL('b');\n#1=IFCMATERIAL('c');\n"
                           "#2=IFCMATERIAL('d');\n#2=IFCFOO('e');\n";
  ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_EQ(RecordOf(server, 1), "IFCMATERIAL('c',$,(),()");
  EXPECT_EQ(RecordOf(server, 2), "IFCMATERIAL('d',$,(),()");
}

TEST(IsoLoad, ReadsNoStatementBeforeTheSchema) {
  IfcServer server;
  ASSERT_EQ(LoadIso(server, "ISO-10303-21;#1=IFCFOO(1);FILE_SCHEMA(('IFC2X3'));#1=IFCFOO(2);"), 0);
  EXPECT_EQ(RecordOf(server, 1), "IFCFOO(2");
}

TEST(IsoLoad, LosesOnlyTheStatementWhoseStringDoesNotEnd) {
  IfcServer server;
  EXPECT_EQ(LoadData(server,
                     "#1=IFCWALL('g',$,'it's',$,$,$,$,$);\n"
                     "#2=IFCWALL('g',$,'b',$,$,$,$,$);\n"),
            0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(2));
  EXPECT_EQ(NameOf(server, 2), "b");
  EXPECT_THAT(server.GetLoadFindings().GetPlaces(LoadFinding::kStatementWithoutEnd),
              ElementsAre(SourcePlace{2, 1}));
}

TEST(IsoLoad, ForgetsWhatTheLoadBeforeItFound) {
  IfcServer server;
  LoadData(server, "#1=IFCFOO('\\a');#1=IFCFOO(1);\n#3");
  EXPECT_EQ(CountOf(server, LoadFinding::kBadEscape), 0U) << "of a statement that is not read";
  EXPECT_EQ(CountOf(server, LoadFinding::kRepeatedNumber), 1U);
  EXPECT_EQ(CountOf(server, LoadFinding::kStatementWithoutEnd), 1U);
  LoadData(server, "#1=IFCFOO(1);");
  EXPECT_EQ(CountOf(server, LoadFinding::kRepeatedNumber), 0U);
  EXPECT_EQ(CountOf(server, LoadFinding::kStatementWithoutEnd), 0U);
}

TEST(IsoLoad, LeavesTheClassicDialectAsItIs) {
  const std::string text =
      HeadOf("IFC2X3") +
      "#1=IFCWALL('g',$,'it\\'s \\X2\\00E4\\X0\\ x',$,$,$,$,$);#2=(IFCA(1)IFCB(2));"
      "#3=IFCFOO(1);#3=IFCFOO(2);";
  IfcServer server;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), OptionsFor(STEP_DIALECT_CLASSIC)), 0);
  EXPECT_EQ(NameOf(server, 1), "it's 2\\00E40\\ x");
  EXPECT_EQ(RecordOf(server, 2), "(IFCA(1)IFCB(2))(IFCA(1)IFCB(2)");
  EXPECT_EQ(RecordOf(server, 3), "IFCFOO(12");
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
  EXPECT_EQ(CountOf(server, LoadFinding::kRepeatedNumber), 1U);
}

TEST(IsoLoad, EndsWithTheDialectAtAResetAndAtAFailure) {
  IfcServer server;
  LoadData(server, "");
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_ISO);
  server.Reset();
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
  LoadData(server, "");
  EXPECT_EQ(LoadIso(server, "no model;"), 2);
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
  LoadData(server, "");
  EXPECT_EQ(server.LoadIfcFile("/no/such/file.ifc"), 1);
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
}

}  // namespace
}  // namespace KelIFC
