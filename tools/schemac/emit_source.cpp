#include "tools/schemac/attribute_text.h"
#include "tools/schemac/core_classes.h"
#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kSourceHead = R"(@generated@
#include "@header@"

#include "kelifc/schema/bodies.h"
#include "kelifc/schema/@folder@.h"

namespace @namespace@ {

)";

constexpr std::string_view kDefinedTypeHead = R"(@name@::@name@() = default;
@name@::@name@(@bare@) : @value@(@argument@) {}
@name@::@name@(const @value@& value) : @value@(value) {}
)";

constexpr std::string_view kFromTextBodies =
    R"(@name@::@name@(const char* text) { STRING::operator=(text); }
@name@& @name@::operator=(const char* text) {
  STRING::operator=(text);
  return *this;
}
)";

constexpr std::string_view kDefinedTypeRecord =
    R"(const char* @name@::Parse(const char* cursor) { return @value@::Parse(cursor); }
std::ostream& @name@::Write(std::ostream& out) const { return @value@::Write(out); }
std::ostream& @name@::WriteWithName(std::ostream& out) const {
  return WriteNamedValue<@value@>(*this, out);
}
const char* @name@::ParseBody(const char* cursor) {
  return @value@::Parse(IfcUnknown::Parse(cursor));
}

)";

constexpr std::string_view kParseIntegers =
    R"(const char* @name@::Parse(const char* cursor) { return ParseIntegers(*this, cursor); }

)";

constexpr std::string_view kDefaultBody = "@name@::@name@() = default;\n";

constexpr std::string_view kCopyBodies = R"(@name@::@name@(const @name@&) = default;
@name@& @name@::operator=(const @name@&) = default;
@name@::~@name@() = default;
)";

constexpr std::string_view kNamesBodies =
    R"(const char* @name@::GetItemName() { return "@name@"; }
const char* @name@::GetStepName() const { return GetItemName(); }
)";

constexpr std::string_view kNewItemBody =
    R"(@name@* @name@::NewItem(IfcServer* server) { return MakeItem<@name@>(server); }
)";

/// The directives make compilers and debuggers show the lines of the file that contains the body.
constexpr std::string_view kBodiesNote = R"(// The bodies of @name@, from @file@:@line@.
#line @next@ "@file@"
@text@)";

constexpr std::string_view kOperationBody = R"(@result@ @class@::@name@(@parameters@)@const@ {
@body@}

)";

/// Writes the source of one family.
class SourceEmitter {
 public:
  SourceEmitter(const ReleaseModel& model, const Family& family)
      : model(model),
        family(family),
        info(kReleases[model.release]),
        path(FamilyFile(info.folder, family.name, ".cpp")) {}

  std::string Run() {
    TemplateWords words = WordsOf(info);
    words["generated"] = GeneratedBy(DescriptionFile(family.name));
    words["header"] = FamilyFile(info.folder, family.name, ".h");
    out.Fill(kSourceHead, words);
    for (const auto& [name, type] : model.definedTypes) {
      if (type->family == family.name) EmitDefinedType(*type);
    }
    for (const auto& type : model.classes) {
      if (type.entity->family == family.name) EmitClass(type);
    }
    for (const auto& function : model.functions) {
      if (function.function->family == family.name) CopyBodies(function.bodies);
    }
    out.Fill("}  // namespace @namespace@\n", words);
    return out.Text();
  }

 private:
  void EmitDefinedType(const DefinedType& type) {
    const KindInfo& value = InfoOf(type.kind);
    const TemplateWords words = {
        {"name", type.name},
        {"value", std::string(value.type)},
        {"bare", std::string(value.bare)},
        {"argument", std::string(value.bare.substr(value.bare.rfind(' ') + 1))}};
    if (type.kind == Kind::kIntegers) {
      out.Fill(kDefaultBody, words);
      out.Fill(kCopyBodies, words);
      out.Fill(kParseIntegers, words);
      return;
    }
    out.Fill(kDefinedTypeHead, words);
    if (type.kind == Kind::kString) out.Fill(kFromTextBodies, words);
    out.Fill(kCopyBodies, words);
    out.Fill(kNamesBodies, words);
    out.Fill(kDefinedTypeRecord, words);
  }

