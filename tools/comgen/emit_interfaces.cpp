#include <algorithm>

#include "tools/comgen/emit_text.h"

namespace comgen {

namespace {

constexpr std::string_view kInterfacesPath = "kelifc/geo/interfaces.h";

constexpr char kRules[] =
    R"(// The object model for hosts. Every operation returns a status: S_OK, or a negative code for a
// failure. A null pointer for a result returns E_POINTER. The caller owns what an operation stores:
// it releases an interface with Release and frees a string with SysFreeString. Reserved operations
// keep the order of the others; they change nothing and return E_NOTIMPL.
)";

void EmitForward(TextWriter& out, const Description& description) {
  std::vector<std::string> names;
  for (const Interface& interface : description.interfaces) names.push_back(interface.name);
  std::sort(names.begin(), names.end());
  for (const std::string& name : names) out.Line("struct " + name + ";");
  out.Line();
}

void EmitOperation(TextWriter& out, const Operation& operation) {
  if (!operation.doc.empty()) {
    out.Line();
    out.Doc("  ", operation.doc);
  }
  std::vector<std::string> arguments;
  for (const Argument& argument : operation.arguments) {
    const std::string type = ArgumentType(argument, Language::kCpp);
    arguments.push_back(argument.name.empty() ? type : type + " " + argument.name);
  }
  out.Call("  virtual HRESULT " + operation.name, arguments, " = 0;");
}

void EmitInterface(TextWriter& out, const Interface& interface) {
  out.Doc("", interface.doc);
  const std::string base = interface.base.empty() ? "IDispatch" : interface.base;
  out.Line("struct KELIFC_INTERFACE " + interface.name + " : " + base + " {");
  out.Line("  static constexpr IID kIid = {");
  out.Line("      " + IdentifierMembers(interface.identifier) + "};");
  bool wasReserved = false;
  for (const Operation& operation : interface.operations) {
    const bool isReserved = operation.role == Operation::Role::kReserved;
    if (isReserved && !wasReserved) out.Line();
    EmitOperation(out, operation);
    wasReserved = isReserved;
  }
  out.Line();
  out.Line(" protected:");
  out.Line("  ~" + interface.name + "() = default;");
  out.Line("};");
  out.Line();
}

void EmitConstant(TextWriter& out, const std::string& type, const std::string& name,
                  const std::string& identifier) {
  out.Line("inline constexpr " + type + " " + name + " = {");
  out.Line("    " + IdentifierMembers(identifier) + "};");
}

}  // namespace

void EmitInterfaces(const Description& description, Files& files) {
  const std::string path(kInterfacesPath);
  TextWriter out;
  out.Line("#include \"kelifc/platform/com_interfaces.h\"");
  out.Line("#include \"kelifc/platform/com_variant.h\"");
  out.Line("#include \"kelifc/platform/export.h\"");
  out.Line();
  out.Line(kRules);
  EmitForward(out, description);
  for (const Interface& interface : description.interfaces) EmitInterface(out, interface);
  out.Doc("", "The identifier of the type library. " + description.library.doc);
  EmitConstant(out, "GUID", "LIBID_" + description.library.name, description.library.identifier);
  out.Line();
  out.Line(
      "// The identifiers of the classes, by which hosts create objects, with the program names.");
  for (const Class& type : description.classes) {
    out.Line();
    out.Doc("", type.progId);
    EmitConstant(out, "CLSID", "CLSID_" + type.name, type.identifier);
  }
  out.Line();
  files[path] = GuardedHeader(description, path, out.Text());
}

}  // namespace comgen
