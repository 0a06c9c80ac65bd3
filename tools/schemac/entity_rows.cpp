#include "tools/schemac/entity_rows.h"

#include "tools/schemac/core_classes.h"
#include "tools/schemac/text_template.h"

namespace schemac {

namespace {

constexpr std::string_view kCoreReader = "ReadMember<@class@, Kept<@class@>::@pointer@>";

constexpr std::string_view kCoreWriter = "WriteMember<@class@, Kept<@class@>::@pointer@>";

constexpr std::string_view kValueReader = "ReadValueType<@class@, @value@>";

/// Returns the C++ name of a generated class.
std::string TypeName(const ReleaseModel& model, const std::string& name) {
  return std::string(kReleases[model.release].nameSpace) + "::" + name;
}

std::string FormOf(CoreForm form) {
  switch (form) {
    case CoreForm::kAbstract:
      return "kAbstract";
    case CoreForm::kSelect:
      return "kSelect";
    case CoreForm::kValue:
      return "kValueType";
    case CoreForm::kEntity:
    case CoreForm::kOther:
      break;
  }
  return "kEntity";
}

EntityRow RowOf(const CoreClass& type) {
  EntityRow row;
  row.name = type.name;
  row.form = FormOf(type.form);
  row.isInFile = type.form == CoreForm::kEntity || type.form == CoreForm::kValue;
  if (type.form == CoreForm::kValue) row.valueKind = "kReal";
  const bool hasValue = type.form == CoreForm::kValue && type.hasParse;
  if (hasValue) row.valueReader = Fill(kValueReader, {{"class", row.name}, {"value", "REAL"}});
  for (const auto& base : type.bases) {
    if (!base.empty()) row.bases.emplace_back(base);
  }
  for (const CoreAttribute* attribute : AttributesOf(type)) {
    AttributeRow added;
    added.name = attribute->name;
    added.getter = attribute->getter;
    added.setter = attribute->setter;
    added.type = attribute->target;
    added.position = static_cast<int>(row.positionCount++);
    added.kind = InfoOf(attribute->kind).published;
    added.use = "kKept";
    added.isRequired = added.isWritten = true;
    const TemplateWords words = {{"class", row.name}, {"pointer", PointerName(added.name)}};
    added.reader = Fill(kCoreReader, words);
    added.setting = Fill(kCoreWriter, words);
    row.attributes.push_back(std::move(added));
  }
  return row;
}

/// Leaves out classes of the core that the schema does not have.
std::vector<std::string> SchemaBases(const ReleaseModel& model, const ResolvedClass& type) {
  constexpr std::size_t kMost = 2;  // the size of EntityDescription::bases
  std::vector<std::string> bases;
  for (const auto& base : type.bases) {
    const CoreClass* core = FindCoreClass(base);
    const bool isOfSchema =
        core != nullptr ? core->form != CoreForm::kOther : model.Find(base) != nullptr;
    if (isOfSchema) bases.push_back(base);
  }
  if (bases.size() > kMost) {
    throw DescriptionError(type.entity->place, type.entity->name + " has more than two bases");
  }
  return bases;
}

EntityRow RowOf(const ReleaseModel& model, const ResolvedClass& type) {
  const Entity& entity = *type.entity;
  EntityRow row;
  row.name = entity.name;
  row.type = TypeName(model, entity.name);
  row.isInstantiable = type.isUnknown && !entity.isAbstract;
  row.form = !type.isUnknown ? "kSelect" : entity.isAbstract ? "kAbstract" : "kEntity";
  row.isInFile = entity.file.Has(model.release);
  row.bases = SchemaBases(model, type);
  if (PositionCount(model, type.recordBase) != 0) row.record = type.recordBase;
  row.attributes = RowsOf(model, type);
  row.inverses = InverseRowsOf(model, type);
  row.positionCount = PositionCount(model, entity.name);
  return row;
}

EntityRow RowOf(const ReleaseModel& model, const DefinedType& type) {
  EntityRow row;
  row.name = type.name;
  row.type = TypeName(model, type.name);
  row.isInstantiable = type.kind != Kind::kIntegers;  // a list of integers is not an instance
  row.form = "kValueType";
  row.valueKind = InfoOf(type.kind).published;
  row.isInFile = type.file.Has(model.release);
  if (!type.base.empty()) row.bases = {type.base};
  if (row.isInstantiable) {
    row.valueReader =
        Fill(kValueReader, {{"class", row.type}, {"value", std::string(InfoOf(type.kind).type)}});
  }
  return row;
}

}  // namespace

std::vector<EntityRow> EntityRows(const ReleaseModel& model) {
  std::vector<EntityRow> rows;
  for (const CoreClass* type : CoreClasses()) {
    if (type->form != CoreForm::kOther) rows.push_back(RowOf(*type));
  }
  for (const auto& type : model.classes) rows.push_back(RowOf(model, type));
  for (const auto& [name, type] : model.definedTypes) rows.push_back(RowOf(model, *type));
  return rows;
}

}  // namespace schemac
