#include <algorithm>

#include "tools/schemac/emitters.h"
#include "tools/schemac/operations.h"

namespace schemac {

namespace {

struct ValueBase {
  Kind kind;
  std::string_view type;
  std::string_view parameter;
};

/// The values that a defined type can hold, and what it is made from.
constexpr ValueBase kValueBases[] = {
    {Kind::kString, "STRING", "const std::string& text"},
    {Kind::kReal, "REAL", "double value"},
    {Kind::kInteger, "INTEGER", "int value"},
    {Kind::kBoolean, "BOOLEAN", "bool value"},
};

const ValueBase& ValueBaseOf(const DefinedType& type) {
  for (const auto& row : kValueBases) {
    if (row.kind == type.kind) return row;
  }
  throw DescriptionError(type.place, "a defined type cannot hold this kind");
}

/// Writes the header of one family.
class HeaderEmitter {
 public:
  HeaderEmitter(const ReleaseModel& model, const Family& family)
      : model(model), family(family), info(kReleases[model.release]) {}

  std::string Run(const std::string& path) {
    out.Line(GeneratedBy("kelifc/schema/" + family.name + ".schema"));
    out.Line("#ifndef " + Guard(path));
    out.Line("#define " + Guard(path));
    out.Line();
    EmitIncludes(path);
    out.Line("/// " + family.title + ", release " + std::string(info.mark) + ".");
    out.Line("namespace " + std::string(info.nameSpace) + " {");
    out.Line();
    EmitEnumerations();
    for (const auto& [name, type] : model.definedTypes) {
      if (type->family == family.name && name != family.name) EmitDefinedTypeAfterBase(*type);
    }
    for (const auto& type : model.classes) {
      if (type.entity->family != family.name) continue;
      EmitClass(type);
      EmitWaitingTypes(type.entity->name);
    }
    EmitFunctions();
    out.Line("}  // namespace " + std::string(info.nameSpace));
    out.Line();
    out.Line("#endif  // " + Guard(path));
    return out.Text();
  }

 private:
  void EmitIncludes(const std::string& path) {
    std::set<std::string> headers = {
        "kelifc/core/enum_text.h",   "kelifc/core/list_of_members.h",
        "kelifc/core/member.h",      "kelifc/core/set_of_members.h",
        "kelifc/core/coordinates.h", "kelifc/core/enum.h",
        "kelifc/core/integer.h",     "kelifc/core/boolean.h",
        "kelifc/core/logical.h",     "kelifc/core/length_measure.h",
        "kelifc/core/binary.h",      "kelifc/core/aggregate.h",
        "kelifc/core/string.h",      "kelifc/core/unknown.h",
        "kelifc/platform/export.h",  "kelifc/platform/guid.h",
        "kelifc/schema/common.h",    "kelifc/schema/" + std::string(info.folder) + "/fwd.h"};
    for (const auto& type : model.classes) {
      if (type.entity->family != family.name) continue;
      for (const auto& base : type.bases) AddHeader(headers, base);
      for (const Attribute* attribute : type.attributes) {
        AddHeader(headers, StoredType(*attribute, model.release));
        if (attribute->kind == Kind::kLabels) AddHeader(headers, "IfcLabel");
      }
      for (const auto& operation : type.operations) AddHeader(headers, operation.result);
    }
    for (const auto& [name, type] : model.definedTypes) {
      if (type->family == family.name) AddHeader(headers, type->base);
    }
    for (const auto& [name, enumeration] : model.enumerations) {
      if (enumeration->isCore && enumeration->family == family.name) {
        headers.insert(FamilyFile("core", family.name, ".h"));
      }
    }
    headers.erase(path);
    for (const auto& header : headers) out.Line("#include \"" + header + "\"");
    out.Line();
  }

  void AddHeader(std::set<std::string>& headers, const std::string& name) const {
    if (const CoreClass* core = FindCoreClass(name)) headers.emplace(core->header);
    const std::string other = FamilyOf(model, name);
    if (!other.empty()) headers.insert(FamilyFile(info.folder, other, ".h"));
  }

