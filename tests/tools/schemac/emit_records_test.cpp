#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

std::string RecordsOf(const std::string& body) {
  const Resolved resolved(body);
  Files files;
  EmitRecords(resolved.model, files);
  return files.at("tests/schema/records_ifc2x3.cpp");
}

TEST(EmitRecords, SetsEveryPositionOfTheChain) {
  const std::string records = RecordsOf(
      "entity IfcA : IfcUnknown all\n  doc A.\n  Name string\n"
      "entity IfcB : IfcA all file\n  doc B.\n  drop enum .X.\n  Links set IfcA\n");
  EXPECT_TRUE(Holds(records, "{\"IfcB\","));
  EXPECT_TRUE(Holds(records, "\"'text 1',.SAMPLE.,(#903,#913)\", \"'text 1',.X.,(#903, #913)\","));
  EXPECT_TRUE(Holds(records, "\"$,$,$\", \"$,.X.,()\""));
}

TEST(EmitRecords, LeavesOutClassesThatAreReadByHand) {
  EXPECT_FALSE(
      Holds(RecordsOf("entity IfcA : IfcUnknown all file\n  doc A.\n  custom Parse\n"), "IfcA"));
}

TEST(EmitRecords, WritesTheRowThatAnUnsetEnumerationStartsWith) {
  EXPECT_TRUE(Holds(RecordsOf("enum IfcKind\n  doc K.\n  all A 0 B 1\n"
                              "entity IfcA : IfcUnknown all file\n  doc A.\n  X enum IfcKind\n"),
                    "\".B.\", \".B.\",\n       \"$\", \".A.\""));
}

}  // namespace
}  // namespace schemac
