#include "tools/schemac/emitters.h"
#include "tools/schemac/operations.h"

namespace schemac {

namespace {

constexpr std::string_view kRoot = "IfcUnknown";

/// Writes the source of one family.
class SourceEmitter {
 public:
  SourceEmitter(const ReleaseModel& model, const Family& family)
      : model(model), family(family), info(kReleases[model.release]) {}

  std::string Run() {
    out.Line(GeneratedBy("kelifc/schema/" + family.name + ".schema"));
    out.Line("#include \"" + FamilyFile(info.folder, family.name, ".h") + "\"");
    out.Line();
    out.Line("#include \"kelifc/schema/bodies.h\"");
    out.Line("#include \"kelifc/schema/" + std::string(info.folder) + ".h\"");
    out.Line();
    out.Line("namespace " + std::string(info.nameSpace) + " {");
    out.Line();
    for (const auto& [name, type] : model.definedTypes) {
      if (type->family == family.name) EmitDefinedType(*type);
    }
    for (const auto& type : model.classes) {
      if (type.entity->family == family.name) EmitClass(type);
    }
    for (const Function* function : model.functions) {
      if (function->family == family.name) IncludeBody(function->name);
    }
    out.Line("}  // namespace " + std::string(info.nameSpace));
    return out.Text();
  }

 private:
  void EmitDefinedType(const DefinedType& type) {
    const std::string& name = type.name;
    if (type.kind == Kind::kIntegers) {
      EmitIntegers(name);
      return;
    }
    const std::string value = ValueType(type.kind, 0);
    const bool isText = type.kind == Kind::kString;
    const std::string bare = isText ? "const std::string& text" : Bare(type.kind) + " value";
    out.Line(name + "::" + name + "() = default;");
    out.Line(name + "::" + name + "(" + bare + ") : " + value + "(" + (isText ? "text" : "value") +
             ") {}");
    out.Line(name + "::" + name + "(const " + value + "& value) : " + value + "(value) {}");
    if (isText) {
      out.Line(name + "::" + name + "(const char* text) { STRING::operator=(text); }");
      out.Line(name + "& " + name + "::operator=(const char* text) {");
      out.Line("  STRING::operator=(text);");
      out.Line("  return *this;");
      out.Line("}");
    }
    EmitCopy(name);
    EmitNames(name);
    out.Line("const char* " + name + "::Parse(const char* cursor) { return " + value +
             "::Parse(cursor); }");
    out.Line("std::ostream& " + name + "::Write(std::ostream& out) const { return " + value +
             "::Write(out); }");
    out.Line("std::ostream& " + name + "::WriteWithName(std::ostream& out) const {");
    out.Line("  return WriteNamedValue<" + value + ">(*this, out);");
    out.Line("}");
    out.Line("const char* " + name + "::ParseBody(const char* cursor) {");
    out.Line("  return " + value + "::Parse(IfcUnknown::Parse(cursor));");
    out.Line("}");
    out.Line();
  }

  void EmitIntegers(const std::string& name) {
    out.Line(name + "::" + name + "() = default;");
    EmitCopy(name);
    out.Line("const char* " + name +
             "::Parse(const char* cursor) { return ParseIntegers(*this, cursor); }");
    out.Line();
  }

  static std::string Bare(Kind kind) {
    if (kind == Kind::kReal) return "double";
    return kind == Kind::kInteger ? "int" : "bool";
  }

  void EmitCopy(const std::string& name) {
    out.Line(name + "::" + name + "(const " + name + "&) = default;");
    out.Line(name + "& " + name + "::operator=(const " + name + "&) = default;");
    out.Line(name + "::~" + name + "() = default;");
  }

  void EmitNames(const std::string& name) {
    out.Line("const char* " + name + "::GetItemName() { return \"" + name + "\"; }");
    out.Line("const char* " + name + "::GetStepName() const { return GetItemName(); }");
  }

  void EmitClass(const ResolvedClass& type) {
    const std::string& name = type.entity->name;
    if (!type.isUnknown) {
      out.Line(name + "::~" + name + "() = default;");
      out.Line();
      return;
    }
    out.Line(name + "::" + name + "() = default;");
    EmitCopy(name);
    EmitNames(name);
    if (type.entity->made.Has(model.release)) {
      out.Line(name + "* " + name + "::NewItem(IfcServer* server) { return MakeItem<" + name +
               ">(server); }");
    }
    out.Line();
    if (type.hasParse && !type.customParse) EmitParse(type);
    if (type.hasWrite && !type.customWrite) EmitWrite(type);
    for (const auto& operation : type.operations) EmitOperation(name, operation);
    for (const auto& body : type.bodies) IncludeFile(body);
  }

