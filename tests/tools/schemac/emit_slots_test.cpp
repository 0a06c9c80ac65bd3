#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

TEST(EmitSlots, TakesAPointerToEveryVirtualOperationInOrder) {
  const Resolved resolved(
      "entity IfcA : IfcUnknown all abstract\n  doc A.\n  X ref IfcA\n  Y real\n"
      "  plain GetY\n  ops _GetX, GetX\n");
  Files files;
  EmitSlots({resolved.model}, files);
  const std::string& text = files.at("tests/schema/slots_ifc2x3_test.cpp");
  EXPECT_TRUE(Holds(text, "using IfcA::_GetX;"));
  EXPECT_TRUE(Holds(text, "static_cast<const IfcA* (IfcA::*)() const>(&IfcASlots::GetX)"));
  EXPECT_FALSE(Holds(text, "GetY"));
}

}  // namespace
}  // namespace schemac
