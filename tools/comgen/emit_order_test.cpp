#include "tools/comgen/emit_text.h"

namespace comgen {

void EmitOrderTest(const Description& description, Files& files) {
  TextWriter out;
  out.Line(GeneratedBy(description));
  out.Line("#include \"tests/geo/operation_order.h\"");
  out.Line();
  out.Line("#include \"kelifc/geo/interfaces.h\"");
  out.Line();
  out.Line("namespace {");
  out.Line();
  for (const Interface& interface : description.interfaces) {
    const auto operations = description.AllOperations(interface);
    if (operations.empty()) continue;
    out.Line("TEST(OperationOrder, Of" + interface.name + "IsAsDescribed) {");
    out.Line("  ExpectOrder({");
    for (const Operation* operation : operations) {
      out.Line("      SlotOf(&" + interface.name + "::" + operation->name + "),");
    }
    out.Line("  });");
    out.Line("}");
    out.Line();
  }
  out.Line("}  // namespace");
  files["tests/geo/operation_order_test.cpp"] = out.Text();
}

}  // namespace comgen
