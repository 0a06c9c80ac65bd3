#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitHeader, WritesAConcreteClassWithItsMembers) {
  const std::string header = Resolved(
                                 "entity IfcA : IfcUnknown all file new\n  doc What it is.\n"
                                 "  Name string\n  Next ref IfcA\n  ops GetName, SetNext\n")
                                 .Header();
  EXPECT_TRUE(Holds(header, "/// What it is.\nclass KELIFC_API IfcA : public IfcUnknown {\n"));
  EXPECT_TRUE(Holds(header, "static IfcA* NewItem(IfcServer* server);"));
  EXPECT_TRUE(Holds(header, "  virtual STRING GetName() const;"));
  EXPECT_TRUE(Holds(header, "  MEMBER next{this};"));
  EXPECT_TRUE(Holds(header, "namespace KelIFC2x3 {"));
}

TEST(EmitHeader, MakesTheConstructorsOfAbstractClassesProtected) {
  const std::string header = Resolved("entity IfcA : IfcUnknown all abstract\n  doc A.\n").Header();
  EXPECT_TRUE(Holds(header, " protected:\n  IfcA();\n  ~IfcA() override;\n"));
}

TEST(EmitHeader, MakesAnEntityWithoutBasesAMarker) {
  const std::string header = Resolved("entity IfcShell all abstract\n  doc A.\n").Header();
  EXPECT_TRUE(Holds(header, "class KELIFC_API IfcShell {"));
  EXPECT_FALSE(Holds(header, "GetItemName"));
}

TEST(EmitHeader, WritesDeparturesAsComments) {
  const std::string header =
      Resolved(
          "entity IfcA : IfcUnknown all file\n  doc A.\n  drop enum .X.   -- never kept\n"
          "  Name string   -- cut short\n  without Write   -- not written\n")
          .Header();
  EXPECT_TRUE(Holds(header, "/// Departure: never kept."));
  EXPECT_TRUE(Holds(header, "/// cut short"));
  EXPECT_TRUE(Holds(header, "/// Departure: not written."));
}

TEST(EmitHeader, WritesDefinedTypesAfterTheirBase) {
  const std::string header = Resolved(
                                 "entity IfcSimpleValue : IfcValue 2x2.. abstract\n  doc V.\n"
                                 "type IfcReal : IfcSimpleValue real 2x3 file\n  doc R.\n")
                                 .Header();
  EXPECT_LT(header.find("class KELIFC_API IfcSimpleValue"),
            header.find("class KELIFC_API IfcReal"));
  EXPECT_TRUE(Holds(header, "  IfcReal(double value);"));
}

TEST(EmitHeader, WritesAListOfIntegersAsAClass) {
  const std::string header = Resolved("type IfcAngle integers all\n  doc An angle.\n").Header();
  EXPECT_TRUE(Holds(header, "/// An angle.\nclass KELIFC_API IfcAngle : public LIST<INTEGER> {"));
  EXPECT_EQ(Refusal("type IfcText string all\n  doc T.\n"),
            "f.schema:2:1: error: IfcText does not derive from a select");
}

TEST(EmitHeader, WritesOpenEnumerationsWithTheirName) {
  const std::string header = Resolved(
                                 "enum IfcKind\n  doc Kinds.\n  all\n"
                                 "entity IfcA : IfcUnknown all file\n  doc A.\n"
                                 "  Kind openenum IfcKind\n  ops GetKind\n")
                                 .Header();
  EXPECT_TRUE(Holds(header, "using IfcKind = ENUM;"));
  EXPECT_TRUE(Holds(header, "virtual IfcKind GetKind() const;"));
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all file\n  doc A.\n  Kind openenum IfcKind\n"),
            "f.schema:4:3: error: IfcKind is not described in release 2x3");
}

TEST(EmitHeader, NamesThePlacesOfWhatIsWrittenByHand) {
  const std::string header =
      Resolved(
          "entity IfcA : IfcUnknown all file\n  doc A.\n  make (REAL x, REAL y)\n  custom Parse\n"
          "  ops GetN: integer,\n      GetM: integer\n  tell GetN N.\n  tell GetM M.\n"
          "  tell IfcA(REAL x, REAL y) Two numbers.\n"
          "function IfcTurn(const IfcA& a): REAL\n  doc Turns.\n",
          "// entity IfcA\n\nIfcA::IfcA(REAL x, REAL y) {}\nINTEGER IfcA::GetN() const {}\n"
          "INTEGER IfcA::GetM() const {}\nconst char* IfcA::Parse(const char* cursor) {}\n"
          "// function IfcTurn\nREAL IfcTurn(const IfcA& a) {}\n")
          .Header();
  EXPECT_TRUE(Holds(header,
                    "  /// Two numbers.\n  // Description: f.schema:4. Body: f.inl:3.\n  IfcA(REAL "
                    "x, REAL y);\n"));
  EXPECT_TRUE(Holds(header,
                    "  // Description: f.schema:5. Body: f.inl:6.\n"
                    "  const char* Parse(const char* cursor) override;\n"));
  EXPECT_TRUE(Holds(header,
                    "  /// N.\n  // Description: f.schema:6. Body: f.inl:4.\n"
                    "  virtual INTEGER GetN() const;\n"));
  EXPECT_TRUE(Holds(header, "  // Description: f.schema:7. Body: f.inl:5.\n"));
  EXPECT_TRUE(Holds(header,
                    "// Description: f.schema:11. Body: f.inl:8.\n"
                    "KELIFC_API REAL IfcTurn(const IfcA& a);\n"));
}

TEST(EmitHeader, RequiresACommentForEachConstructor) {
  EXPECT_EQ(
      Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  make (REAL x)\n  make (REAL x, REAL y)\n"
              "  tell IfcA(REAL x) One number.\n"),
      "f.schema:5:3: error: no 'tell' line describes IfcA(REAL x, REAL y)");
}

TEST(EmitHeader, WritesTheReleaseInItsUsualForm) {
  const std::string body = "entity IfcA : IfcUnknown all\n  doc A.\n";
  EXPECT_TRUE(Holds(Resolved(body, k151).Header(), "/// A family, release 1.5.1.\n"));
  EXPECT_TRUE(Holds(Resolved(body, k20).Header(), "/// A family, release 2.0.\n"));
  EXPECT_TRUE(Holds(Resolved(body, k2x3).Header(), "/// A family, release 2x3.\n"));
}

}  // namespace
}  // namespace schemac
