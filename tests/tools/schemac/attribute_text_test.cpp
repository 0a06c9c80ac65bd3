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

/// Returns the type of the data member of the first attribute of IfcA with these lines.
std::string FieldShown(const std::string& lines) {
  const Resolved resolved("entity IfcA : IfcUnknown all\n  doc A.\n" + lines, k2x3);
  const ResolvedClass& type = *resolved.model.Find("IfcA");
  return FieldType(resolved.model, type, *type.attributes.front());
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

TEST(FieldType, IsSmallerThanTheValueForTexts) {
  EXPECT_EQ(FieldShown("  X string\n"), "TextAttribute");
  EXPECT_EQ(FieldShown("  X label\n  ops GetX\n"), "TextAttribute");
  EXPECT_EQ(FieldShown("  X real\n"), "REAL");
}

TEST(FieldType, IsTheTypeOfTheValueIfAGetterReturnsAReference) {
  EXPECT_EQ(FieldShown("  X label\n  ops GetX const\n"), "IfcLabel");
}

TEST(FieldType, HoldsOnlyNumbersForSetsThatNoStatementContains) {
  EXPECT_EQ(FieldShown("  X set IfcA inverse\n"), "InverseSet");
  EXPECT_EQ(FieldShown("  X set IfcA memory\n"), "InverseSet");
  EXPECT_EQ(FieldShown("  X set IfcA\n"), "SET_OF_MEMBERS");
}

TEST(FieldType, MakesAnInstanceOnlyWhenItIsUsed) {
  EXPECT_EQ(FieldShown("  X cache IfcA\n"), "CachedInstance<IfcA>");
}

TEST(FieldInitializer, GivesReferencesTheirOwner) {
  EXPECT_EQ(Shown("  X ref IfcA\n", FieldInitializer), "{this}");
  EXPECT_EQ(Shown("  X list IfcA\n", FieldInitializer), "{this}");
  EXPECT_EQ(Shown("  X ref IfcA ownerless\n", FieldInitializer), "");
  EXPECT_EQ(Shown("  X set IfcA inverse\n", FieldInitializer), "");
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