  void EmitParse(const ResolvedClass& type) {
    out.Line("const char* " + type.entity->name + "::Parse(const char* cursor) {");
    std::vector<std::string> parts = {type.readBase + "::Parse(cursor)"};
    bool isPending = true;  // true while `parts` holds reading that has not been written out
    bool hasLinks = false;
    for (const auto& step : type.reads) {
      if (step.act != Step::Act::kLink) {
        parts.push_back(ReadPart(type, step));
        isPending = true;
        continue;
      }
      if (isPending) out.Call("  cursor = ParseRecord", parts, ";");
      out.Call("  LinkBack",
               {"*this", MemberName(step.name), "&" + step.target + "::" + step.operation}, ";");
      parts = {"cursor"};
      isPending = false;
      hasLinks = true;
    }
    if (isPending) {
      out.Call("  return ParseRecord", parts, ";");
    } else if (hasLinks) {
      out.Line("  return cursor;");
    }
    out.Line("}");
    out.Line();
  }

  std::string ReadPart(const ResolvedClass& type, const Step& step) const {
    if (step.act == Step::Act::kDrop) {
      return "Dropped<" + ValueType(step.kind, model.release) + ">()";
    }
    if (step.act == Step::Act::kStar) return "Redeclared(*this)";
    const Attribute& attribute = *FindAttribute(model, type, step.name);
    std::string member = MemberName(attribute.name);
    switch (attribute.kind) {
      case Kind::kEnum:
        return "Enumerated(" + EnumArguments(attribute) + ")";
      case Kind::kValue:
        return "ValueInPlace(" + member + ", *this)";
      case Kind::kGlobalId64:
        return "GlobalId64(" + member + ")";
      case Kind::kLabels:
        return "Texts(" + member + ")";
      default:
        return member;
    }
  }

  std::string EnumArguments(const Attribute& attribute) const {
    std::string arguments = MemberName(attribute.name) + ", " + TableName(attribute.type);
    if (!attribute.initial.empty()) arguments += ", " + InitialEnumerator(model, attribute);
    return arguments;
  }

  void EmitWrite(const ResolvedClass& type) {
    out.Line("std::ostream& " + type.entity->name + "::Write(std::ostream& out) const {");
    std::vector<std::string> parts = {type.writeBase + "::Write(out)"};
    for (const auto& step : type.writes) parts.push_back(WritePart(type, step));
    out.Call(type.writeBase == kRoot ? "  return WriteFirst" : "  return WriteNext", parts, ";");
    out.Line("}");
    out.Line();
  }

  std::string WritePart(const ResolvedClass& type, const Step& step) const {
    if (step.act == Step::Act::kStar) return "Literal(\"*\")";
    if (step.act != Step::Act::kAttribute) return "Literal(\"" + step.literal + "\")";
    const Attribute& attribute = *FindAttribute(model, type, step.name);
    std::string member = MemberName(attribute.name);
    if (!attribute.writtenAs.empty()) return "Literal(\"" + attribute.writtenAs + "\")";
    switch (attribute.kind) {
      case Kind::kEnum:
        return "Enumerated(" + EnumArguments(attribute) + ")";
      case Kind::kEnumText:
        return "EnumeratedText(" + member + ")";
      case Kind::kScientific:
        return "Scientific(" + member + ")";
      case Kind::kValue:
        return "ValueInPlace(" + member + ", *this)";
      case Kind::kGlobalId64:
        return "GlobalId64(" + member + ")";
      case Kind::kGlobalId85:
        return "GlobalId85(" + member + ")";
      default:
        return member;
    }
  }

  void EmitOperation(const std::string& name, const ResolvedOperation& operation) {
    if (operation.body.empty()) return;
    const std::string head = operation.result + " " + name + "::" + operation.name + "(" +
                             operation.parameters + ")" + (operation.isConst ? " const" : "");
    out.Line(head + " {");
    for (const auto& statement : operation.body) out.Line("  " + statement);
    out.Line("}");
    out.Line();
  }

  void IncludeBody(const std::string& name) {
    std::string file;
    for (const char c : name)
      file += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    IncludeFile(file + ".inl");
  }

  void IncludeFile(const std::string& file) {
    out.Line("#include \"kelifc/schema/" + family.name + "/" + file + "\"");
    out.Line();
  }

  const ReleaseModel& model;
  const Family& family;
  const ReleaseInfo& info;
  TextWriter out;
};

}  // namespace

void EmitSource(const ReleaseModel& model, const Family& family, Files& files) {
  const std::string path = FamilyFile(kReleases[model.release].folder, family.name, ".cpp");
  files[path] = SourceEmitter(model, family).Run();
}

}  // namespace schemac
