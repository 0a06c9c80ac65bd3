#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

/// The type of a pointer to an operation of a class.
std::string PointerType(const ResolvedOperation& operation, const std::string& type) {
  return operation.result + " (" + type + "::*)(" + operation.parameters + ")" +
         (operation.isConst ? " const" : "");
}

/// The pointers are taken in a class derived from the tested one, which may see what is protected.
void EmitClassSlots(TextWriter& out, const ReleaseModel& model, const ResolvedClass& type) {
  const std::string& name = type.entity->name;
  std::vector<const ResolvedOperation*> operations;
  for (const auto& operation : type.operations) {
    if (operation.isVirtual) operations.push_back(&operation);
  }
  if (operations.size() < 2) return;
  out.Line("struct " + name + "Slots : " + name + " {");
  for (const auto* operation : operations) {
    if (operation->isProtected) out.Line("  using " + name + "::" + operation->name + ";");
  }
  out.Line("  static std::vector<std::ptrdiff_t> Read() {");
  out.Line("    return {");
  for (const auto* operation : operations) {
    out.Line("        SlotOf(static_cast<" + PointerType(*operation, name) + ">(&" + name +
             "Slots::" + operation->name + ")),");
  }
  out.Line("    };");
  out.Line("  }");
  out.Line("};");
  out.Line();
  out.Line("TEST(SlotOrder" + std::string(kReleases[model.release].suffix) + ", Of" + name +
           "IsAsDescribed) { ExpectRising(" + name + "Slots::Read()); }");
  out.Line();
}

}  // namespace

void EmitSlots(const std::vector<ReleaseModel>& models, Files& files) {
  for (const auto& model : models) {
    const ReleaseInfo& info = kReleases[model.release];
    TextWriter out;
    out.Line(GeneratedBy("the descriptions in kelifc/schema"));
    out.Line("#include \"kelifc/schema/" + std::string(info.folder) + ".h\"");
    out.Line("#include \"tests/schema/slot_order.h\"");
    out.Line();
    out.Line("namespace " + std::string(info.nameSpace) + " {");
    out.Line("namespace {");
    out.Line();
    for (const auto& type : model.classes) EmitClassSlots(out, model, type);
    out.Line("}  // namespace");
    out.Line("}  // namespace " + std::string(info.nameSpace));
    files["tests/schema/slots_" + std::string(info.folder) + "_test.cpp"] = out.Text();
  }
}

}  // namespace schemac
