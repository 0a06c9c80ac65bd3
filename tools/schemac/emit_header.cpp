#include "tools/schemac/attribute_text.h"
#include "tools/schemac/core_classes.h"
#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kDefinedTypeClass =
    R"(class KELIFC_API @name@ : public @base@, public @value@ {
 public:
  /// An unset value.
  @name@();
  /// A value that is set.
  @name@(@bare@);
  /// A copy of the value; it is unset if `value` is.
  @name@(const @value@& value);
@fromText@  @name@(const @name@&);
  @name@& operator=(const @name@&);
@assignText@  ~@name@() override;

  /// Returns the name of the type as the schema spells it.
  static const char* GetItemName();
  const char* GetStepName() const override;
  /// Reads and writes only the value, as an attribute of this type contains it.
  const char* Parse(const char* cursor) override;
  std::ostream& Write(std::ostream& out) const override;
  /// Reads and writes the value with the name of its type, as a select contains it.
  std::ostream& WriteWithName(std::ostream& out) const override;
  const char* ParseBody(const char* cursor) override;
};

)";

/// Additional members of a defined type that is a text.
constexpr std::string_view kFromText = R"(  /// A text that is set; null makes it unset.
  @name@(const char* text);
)";
constexpr std::string_view kAssignText = R"(  /// Sets the text; null makes it unset.
  @name@& operator=(const char* text);
)";

constexpr std::string_view kIntegers = R"(class KELIFC_API @name@ : public LIST<INTEGER> {
 public:
  @name@();
  @name@(const @name@&);
  @name@& operator=(const @name@&);
  ~@name@() override;

  /// Reads integers between parentheses. Without parentheses the list stays unset.
  const char* Parse(const char* cursor);
};

)";

/// A select that does not derive from IfcUnknown only marks the classes that it can hold.
constexpr std::string_view kSelectBody = R"( public:
  @name@(const @name@&) = default;
  @name@& operator=(const @name@&) = default;

 protected:
  @name@() = default;
  virtual ~@name@();
};

)";

constexpr std::string_view kCopy = R"(  @name@(const @name@&);
  @name@& operator=(const @name@&);
)";

constexpr std::string_view kNewItem =
    R"(  /// Makes an instance and registers it with the server. If `server` is null, the caller owns it.
  static @name@* NewItem(IfcServer* server);
)";

constexpr std::string_view kNames = R"(  /// Returns the name of the entity as the schema spells it.
  static const char* GetItemName();
  const char* GetStepName() const override;
)";

/// The headers that every header of a family includes.
constexpr std::string_view kUsualHeaders[] = {
    "kelifc/core/aggregate.h",       "kelifc/core/binary.h",          "kelifc/core/boolean.h",
    "kelifc/core/cached_instance.h", "kelifc/core/coordinates.h",     "kelifc/core/enum.h",
    "kelifc/core/enum_text.h",       "kelifc/core/integer.h",         "kelifc/core/inverse_set.h",
    "kelifc/core/length_measure.h",  "kelifc/core/list_of_members.h", "kelifc/core/logical.h",
    "kelifc/core/member.h",          "kelifc/core/set_of_members.h",  "kelifc/core/string.h",
    "kelifc/core/text_attribute.h",  "kelifc/core/unknown.h",         "kelifc/platform/export.h",
    "kelifc/platform/guid.h",        "kelifc/schema/common.h"};

/// Writes the header of one family.
class HeaderEmitter {
 public:
  HeaderEmitter(const ReleaseModel& model, const Family& family)
      : model(model), family(family), info(kReleases[model.release]) {}

  std::string Run(const std::string& path) {
    EmitIncludes(path);
    TemplateWords words = WordsOf(info);
    words["title"] = family.title;
    out.Fill("/// @title@, release @release@.\nnamespace @namespace@ {\n\n", words);
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
    out.Fill("}  // namespace @namespace@\n\n", words);
    return GuardedHeader(path, DescriptionFile(family.name), out.Text());
  }

 private:
  using Headers = std::set<std::string>;

