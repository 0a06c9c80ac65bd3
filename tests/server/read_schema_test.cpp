#include <gtest/gtest.h>

#include <string>

#include "kelifc/server/ifc_server.h"

#include "tests/server/load_text.h"

namespace KelIFC {
namespace {

struct Result {
  int code = 0;
  IFC_RELEASE release = IFC_RELEASE_NONE;
  std::string schema;

  bool operator==(const Result&) const = default;
};

void PrintTo(const Result& result, std::ostream* out) {
  *out << result.code << ", " << result.release << ", " << result.schema;
}

/// What comes of a file with this schema record.
Result Load(STEP_DIALECT dialect, const std::string& record) {
  const std::string text = "ISO-10303-21;" + record + ";#1=IFCDIRECTION((1.));";
  IfcServer server;
  const int code = server.LoadIfcMemory(text.data(), text.size(), OptionsFor(dialect));
  EXPECT_EQ(server.GetNumberCount(), code == 0 ? 1U : 0U);
  return {code, server.GetRelease(), server.GetFileSchema()};
}

Result LoadIsoSchema(const std::string& record) { return Load(STEP_DIALECT_ISO, record); }

TEST(ReadSchema, IgnoresCaseAndBlanksInIso) {
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA(('ifc2x3'))"), (Result{0, IFC_RELEASE_2X3, "ifc2x3"}));
  EXPECT_EQ(LoadIsoSchema("File_Schema\n( ( 'IFC2x2_Final' ) )"),
            (Result{0, IFC_RELEASE_2X2, "IFC2x2_Final"}));
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA((' IFC2X3 {1 0 10303}'))").release, IFC_RELEASE_2X3);
  EXPECT_EQ(Load(STEP_DIALECT_CLASSIC, "FILE_SCHEMA(('ifc2x3'))"),
            (Result{3, IFC_RELEASE_NONE, "ifc2x3"}));
}

TEST(ReadSchema, TakesTheFirstNameThatIsKnownInIso) {
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA(('MINE','IFC4','ifc20_longform','IFC2X3'))"),
            (Result{0, IFC_RELEASE_20, "ifc20_longform"}));
  EXPECT_EQ(Load(STEP_DIALECT_CLASSIC, "FILE_SCHEMA(('MINE','IFC2X3'))"),
            (Result{3, IFC_RELEASE_NONE, "MINE"}));
}

TEST(ReadSchema, TakesANameWithoutAList) {
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA('IFC2X3')").release, IFC_RELEASE_2X3);
}

TEST(ReadSchema, NamesALaterRelease) {
  for (const char* schema : {"IFC4", "IFC4X1", "IFC4X2", "IFC4X3", "IFC4X3_ADD2", "IFC2X4_RC2"}) {
    const std::string record = std::string("FILE_SCHEMA(('") + schema + "'))";
    EXPECT_EQ(LoadIsoSchema(record), (Result{6, IFC_RELEASE_NONE, schema}));
    EXPECT_EQ(Load(STEP_DIALECT_CLASSIC, record), (Result{6, IFC_RELEASE_NONE, schema}));
  }
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA(('MINE','ifc4x3','IFC4'))"),
            (Result{6, IFC_RELEASE_NONE, "ifc4x3"}));
}

TEST(ReadSchema, ReportsAnUnknownSchema) {
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA(('AP203','AP214'))"),
            (Result{3, IFC_RELEASE_NONE, "AP203"}));
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA(())"), (Result{3, IFC_RELEASE_NONE, ""}));
  EXPECT_EQ(LoadIsoSchema("FILE_SCHEMA"), (Result{3, IFC_RELEASE_NONE, ""}));
}

TEST(ReadSchema, DoesNotTakeTheReleaseOfTheHost) {
  const std::string text = "ISO-10303-21;FILE_SCHEMA(('AP203'));#1=IFCDIRECTION((1.));";
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_EQ(LoadIso(server, text), 3);
  EXPECT_EQ(server.GetRelease(), IFC_RELEASE_NONE);
}

}  // namespace
}  // namespace KelIFC
