#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

std::string PageOf(const std::string& body) {
  const Description description = Describe(body);
  std::vector<ReleaseModel> models;
  for (std::size_t release = 0; release < kReleaseCount; ++release) {
    models.push_back(Resolve(description, release));
  }
  Files files;
  EmitReference(description, models, files);
  return files.at("docs/reference/f.md");
}

TEST(EmitReference, DescribesTheReleasesAndTheAttributesOfAClass) {
  const std::string page = PageOf(
      "entity IfcA : IfcUnknown 2x.. file new 2x3\n  doc What it is.\n"
      "  [2x2..] Size measure absent 0.1   -- why\n  drop enum .X.   -- never kept\n"
      "  ops GetSize\n");
  EXPECT_TRUE(Holds(page, "## IfcA\n\nWhat it is.\n"));
  EXPECT_TRUE(Holds(page,
                    "- Releases: 2x, 2x2, 2x3; a file can contain it in: 2x, 2x2, 2x3; "
                    "a host can create it in: 2x3."));
  EXPECT_TRUE(Holds(page, "- Writes (2x): `IfcA(.X.)`."));
  EXPECT_TRUE(Holds(page, "- Writes (2x2, 2x3): `IfcA(Size, .X.)`."));
  EXPECT_TRUE(
      Holds(page, "| Size | `IfcLengthMeasure` | 2x2, 2x3 | reads as 0.1 while unset, why |"));
  EXPECT_TRUE(Holds(page, "- `IfcLengthMeasure GetSize() const` (2x2, 2x3) -- "));
  EXPECT_TRUE(Holds(page, "Departure from the regular form: never kept."));
}

TEST(EmitReference, ListsEnumerationsAndDefinedTypes) {
  const std::string page = PageOf(
      "enum IfcKind\n  doc Kinds.\n  ..20 A 1\n  2x.. A 2 B 3\n"
      "type IfcText : IfcValue string 2x2.. file\n  doc A text.\n");
  EXPECT_TRUE(Holds(page, "Release 1.5.1, 2.0: `A` 1."));
  EXPECT_TRUE(Holds(page, "Release 2x, 2x2, 2x3: `A` 2, `B` 3."));
  EXPECT_TRUE(Holds(page, "A text. A `IfcValue` and a `STRING`."));
}

}  // namespace
}  // namespace schemac
