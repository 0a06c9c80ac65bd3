#include "tools/schemac/attribute_text.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

/// Returns the text that `print` makes from the first attribute of IfcA with these lines.
std::string Shown(const std::string& lines,
                  std::string (*print)(const ReleaseModel&, const Attribute&),
                  std::size_t release = k2x3) {
  const Resolved resolved(
      "enum IfcKind\n  doc K.\n  all A 1 B 2\n"
      "enum IfcZero\n  doc Z.\n  all A 1 B 0\n"
      "entity IfcA : IfcUnknown all\n  doc A.\n" +
          lines,
      release);
  return print(resolved.model, *resolved.model.Find("IfcA")->attributes.front());
}

TEST(MemberName, StartsInLowerCaseAndIsNotAReservedWord) {
  EXPECT_EQ(MemberName("XDim"), "xDim");
  EXPECT_EQ(MemberName("Operator"), "operatorValue");
}

TEST(StoredType, IsALabelIfTheReleaseHasLabels) {
  Attribute attribute;
  attribute.kind = Kind::kLabels;
  EXPECT_EQ(StoredType(attribute, k2x), "LIST<STRING>");
  EXPECT_EQ(StoredType(attribute, k2x2), "LIST<IfcLabel>");
}

TEST(StoredType, IsTheNamedTypeForEnumerationsAndCaches) {
  Attribute attribute;
  attribute.type = "IfcKind";
  for (const Kind kind : {Kind::kEnum, Kind::kOpenEnum, Kind::kInstance}) {
    attribute.kind = kind;
    EXPECT_EQ(StoredType(attribute, k2x3), "IfcKind");
  }
}

TEST(FieldInitializer, GivesReferencesTheirOwner) {
  EXPECT_EQ(Shown("  X ref IfcA\n", FieldInitializer), "{this}");
  EXPECT_EQ(Shown("  X list IfcA\n", FieldInitializer), "{this}");
  EXPECT_EQ(Shown("  X ref IfcA ownerless\n", FieldInitializer), "");
}

TEST(FieldInitializer, StartsAnEnumerationWithTheRowOfZero) {
  EXPECT_EQ(Shown("  X enum IfcZero\n", FieldInitializer), " = IfcZero_B");
  EXPECT_EQ(Shown("  X enum IfcKind\n", FieldInitializer), " = IfcKind_NONE");
  EXPECT_EQ(Shown("  X enum IfcKind = B\n", FieldInitializer), " = IfcKind_B");
}

TEST(FieldInitializer, StartsATextWithTheDescribedValue) {
  EXPECT_EQ(Shown("  X string = Plan\n", FieldInitializer), "{\"Plan\"}");
  EXPECT_EQ(Shown("  X string\n", FieldInitializer), "");
}

TEST(ReadPart, PassesTheRowForAnUnknownText) {
  EXPECT_EQ(Shown("  X enum IfcKind = B\n", ReadPart), "Enumerated(x, kIfcKindTable, IfcKind_B)");
  EXPECT_EQ(Shown("  X enum IfcKind\n", ReadPart), "Enumerated(x, kIfcKindTable)");
}

TEST(WritePart, IsALiteralIfTheDescriptionNamesOne) {
  EXPECT_EQ(Shown("  X real as $\n", WritePart), "Literal(\"$\")");
  EXPECT_EQ(Shown("  X real\n", WritePart), "x");
}

}  // namespace
}  // namespace schemac