  void EmitIncludes(const std::string& path) {
    Headers headers(std::begin(kUsualHeaders), std::end(kUsualHeaders));
    headers.insert(Fill("kelifc/schema/@folder@/fwd.h", WordsOf(info)));
    for (const auto& type : model.classes) {
      if (type.entity->family == family.name) AddHeadersOf(type, headers);
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

  void AddHeadersOf(const ResolvedClass& type, Headers& headers) const {
    for (const auto& base : type.bases) AddHeader(headers, base);
    for (const Attribute* attribute : type.attributes) {
      const std::string stored = StoredType(*attribute, model.release);
      const auto element = stored.find('<') + 1;  // 0 for a type without elements
      AddHeader(headers, stored.substr(element, stored.find('>') - element));
    }
    for (const auto& operation : type.operations) AddHeader(headers, operation.result);
  }

  void AddHeader(Headers& headers, const std::string& name) const {
    if (const CoreClass* core = FindCoreClass(name)) headers.emplace(core->header);
    const std::string other = FamilyOf(model, name);
    if (!other.empty()) headers.insert(FamilyFile(info.folder, other, ".h"));
  }

  void EmitEnumerations() {
    for (const auto& [name, enumeration] : model.enumerations) {
      if (enumeration->family != family.name || enumeration->isCore) continue;
      EmitEnumeration(out, *enumeration, *model.FindTable(*enumeration));
    }
  }

  /// A type whose base belongs to this family is written after the base.
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
    const KindInfo& value = InfoOf(type.kind);
    TemplateWords words = {{"name", type.name},
                           {"base", type.base},
                           {"value", std::string(value.type)},
                           {"bare", std::string(value.bare)}};
    if (type.kind == Kind::kIntegers) {
      out.Doc("", type.doc);
      out.Fill(kIntegers, words);
      return;
    }
    if (type.base.empty())
      throw DescriptionError(type.place, type.name + " does not derive from a select");
    if (value.bare.empty())
      throw DescriptionError(type.place, "a defined type cannot hold this kind");
    const bool isText = type.kind == Kind::kString;
    words["fromText"] = isText ? Fill(kFromText, words) : "";
    words["assignText"] = isText ? Fill(kAssignText, words) : "";
    out.Doc("", type.doc);
    out.Fill(kDefinedTypeClass, words);
  }

  void EmitClass(const ResolvedClass& type) {
    EmitClassHead(type);
    const Entity& entity = *type.entity;
    const TemplateWords words = {{"name", entity.name}};
    if (!type.isUnknown) {
      out.Fill(kSelectBody, words);
      return;
    }
    out.Line(" public:");
    EmitConstructors(type, words);
    if (entity.made.Has(model.release)) out.Fill(kNewItem, words);
    out.Fill(kNames, words);
    if (type.customParse) EmitPlaces("  ", *type.customParse);
    if (type.hasParse) out.Line("  const char* Parse(const char* cursor) override;");
    if (type.customWrite) EmitPlaces("  ", *type.customWrite);
    if (type.hasWrite) out.Line("  std::ostream& Write(std::ostream& out) const override;");
    EmitOperations(type);
    EmitFields(type);
    out.Line("};");
    out.Line();
  }

  void EmitClassHead(const ResolvedClass& type) {
    out.Doc("", type.entity->doc);
    for (const auto& departure : type.departures) out.Doc("", "Departure: " + departure + ".");
    std::string head = "class KELIFC_API " + type.entity->name;
    for (std::size_t i = 0; i < type.bases.size(); ++i) {
      head += (i == 0 ? " : public " : ", public ") + type.bases[i];
    }
    out.Line(head + " {");
  }

  void EmitConstructors(const ResolvedClass& type, const TemplateWords& words) {
    const bool isAbstract = type.entity->isAbstract;
    if (!isAbstract) out.Fill("  @name@();\n", words);
    for (const auto& constructor : type.constructors) {
      const bool isSingle = constructor.text.find(',') == std::string::npos;
      out.Doc("  ", CommentOf(*type.entity, constructor));
      EmitPlaces("  ", constructor);
      out.Line((isSingle ? "  explicit " : "  ") + type.entity->name + constructor.text + ";");
    }
    out.Fill(kCopy, words);
    if (!isAbstract) out.Fill("  ~@name@() override;\n", words);
    out.Line();
  }

  static const std::string& CommentOf(const Entity& entity, const HandWritten& constructor) {
    const std::string name = entity.name + constructor.text;
    const auto comment = entity.comments.find(name);
    if (comment == entity.comments.end()) {
      throw DescriptionError(constructor.place, "no 'tell' line describes " + name);
    }
    return comment->second;
  }

  void EmitOperations(const ResolvedClass& type) {
    bool isProtected = false;
    for (const auto& operation : type.operations) {
      out.Line();
      if (operation.isProtected != isProtected) {
        isProtected = operation.isProtected;
        out.Line(isProtected ? " protected:" : " public:");
      }
      if (!operation.doc.empty()) out.Doc("  ", operation.doc);
      if (operation.body.empty()) EmitPlaces("  ", operation);
      std::string line = operation.isVirtual ? "  virtual " : "  ";
      line += operation.result + " " + operation.name + "(" + operation.parameters + ")";
      if (operation.isConst) line += " const";
      if (operation.isOverride) line += " override";
      out.Line(line + ";");
    }
  }

  void EmitFields(const ResolvedClass& type) {
    const bool isAbstract = type.entity->isAbstract;
    if (type.attributes.empty() && !isAbstract) return;
    out.Line();
    out.Line(" protected:");
    if (isAbstract) {
      out.Fill("  @name@();\n  ~@name@() override;\n", {{"name", type.entity->name}});
      if (!type.attributes.empty()) out.Line();
    }
    for (const Attribute* attribute : type.attributes) EmitField(type, *attribute);
  }

  void EmitField(const ResolvedClass& type, const Attribute& attribute) {
    std::string comment = attribute.reason;
    if (comment.empty() && attribute.isInverse)
      comment = "inverse: setters of other instances never fill it";
    if (!comment.empty()) out.Doc("  ", comment);
    out.Line("  " + FieldType(model, type, attribute) + " " + MemberName(attribute.name) +
             FieldInitializer(model, attribute) + ";");
  }

  void EmitFunctions() {
    for (const auto& resolved : model.functions) {
      const Function& function = *resolved.function;
      if (function.family != family.name) continue;
      out.Doc("", function.doc);
      EmitPlaces("", HandWritten{"", function.place, resolved.bodyPlace});
      out.Line("KELIFC_API " + function.result + " " + function.name + function.parameters + ";");
      out.Line();
    }
  }

  /// Writes where a part that is written by hand is described and defined.
  template <class Part>
  void EmitPlaces(const std::string& indent, const Part& part) {
    if (part.bodyPlace.file.empty()) return;
    out.Line(indent + "// Description: " + Text(part.place) + ". Body: " + Text(part.bodyPlace) +
             ".");
  }

  static std::string Text(const Place& place) {
    return place.file + ":" + std::to_string(place.line);
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
