#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitRelease, ListsTheClassesForTemplates) {
  const Resolved resolved("entity IfcA : IfcUnknown all\n  doc A.\n", k2x2);
  Files files;
  EmitRelease(resolved.description, resolved.model, files);
  EXPECT_TRUE(Holds(files.at("kelifc/schema/ifc2x2/release.h"), "using IfcA = KelIFC2x2::IfcA;"));
  EXPECT_TRUE(Holds(files.at("kelifc/schema/ifc2x2/release.h"), "kRelease = IFC_RELEASE_2X2;"));
  EXPECT_TRUE(Holds(files.at("kelifc/schema/ifc2x2/fwd.h"), "class IfcA;"));
  EXPECT_TRUE(Holds(files.at("kelifc/schema/ifc2x2.h"), "#include \"kelifc/schema/ifc2x2/f.h\""));
}

TEST(EmitCoreEnumerations, WritesThemOnceForAllReleases) {
  Files files;
  EmitCoreEnumerations(Describe("enum IfcKind core\n  doc Kinds.\n  all A 1\n"), files);
  EXPECT_TRUE(Holds(files.at("kelifc/schema/core/f.h"), "namespace KelIFC {"));
}

}  // namespace
}  // namespace schemac
