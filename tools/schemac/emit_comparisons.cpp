#include "tools/schemac/attribute_text.h"
#include "tools/schemac/core_classes.h"
#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kHead = R"(@generated@
#include "kelifc/schema/@folder@.h"
#include "kelifc/schema/comparison.h"

namespace KelIFC {

)";

constexpr std::string_view kClass = R"(template <>
struct Fields<@namespace@::@name@> : @namespace@::@name@ {
  static bool AreSame(const @namespace@::@name@& a, const @namespace@::@name@& b,
                      const ValueComparison& same) {
    return @parts@;
  }
};

)";

constexpr std::string_view kDefinedType = R"(template <>
struct Fields<@namespace@::@name@> {
  static bool AreSame(const @value@& a, const @value@& b, const ValueComparison& same) {
    return same(a, b);
  }
};

)";

constexpr std::string_view kBasePart = "Fields<@base@>::AreSame(a, b, same)";
constexpr std::string_view kAttributePart = "same(a.*(&Fields::@member@), b.*(&Fields::@member@))";
constexpr std::string_view kBetween = " &&\n           ";

constexpr std::string_view kRow =
    "      {typeid(@namespace@::@name@), CompareAs<@namespace@::@name@>},\n";

constexpr std::string_view kTail = R"(const ComparisonTable& GetComparisons@suffix@() {
  static const ComparisonTable table = {
@rows@  };
  return table;
}

}  // namespace KelIFC
)";

/// Writes the comparisons of one release.
class ComparisonEmitter {
 public:
  explicit ComparisonEmitter(const ReleaseModel& model)
      : model(model), words(WordsOf(kReleases[model.release])) {
    words["generated"] = GeneratedBy("the descriptions in kelifc/schema");
  }

  std::string Run() {
    out.Fill(kHead, words);
    for (const auto& [name, type] : model.definedTypes) EmitDefinedType(*type);
    for (const auto& type : model.classes) {
      if (type.isUnknown) EmitClass(type);
    }
    words["rows"] = rows.Text();
    out.Fill(kTail, words);
    return out.Text();
  }

 private:
  void EmitDefinedType(const DefinedType& type) {
    if (type.kind == Kind::kIntegers) return;  // only the type of attributes: no instance has it
    words["name"] = type.name;
    words["value"] = InfoOf(type.kind).type;
    out.Fill(kDefinedType, words);
    rows.Fill(kRow, words);
  }

  void EmitClass(const ResolvedClass& type) {
    words["name"] = type.entity->name;
    words["parts"] = PartsOf(type);
    if (!words["parts"].empty()) out.Fill(kClass, words);
    if (!type.entity->isAbstract) rows.Fill(kRow, words);
  }

  /// Returns the comparison of the bases and of the attributes that a statement contains.
  std::string PartsOf(const ResolvedClass& type) {
    std::string parts;
    for (const auto& base : type.bases) {
      if (!HasFields(base)) continue;
      const bool isCore = FindCoreClass(base) != nullptr;
      Append(parts, kBasePart, {{"base", isCore ? base : words["namespace"] + "::" + base}});
    }
    for (const Attribute* attribute : type.attributes) {
      const bool isKept =
          attribute->inFile && !attribute->isInverse && InfoOf(attribute->kind).isInFile;
      if (isKept) Append(parts, kAttributePart, {{"member", MemberName(attribute->name)}});
    }
    return parts;
  }

  /// Returns false for IfcUnknown and for selects, which have no attributes.
  bool HasFields(const std::string& base) const {
    if (const CoreClass* core = FindCoreClass(base)) return core->isUnknown;
    const ResolvedClass* type = model.Find(base);
    return type != nullptr && type->isUnknown;
  }

  static void Append(std::string& parts, std::string_view form, const TemplateWords& partWords) {
    if (!parts.empty()) parts += kBetween;
    parts += Fill(form, partWords);
  }

  const ReleaseModel& model;
  TemplateWords words;
  TextWriter out;
  TextWriter rows;
};

}  // namespace

void EmitComparisons(const ReleaseModel& model, Files& files) {
  const auto path =
      Fill("kelifc/schema/@folder@/comparisons.cpp", WordsOf(kReleases[model.release]));
  files[path] = ComparisonEmitter(model).Run();
}

}  // namespace schemac