  void EmitEnumerations() {
    for (const auto& [name, enumeration] : model.enumerations) {
      if (enumeration->family != family.name || enumeration->isCore) continue;
      EmitEnumeration(out, *enumeration, *FindTable(*enumeration, model.release));
    }
  }

  /// A type whose base is of this family waits until the base has been written.
  void EmitDefinedTypeAfterBase(const DefinedType& type) {
    if (FamilyOf(model, type.base) == family.name) {
      waiting.push_back(&type);
    } else {
      EmitDefinedType(type);
    }
  }

  void EmitWaitingTypes(const std::string& base) {
    for (const DefinedType* type : waiting) {
      if (type->base == base) EmitDefinedType(*type);
    }
  }

  void EmitDefinedType(const DefinedType& type) {
    if (type.kind == Kind::kIntegers) {
      EmitIntegers(type);
      return;
    }
    if (type.base.empty())
      throw DescriptionError(type.place, type.name + " stands behind no select");
    const ValueBase& value = ValueBaseOf(type);
    const std::string base(value.type);
    out.Doc("", type.doc);
    out.Line("class KELIFC_API " + type.name + " : public " + type.base + ", public " + base +
             " {");
    out.Line(" public:");
    out.Line("  " + type.name + "();");
    out.Line("  " + type.name + "(" + std::string(value.parameter) + ");");
    out.Line("  " + type.name + "(const " + base + "& value);");
    if (type.kind == Kind::kString) out.Line("  " + type.name + "(const char* text);");
    out.Line("  " + type.name + "(const " + type.name + "&);");
    out.Line("  " + type.name + "& operator=(const " + type.name + "&);");
    if (type.kind == Kind::kString) out.Line("  " + type.name + "& operator=(const char* text);");
    out.Line("  ~" + type.name + "() override;");
    out.Line();
    out.Doc("  ", "The name as the schema spells it.");
    out.Line("  static const char* GetItemName();");
    out.Line("  const char* GetStepName() const override;");
    out.Doc("  ", "Reads and writes the bare value, as it stands in an attribute.");
    out.Line("  const char* Parse(const char* cursor) override;");
    out.Line("  std::ostream& Write(std::ostream& out) const override;");
    out.Doc("  ",
            "Reads and writes the value with the name of its type, as it stands in a select.");
    out.Line("  std::ostream& WriteWithName(std::ostream& out) const override;");
    out.Line("  const char* ParseBody(const char* cursor) override;");
    out.Line("};");
    out.Line();
  }

  void EmitIntegers(const DefinedType& type) {
    out.Doc("", type.doc);
    out.Line("class KELIFC_API " + type.name + " : public LIST<INTEGER> {");
    out.Line(" public:");
    out.Line("  " + type.name + "();");
    EmitCopy(type.name);
    out.Line("  ~" + type.name + "() override;");
    out.Line();
    out.Doc("  ", "Reads whole numbers between parentheses; without any it stays unset.");
    out.Line("  const char* Parse(const char* cursor);");
    out.Line("};");
    out.Line();
  }

  void EmitClass(const ResolvedClass& type) {
    EmitClassHead(type);
    if (!type.isUnknown) {
      EmitSelectBody(type);
      return;
    }
    const Entity& entity = *type.entity;
    out.Line(" public:");
    if (!entity.isAbstract) out.Line("  " + entity.name + "();");
    for (const auto& parameters : type.constructors) {
      const bool isSingle = parameters.find(',') == std::string::npos;
      out.Line("  " + std::string(isSingle ? "explicit " : "") + entity.name + parameters + ";");
    }
    EmitCopy(entity.name);
    if (!entity.isAbstract) out.Line("  ~" + entity.name + "() override;");
    out.Line();
    if (entity.made.Has(model.release)) {
      out.Doc("  ", "Makes an instance and registers it; without a server the caller owns it.");
      out.Line("  static " + entity.name + "* NewItem(IfcServer* server);");
    }
    out.Doc("  ", "The name as the schema spells it.");
    out.Line("  static const char* GetItemName();");
    out.Line("  const char* GetStepName() const override;");
    if (type.hasParse) out.Line("  const char* Parse(const char* cursor) override;");
    if (type.hasWrite) out.Line("  std::ostream& Write(std::ostream& out) const override;");
    EmitOperations(type);
    EmitFields(type);
    out.Line("};");
    out.Line();
  }

