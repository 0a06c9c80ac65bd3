#include "tools/schemac/operations.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

/// Returns the operations of IfcA with these lines, as "result name(parameters) const".
std::vector<std::string> OperationsOf(const std::string& lines, std::size_t release = k2x3) {
  const Resolved resolved(
      "entity IfcT : IfcUnknown all abstract\n  doc T.\n"
      "entity IfcSimpleValue : IfcValue 2x2.. abstract\n  doc V.\n"
      "type IfcLabel : IfcSimpleValue string 2x2..\n  doc L.\n"
      "entity IfcA : IfcUnknown all\n  doc A.\n" +
          lines,
      release);
  std::vector<std::string> operations;
  for (const auto& operation : resolved.model.Find("IfcA")->operations) {
    operations.push_back(operation.result + " " + operation.name + "(" + operation.parameters +
                         ")" + (operation.isConst ? " const" : ""));
  }
  return operations;
}

using Texts = std::vector<std::string>;

TEST(ResolveOperations, ReturnsReferencesAsPointersOfTheirClass) {
  EXPECT_EQ(OperationsOf("  X ref IfcT\n  ops _GetX, GetX, SetX\n"),
            (Texts{"IfcT* _GetX()", "const IfcT* GetX() const", "void SetX(IfcT* item)"}));
}

TEST(ResolveOperations, AddsBothFormsOnlyInTheTwoNewestReleases) {
  EXPECT_EQ(OperationsOf("  X ref IfcT\n  ops GetX~\n", k2x2),
            (Texts{"IfcT* GetX()", "const IfcT* GetX() const"}));
  EXPECT_EQ(OperationsOf("  X ref IfcT\n  ops GetX~\n", k2x), (Texts{"const IfcT* GetX() const"}));
}

TEST(ResolveOperations, ReturnsAggregatesAsTypedViews) {
  EXPECT_EQ(OperationsOf("  HasXs set IfcT\n  ops GetHasXs, AddX, SetHasXs\n"),
            (Texts{"SET<const IfcT*> GetHasXs() const", "void AddX(IfcT* item)",
                   "void SetHasXs(const SET<IfcT*>& items)"}));
}

TEST(ResolveOperations, SaysThatOtherSettersDoNotFillAnInverseAttribute) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all\n  doc A.\n"
      "  X set IfcA\n  Y set IfcA inverse\n  ops GetX, GetY\n",
      k2x3);
  const auto& operations = resolved.model.Find("IfcA")->operations;
  ASSERT_EQ(operations.size(), 2U);
  EXPECT_EQ(operations[0].doc.find("Inverse"), std::string::npos);
  EXPECT_NE(operations[1].doc.find("Inverse: setters of other instances never fill it."),
            std::string::npos);
}

TEST(ResolveOperations, ReturnsTextsAsLabelsIfTheReleaseHasLabels) {
  EXPECT_EQ(OperationsOf("  X label\n  ops GetX, SetX\n", k2x3),
            (Texts{"IfcLabel GetX() const", "void SetX(const char* text)"}));
  EXPECT_EQ(OperationsOf("  X label\n  ops GetX, SetX\n", k2x),
            (Texts{"STRING GetX() const", "void SetX(const char* text)"}));
}

TEST(ResolveOperations, PassesValuesThatOwnMemoryByReference) {
  EXPECT_EQ(OperationsOf("  Point coordinates\n  Size real\n  ops SetPoint, SetSize\n"),
            (Texts{"void SetPoint(const COORDINATES& value)", "void SetSize(REAL value)"}));
}

TEST(ResolveOperations, ReturnsStoredMeasuresForOperationsWithCalcInTheirName) {
  EXPECT_EQ(OperationsOf("  Area real\n  Volume real\n  ops calcArea, CalcVolume\n"),
            (Texts{"REAL calcArea() const", "REAL CalcVolume() const"}));
}

TEST(ResolveOperations, LeavesOutOperationsOnAttributesOfOtherReleases) {
  EXPECT_EQ(OperationsOf("  [2x] X real\n  ops GetX, SetX\n", k2x3), Texts{});
}

TEST(ResolveOperations, TranslatesSignatures) {
  EXPECT_EQ(OperationsOf("  ops Turn(index, real), GetP: list IfcT, Find(const IfcT&): IfcT*\n"
                         "  tell Turn T.\n  tell GetP P.\n  tell Find F.\n"),
            (Texts{"void Turn(std::size_t index, REAL value)", "LIST<const IfcT*> GetP() const",
                   "IfcT* Find(const IfcT& item)"}));
}

TEST(ResolveOperations, ForwardsToTheOperationWithAnUnderscore) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all\n  doc A.\n"
      "  ops _GetN: integer, _GetP: IfcA*, GetN forward, GetP forward\n"
      "  tell _GetN N.\n  tell _GetP P.\n");
  const auto& operations = resolved.model.Find("IfcA")->operations;
  ASSERT_EQ(operations.size(), 4u);
  EXPECT_EQ(operations[2].result, "INTEGER");
  EXPECT_EQ(operations[2].doc, "N.");
  EXPECT_TRUE(operations[2].isConst);
  EXPECT_EQ(operations[2].body, Texts{"return _GetN();"});
  EXPECT_EQ(operations[3].result, "const IfcA*");
  EXPECT_EQ(operations[3].body, Texts{"return const_cast<IfcA*>(this)->_GetP();"});
}

TEST(ResolveOperations, ForwardsOnlyToAnOperationWithoutParametersAboveIt) {
  const std::string message =
      "f.schema:4:7: error: GetN forwards to _GetN, which is not declared above it";
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  ops GetN forward\n"), message);
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n"
                    "  ops GetN forward, _GetN: integer\n  tell _GetN N.\n"),
            message);
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n"
                    "  ops [2x] _GetN: integer, [2x3] GetN forward\n  tell _GetN N.\n"),
            "f.schema:4:34: error: GetN forwards to _GetN, which is not declared above it");
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n"
                    "  ops _GetN(index): integer, GetN forward\n  tell _GetN N.\n"),
            "f.schema:4:30: error: GetN forwards to _GetN, which is not declared above it");
}

TEST(ResolveOperations, RequiresASignatureOrAnAttribute) {
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  ops GetX\n"),
            "f.schema:4:7: error: GetX of IfcA names no attribute and has no signature");
}

TEST(ResolveOperations, RequiresATellLineForAnOperationThatIsWrittenByHand) {
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  ops GetX: real\n"),
            "f.schema:4:7: error: no 'tell' line describes GetX");
}

TEST(ResolveOperations, RequiresAClassForTheGetterOfAReference) {
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  X ref any\n  ops GetX\n"),
            "f.schema:5:7: error: X is not narrowed to a class");
}

TEST(ResolveOperations, AddsToAggregatesOnly) {
  EXPECT_EQ(Refusal("entity IfcA : IfcUnknown all\n  doc A.\n  X real\n  ops AddX\n"),
            "f.schema:5:7: error: X is not an aggregate");
}

}  // namespace
}  // namespace schemac
