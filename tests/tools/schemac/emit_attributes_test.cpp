#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

std::string TablesOf(const std::string& body) {
  const Resolved resolved(body);
  Files files;
  EmitAttributes(resolved.model, files);
  return files.at("kelifc/schema/ifc2x3/attributes.cpp");
}

TEST(EmitAttributes, WritesTheAttributesOfAClass) {
  const std::string tables = TablesOf(
      "entity IfcA : IfcUnknown all\n  doc A.\n  Name label required\n  ops GetName\n"
      "entity IfcB : IfcA all file\n  doc B.\n  Next ref IfcA as $\n");
  EXPECT_TRUE(Holds(tables,
                    "constexpr AttributeDescription kIfcAAttributes[] = {\n"
                    "    {.name = \"Name\",\n     .getter = \"GetName\",\n     .position = 0,\n"
                    "     .kind = AttributeKind::kText,\n     .use = AttributeUse::kKept,\n"
                    "     .isRequired = true,\n     .isWritten = true,\n"
                    "     .read = ReadMember<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kName>,\n"
                    "     .write = WriteMember<KelIFC2x3::IfcA, Kept<KelIFC2x3::IfcA>::kName>},"
                    "\n};\n"));
  EXPECT_TRUE(Holds(tables,
                    "constexpr EntityDescription kIfcB = {\n    .name = \"IfcB\",\n"
                    "    .form = EntityForm::kEntity,\n    .isInFile = true,\n"
                    "    .bases = {&kIfcA},\n    .record = &kIfcA,\n"
                    "    .attributes = kIfcBAttributes,\n    .attributeCount = 1,\n"
                    "    .positionCount = 2};\n"));
}

TEST(EmitAttributes, ListsAllClassesInAlphabeticalOrder) {
  const std::string tables = TablesOf(
      "entity IfcZ : IfcUnknown all\n  doc Z.\nentity IfcB : IfcUnknown all\n  doc B.\n"
      "type IfcText : IfcValue string all file\n  doc T.\n");
  const auto list = tables.find("kEntities[]");
  EXPECT_LT(tables.find("&kIfcB,", list), tables.find("&kIfcBooleanOperand,", list));
  EXPECT_LT(tables.find("&kIfcText,", list), tables.find("&kIfcZ,", list));
  EXPECT_FALSE(Holds(tables, "kIfcUnknown"));
  EXPECT_TRUE(Holds(tables, ".valueKind = AttributeKind::kText"));
}

TEST(EmitAttributes, NamesTheMembersThatAreKept) {
  const std::string tables = TablesOf(
      "entity IfcA : IfcUnknown all\n  doc A.\n  Name label\n  drop Kind enum $\n"
      "  Private string\n  Other ref IfcA memory\n"
      "entity IfcB : IfcA all\n  doc B.\n");
  EXPECT_TRUE(Holds(tables,
                    "template <>\nstruct Kept<KelIFC2x3::IfcA> : KelIFC2x3::IfcA {\n"
                    "  static constexpr auto kName = &Kept::name;\n"
                    "  static constexpr auto kPrivate = &Kept::privateValue;\n};\n"));
  EXPECT_FALSE(Holds(tables, "Kept<KelIFC2x3::IfcB>"));
}

TEST(EmitAttributes, ListsTheClassesThatCanHaveInstances) {
  const std::string tables = TablesOf(
      "entity IfcS all abstract\n  doc S.\nentity IfcA : IfcUnknown all abstract\n  doc A.\n"
      "entity IfcB : IfcA all\n  doc B.\ntype IfcText : IfcValue string all file\n  doc T.\n"
      "type IfcAngles integers all\n  doc N.\n");
  EXPECT_TRUE(Holds(tables,
                    "kTypes[] = {\n    {&typeid(KelIFC2x3::IfcB), &kIfcB},\n"
                    "    {&typeid(KelIFC2x3::IfcText), &kIfcText},\n};\n"));
  EXPECT_TRUE(Holds(tables, ".readValue = ReadValueType<KelIFC2x3::IfcText, STRING>"));
  EXPECT_FALSE(Holds(tables, "KelIFC2x3::IfcAngles"));
}

TEST(EmitAttributes, WritesTheInverseAttributesOfAClass) {
  const std::string tables = TablesOf(
      "entity IfcA : IfcUnknown all\n  doc A.\n  Whole ref IfcA\n  inverse Parts of IfcA Whole\n");
  EXPECT_TRUE(Holds(tables,
                    "constexpr InverseAttribute kIfcAInverses[] = {\n"
                    "    {.name = \"Parts\", .entity = \"IfcA\", .attribute = \"Whole\"},\n};\n"));
  EXPECT_TRUE(Holds(tables, "    .inverses = kIfcAInverses,\n    .inverseCount = 1};\n"));
}

TEST(EmitAttributes, RefusesMoreThanTwoBases) {
  EXPECT_THROW(TablesOf("entity IfcA : IfcUnit, IfcValue, IfcTrimmingSelect all\n  doc A.\n"),
               DescriptionError);
}

}  // namespace
}  // namespace schemac