  void EmitClassHead(const ResolvedClass& type) {
    out.Doc("", type.entity->doc);
    for (const auto& departure : type.departures) out.Doc("", "Departs: " + departure + ".");
    std::string head = "class KELIFC_API " + type.entity->name;
    for (std::size_t i = 0; i < type.bases.size(); ++i) {
      head += (i == 0 ? " : public " : ", public ") + type.bases[i];
    }
    out.Line(head + " {");
  }

  /// A select without IfcUnknown in it only marks the classes it may hold.
  void EmitSelectBody(const ResolvedClass& type) {
    const std::string& name = type.entity->name;
    out.Line(" public:");
    out.Line("  " + name + "(const " + name + "&) = default;");
    out.Line("  " + name + "& operator=(const " + name + "&) = default;");
    out.Line();
    out.Line(" protected:");
    out.Line("  " + name + "() = default;");
    out.Line("  virtual ~" + name + "();");
    out.Line("};");
    out.Line();
  }

  void EmitCopy(const std::string& name) {
    out.Line("  " + name + "(const " + name + "&);");
    out.Line("  " + name + "& operator=(const " + name + "&);");
  }

  void EmitOperations(const ResolvedClass& type) {
    bool isProtected = false;
    for (const auto& operation : type.operations) {
      if (operation.isProtected != isProtected) {
        isProtected = operation.isProtected;
        out.Line();
        out.Line(isProtected ? " protected:" : " public:");
      } else {
        out.Line();
      }
      if (!operation.doc.empty()) out.Doc("  ", operation.doc);
      std::string line = operation.isVirtual ? "  virtual " : "  ";
      line += operation.result + " " + operation.name + "(" + operation.parameters + ")";
      if (operation.isConst) line += " const";
      if (operation.isOverride) line += " override";
      out.Line(line + ";");
    }
  }

  void EmitFields(const ResolvedClass& type) {
    const std::string& name = type.entity->name;
    const bool isAbstract = type.entity->isAbstract;
    if (type.attributes.empty() && !isAbstract) return;
    out.Line();
    out.Line(" protected:");
    if (isAbstract) {
      out.Line("  " + name + "();");
      out.Line("  ~" + name + "() override;");
      if (!type.attributes.empty()) out.Line();
    }
    for (const Attribute* attribute : type.attributes) EmitField(*attribute);
  }

  void EmitField(const Attribute& attribute) {
    const std::string declaration =
        StoredType(attribute, model.release) + " " + MemberName(attribute.name);
    std::string line = "  " + declaration + Initializer(attribute) + ";";
    std::string comment = attribute.reason;
    if (comment.empty() && attribute.isInverse) comment = "inverse, filled by relationships";
    if (!comment.empty()) out.Doc("  ", comment);
    out.Line(line);
  }

  std::string Initializer(const Attribute& attribute) const {
    switch (attribute.kind) {
      case Kind::kReference:
      case Kind::kValue:
        return attribute.isOwnerless ? "" : "{this}";
      case Kind::kSet:
      case Kind::kList:
        return "{this}";
      case Kind::kEnum:
        return " = " + InitialEnumerator(model, attribute);
      case Kind::kInstance:
        return "{}";
      default:
        return attribute.initial.empty() ? "" : "{\"" + attribute.initial + "\"}";
    }
  }

  void EmitFunctions() {
    for (const Function* function : model.functions) {
      if (function->family != family.name) continue;
      out.Doc("", function->doc);
      out.Line("KELIFC_API " + function->result + " " + function->name + function->parameters +
               ";");
      out.Line();
    }
  }

  const ReleaseModel& model;
  const Family& family;
  const ReleaseInfo& info;
  std::vector<const DefinedType*> waiting;
  TextWriter out;
};

}  // namespace

void EmitHeader(const ReleaseModel& model, const Family& family, Files& files) {
  const std::string path = FamilyFile(kReleases[model.release].folder, family.name, ".h");
  files[path] = HeaderEmitter(model, family).Run(path);
}

}  // namespace schemac