  void EmitClass(const ResolvedClass& type) {
    const TemplateWords words = {{"name", type.entity->name}};
    if (!type.isUnknown) {
      out.Fill("@name@::~@name@() = default;\n\n", words);
      return;
    }
    out.Fill(kDefaultBody, words);
    out.Fill(kCopyBodies, words);
    out.Fill(kNamesBodies, words);
    if (type.entity->made.Has(model.release)) out.Fill(kNewItemBody, words);
    out.Line();
    if (type.hasParse && !type.customParse) EmitParse(type);
    if (type.hasWrite && !type.customWrite) EmitWrite(type);
    for (const auto& operation : type.operations) EmitOperation(type, operation);
    CopyBodies(type.bodies);
  }

  void EmitParse(const ResolvedClass& type) {
    out.Line("const char* " + type.entity->name + "::Parse(const char* cursor) {");
    std::vector<std::string> parts = {type.readBase + "::Parse(cursor)"};
    bool isPending = true;  // true while `parts` contains parts that are not yet written
    bool hasLinks = false;
    for (const auto& step : type.reads) {
      if (step.act != Step::Act::kLink) {
        parts.push_back(ReadPartOf(type, step));
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

  std::string ReadPartOf(const ResolvedClass& type, const Step& step) const {
    if (step.act == Step::Act::kStar) return "Redeclared(*this)";
    if (step.act == Step::Act::kDrop) {
      return "Dropped<" + std::string(ValueType(InfoOf(*step.kind), model.release)) + ">()";
    }
    return ReadPart(model, *model.FindAttribute(type, step.name));
  }

  void EmitWrite(const ResolvedClass& type) {
    out.Line("std::ostream& " + type.entity->name + "::Write(std::ostream& out) const {");
    std::vector<std::string> parts = {type.writeBase + "::Write(out)"};
    for (const auto& step : type.writes) parts.push_back(WritePartOf(type, step));
    out.Call(type.writeBase == kRoot ? "  return WriteFirst" : "  return WriteNext", parts, ";");
    out.Line("}");
    out.Line();
  }

  std::string WritePartOf(const ResolvedClass& type, const Step& step) const {
    if (step.act == Step::Act::kStar) return "Literal(\"*\")";
    if (step.act != Step::Act::kAttribute) return "Literal(\"" + step.literal + "\")";
    return WritePart(model, *model.FindAttribute(type, step.name));
  }

  void EmitOperation(const ResolvedClass& type, const ResolvedOperation& operation) {
    if (operation.body.empty()) return;
    TextWriter body;
    for (const auto& statement : operation.body) body.Line("  " + statement);
    out.Fill(kOperationBody, {{"result", operation.result},
                              {"class", type.entity->name},
                              {"name", operation.name},
                              {"parameters", operation.parameters},
                              {"const", operation.isConst ? " const" : ""},
                              {"body", body.Text()}});
  }

  void CopyBodies(const std::vector<const Body*>& bodies) {
    for (const Body* body : bodies) {
      out.Fill(kBodiesNote, {{"name", body->name},
                             {"file", body->place.file},
                             {"line", std::to_string(body->place.line)},
                             {"next", std::to_string(body->place.line + 1)},
                             {"text", body->text}});
    }
    if (bodies.empty()) return;
    out.Line("#line " + std::to_string(out.LineCount() + 2) + " \"" + path + "\"");
    out.Line();
  }

  const ReleaseModel& model;
  const Family& family;
  const ReleaseInfo& info;
  const std::string path;
  TextWriter out;
};

}  // namespace

void EmitSource(const ReleaseModel& model, const Family& family, Files& files) {
  const std::string path = FamilyFile(kReleases[model.release].folder, family.name, ".cpp");
  files[path] = SourceEmitter(model, family).Run();
}

}  // namespace schemac
