#include "tools/schemac/emit_common.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(TextWriter, WrapsCommentsAtTheLineLength) {
  TextWriter out;
  out.Doc("  ", std::string(60, 'a') + " " + std::string(60, 'b'));
  EXPECT_EQ(out.Text(), "  /// " + std::string(60, 'a') + "\n  /// " + std::string(60, 'b') + "\n");
}

TEST(TextWriter, WrapsLongCalls) {
  TextWriter out;
  out.Call("  f", {std::string(50, 'a'), std::string(50, 'b')}, ";");
  EXPECT_EQ(out.Text(),
            "  f(" + std::string(50, 'a') + ",\n      " + std::string(50, 'b') + ");\n");
}

TEST(TextWriter, ClosesACallWithoutArguments) {
  TextWriter out;
  out.Call("f", {}, ";");
  EXPECT_EQ(out.Text(), "f();\n");
}

TEST(Guard, IsThePathInUpperCase) {
  EXPECT_EQ(Guard("kelifc/schema/ifc2x3/fwd.h"), "KELIFC_SCHEMA_IFC2X3_FWD_H_");
}

TEST(EmitEnumeration, AddsTheValueForATextWithoutARow) {
  Enumeration kind;
  kind.name = "IfcKind";
  kind.doc = "Kinds.";
  TextWriter out;
  EmitEnumeration(out, kind, EnumTable{{{"A", 1}}, ReleaseSet::All()});
  EXPECT_TRUE(Holds(out.Text(), "IfcKind_NONE = 0,"));
  EXPECT_TRUE(Holds(out.Text(), "{\"A\", IfcKind_A},"));
}

TEST(EmitEnumeration, KeepsTheOrderOfTheRowsAndTheirValues) {
  Enumeration kind;
  kind.name = "IfcKind";
  TextWriter out;
  EmitEnumeration(out, kind, EnumTable{{{"Z", 0}, {"LATE", 4}, {"EARLY", 3}}, ReleaseSet::All()});
  EXPECT_FALSE(Holds(out.Text(), "NONE"));
  EXPECT_LT(out.Text().find("\"LATE\""), out.Text().find("\"EARLY\""));
}

}  // namespace
}  // namespace schemac
