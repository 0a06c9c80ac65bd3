#include <algorithm>

#include "tools/comgen/emit_text.h"

namespace comgen {

namespace {

constexpr std::string_view kPath = "kelifc/geo/class_bases.h";

/// Returns the base of a class that has the interface.
std::string BaseOf(const Description& description, const Interface& interface) {
  if (!HasReserved(description, interface)) return interface.name;
  const std::string name = ReservedName(interface);
  return description.IsBase(interface.name) ? name + "<" + interface.name + ">" : name;
}

/// If other interfaces derive from the interface, the class is a template: each of those interfaces
/// has operations of its base of its own.
void EmitReserved(TextWriter& out, const Description& description, const Interface& interface) {
  const bool isTemplate = description.IsBase(interface.name);
  const std::string derived = isTemplate ? "Interface" : interface.name;
  std::string base = derived;
  if (!interface.base.empty()) {
    base = ReservedName(*description.Find(interface.base)) + "<" + derived + ">";
  }
  const std::string name = ReservedName(interface);
  out.Doc("", "The reserved operations of " + interface.name + ".");
  if (isTemplate) out.Line("template <class Interface>");
  out.Line("class " + name + " : public " + base + " {");
  out.Line(" public:");
  for (const Operation& operation : interface.operations) {
    if (operation.role == Operation::Role::kReserved) EmitNotImplemented(out, operation);
  }
  out.Line();
  out.Line(" protected:");
  out.Line("  ~" + name + "() = default;");
  out.Line("};");
  out.Line();
}

void EmitOmissions(TextWriter& out, const Description& description, const Class& type) {
  if (type.omissions.empty()) return;
  out.Line();
  out.Line("  // Operations that this class does not offer.");
  for (const Omission& omission : type.omissions) {
    for (const Operation* operation :
         description.AllOperations(*description.Find(omission.interface))) {
      const bool isMeant = omission.operation.empty()
                               ? operation->role != Operation::Role::kReserved
                               : operation->name == omission.operation;
      if (isMeant) EmitNotImplemented(out, *operation);
    }
  }
}

std::string Joined(const std::vector<std::string>& pieces) {
  std::string text;
  for (const std::string& piece : pieces) text += (text.empty() ? "" : ", ") + piece;
  return text;
}

void EmitClass(TextWriter& out, const Description& description, const Class& type) {
  const std::string name = type.name + "Base";
  std::vector<std::string> bases;
  for (const Interface* root : description.Roots(type)) bases.push_back(BaseOf(description, *root));
  out.Doc("", "The generated base of " + type.name + ".");
  out.Line("class " + name + " : public Dual<" + Joined(bases) + "> {");
  out.Line(" public:");
  out.Line("  using Interfaces = DualInterfaces<" + Joined(type.interfaces) + ">;");
  out.Line("  static constexpr CLSID kClsid = CLSID_" + type.name + ";");
  out.Line("  static constexpr const OLECHAR* kProgId = L\"" + type.progId + "\";");
  EmitOmissions(out, description, type);
  out.Line();
  out.Line(" protected:");
  out.Line("  ~" + name + "() = default;");
  out.Line("};");
  out.Line();
}

}  // namespace

void EmitBases(const Description& description, Files& files) {
  const std::string path(kPath);
  TextWriter out;
  out.Line("#include \"kelifc/geo/dual.h\"");
  out.Line("#include \"kelifc/geo/interfaces.h\"");
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line();
  for (const Interface& interface : description.interfaces) {
    if (HasReserved(description, interface)) EmitReserved(out, description, interface);
  }
  for (const Class& type : description.classes) EmitClass(out, description, type);
  out.Line("}  // namespace KelIFC");
  out.Line();
  files[path] = GuardedHeader(description, path, out.Text());
}

}  // namespace comgen
