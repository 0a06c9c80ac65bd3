#include <algorithm>

#include "tools/comgen/emit_text.h"

// The interface definition, from which a type library is compiled: for script hosts and for other
// compilers on Windows.

namespace comgen {

namespace {

/// The identifiers of the operations of interface n, counted from 1, start after n times this
/// number.
constexpr std::size_t kIdentifiersPerInterface = 0x100;

/// Returns a text in double quotes.
std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

std::string Hexadecimal(std::size_t number) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (; number != 0; number /= 16) text.insert(text.begin(), kDigits[number % 16]);
  return "0x" + text;
}

/// Operations with an identifier that scripts know. A script uses them as properties.
bool IsEnumerator(const Operation& operation) { return operation.name == "_NewEnum"; }
bool IsItem(const Operation& operation) { return operation.name.rfind("Item", 0) == 0; }
bool IsCount(const Operation& operation) { return operation.name == "Count"; }

/// Returns the name of an operation for scripts: a property has no get_ or put_.
std::string ScriptName(const Operation& operation) {
  const bool isProperty =
      operation.role == Operation::Role::kGet || operation.role == Operation::Role::kPut;
  return isProperty ? operation.name.substr(4) : operation.name;
}

/// Writes one interface. The identifiers of its operations start after `first`.
class InterfaceWriter {
 public:
  InterfaceWriter(TextWriter& out, const Interface& interface, std::size_t first)
      : out(out), interface(interface), first(first) {}

  void Run() {
    out.Line("  [object, uuid(" + interface.identifier + "), dual, oleautomation,");
    out.Line("   helpstring(" + Quoted(interface.doc) + ")]");
    const std::string base = interface.base.empty() ? "IDispatch" : interface.base;
    out.Line("  interface " + interface.name + " : " + base + " {");
    for (std::size_t i = 0; i < interface.operations.size(); ++i) Write(i);
    out.Line("  };");
    out.Line();
  }

 private:
  void Write(std::size_t position) {
    const Operation& operation = interface.operations[position];
    std::string marks = "id(" + Identifier(position) + ")";
    if (operation.role == Operation::Role::kGet || IsEnumerator(operation) || IsItem(operation) ||
        IsCount(operation)) {
      marks += ", propget";
    }
    if (operation.role == Operation::Role::kPut) marks += ", propput";
    if (operation.role == Operation::Role::kReserved) marks += ", hidden, restricted";
    if (IsEnumerator(operation)) marks += ", restricted";
    if (!operation.doc.empty()) marks += ", helpstring(" + Quoted(operation.doc) + ")";
    out.Line("    [" + marks + "]");
    std::string arguments;
    for (std::size_t i = 0; i < operation.arguments.size(); ++i) {
      arguments += (i == 0 ? "" : ", ") + ArgumentAt(operation, i);
    }
    out.Line("    HRESULT " + ScriptName(operation) + "(" + arguments + ");");
  }

  /// The two operations of a property share one identifier.
  std::string Identifier(std::size_t position) const {
    const Operation& operation = interface.operations[position];
    if (IsEnumerator(operation)) return "DISPID_NEWENUM";
    if (IsItem(operation) && IsDefaultItem(operation)) return "DISPID_VALUE";
    const bool isSecond = operation.role == Operation::Role::kPut && position > 0 &&
                          ScriptName(interface.operations[position - 1]) == ScriptName(operation);
    return Hexadecimal(first + position + (isSecond ? 0 : 1));
  }

  /// If an interface has two such operations, the one named Item is the default.
  bool IsDefaultItem(const Operation& operation) const {
    const auto& all = interface.operations;
    const bool hasPlain = std::any_of(all.begin(), all.end(),
                                      [](const Operation& other) { return other.name == "Item"; });
    return operation.name == "Item" || !hasPlain;
  }

  /// The last argument is the result if no other is an output.
  static std::string ArgumentAt(const Operation& operation, std::size_t index) {
    const Argument& argument = operation.arguments[index];
    const auto outs = std::count_if(operation.arguments.begin(), operation.arguments.end(),
                                    [](const Argument& one) { return one.isOut; });
    const bool isResult = argument.isOut && outs == 1 && index + 1 == operation.arguments.size();
    const std::string direction = isResult ? "[out, retval] " : argument.isOut ? "[out] " : "[in] ";
    const std::string name =
        argument.name.empty() ? "argument" + std::to_string(index + 1) : argument.name;
    return direction + ArgumentType(argument, Language::kIdl) + " " + name;
  }

  TextWriter& out;
  const Interface& interface;
  std::size_t first;
};

void WriteClass(TextWriter& out, const Class& type) {
  out.Line("  [uuid(" + type.identifier + "), helpstring(" + Quoted(type.progId) + ")]");
  out.Line("  coclass " + type.name + " {");
  for (std::size_t i = 0; i < type.interfaces.size(); ++i) {
    out.Line(std::string("    ") + (i == 0 ? "[default] " : "") + "interface " +
             type.interfaces[i] + ";");
  }
  out.Line("  };");
  out.Line();
}

}  // namespace

void EmitIdl(const Description& description, const std::string& version, Files& files) {
  TextWriter out;
  out.Line(GeneratedBy(description));
  out.Line();
  out.Line("import \"oaidl.idl\";");
  out.Line();
  out.Line("[uuid(" + description.library.identifier + "), version(" + version + "),");
  out.Line(" helpstring(" + Quoted(description.library.doc) + ")]");
  out.Line("library " + description.library.name + " {");
  out.Line("  importlib(\"stdole2.tlb\");");
  out.Line();
  for (const Interface& interface : description.interfaces) {
    out.Line("  interface " + interface.name + ";");
  }
  out.Line();
  std::size_t first = 0;
  for (const Interface& interface : description.interfaces) {
    first += kIdentifiersPerInterface;
    InterfaceWriter(out, interface, first).Run();
  }
  for (const Class& type : description.classes) {
    if (!type.header.empty()) WriteClass(out, type);
  }
  out.Line("};");
  files["kelifc/geo/kelifc.idl"] = out.Text();
}

}  // namespace comgen
