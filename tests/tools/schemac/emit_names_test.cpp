#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitNames, ListsTheEntitiesThatAFileCanContain) {
  const Resolved resolved(
      "entity IfcB : IfcUnknown all file\n  doc B.\nentity IfcA : IfcUnknown all file 2x\n  doc "
      "A.\n");
  Files files;
  EmitNames(resolved.model, files);
  const std::string& names = files.at("kelifc/schema/ifc2x3/names.cpp");
  EXPECT_TRUE(Holds(names, "{\"IFCB\", MakeNew<KelIFC2x3::IfcB>},"));
  EXPECT_FALSE(Holds(names, "IFCA"));
}

TEST(EmitNames, WritesNullForAReleaseWithoutNames) {
  const Resolved resolved("entity IfcB : IfcUnknown 2x file\n  doc B.\n", k151);
  Files files;
  EmitNames(resolved.model, files);
  EXPECT_TRUE(Holds(files.at("kelifc/schema/ifc151/names.cpp"), "return nullptr;"));
}

}  // namespace
}  // namespace schemac
