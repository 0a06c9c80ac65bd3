#include "tools/schemac/attribute_rows.h"

#include <algorithm>

#include "tools/schemac/attribute_text.h"
#include "tools/schemac/core_classes.h"

namespace schemac {

namespace {

using Role = ResolvedOperation::Role;

/// Makes the rows of one class.
class RowWriter {
 public:
  RowWriter(const ReleaseModel& model, const ResolvedClass& type) : model(model), type(type) {
    std::copy_if(type.reads.begin(), type.reads.end(), std::back_inserter(reads),
                 [](const Step& step) { return step.act != Step::Act::kLink; });
  }

  std::vector<AttributeRow> Run() {
    const std::size_t first = PositionCount(model, type.recordBase);
    for (std::size_t i = 0; i < type.positions.size(); ++i) {
      AttributeRow row = PositionRow(i);
      row.position = static_cast<int>(first + i);
      rows.push_back(std::move(row));
    }
    for (const Attribute* attribute : type.attributes) {
      if (!attribute->inFile) AddInverse(*attribute);
    }
    return std::move(rows);
  }

 private:
  AttributeRow PositionRow(std::size_t index) const {
    const Step& step = type.positions[index];
    AttributeRow row;
    row.name = step.name;
    if (const Attribute* attribute = model.FindAttribute(type, step.name)) {
      Describe(*attribute, row);
    }
    if (step.kind) {
      row.kind = InfoOf(*step.kind).published;
      row.isRequired = step.required.Has(model.release);
    }
    if (step.act == Step::Act::kStar) {
      row.use = "kDerived";
      row.getter = row.setter = "";
      row.isRequired = false;
    } else if (IsKept(index)) {
      row.use = "kKept";
      row.isWritten = IsWritten(step);
      AddReader(*model.FindAttribute(type, step.name), row);
    }
    return row;
  }

  void AddReader(const Attribute& attribute, AttributeRow& row) const {
    const std::string nameSpace(kReleases[model.release].nameSpace);
    const std::string name = nameSpace + "::" + type.entity->name;
    TemplateWords words = WordsOf(model, attribute);
    for (const char* word : {"table", "start"}) {
      if (words.count(word) != 0) words[word] = nameSpace + "::" + words[word];
    }
    row.pointer = PointerName(attribute.name);
    row.member = words["member"];
    words["class"] = name;
    words["pointer"] = "Kept<" + name + ">::" + row.pointer;
    row.reader = Fill(InfoOf(attribute.kind).valueReader, words);
    row.setting = Fill(InfoOf(attribute.kind).valueWriter, words);
  }

  /// Sets the fields that do not depend on the position of the attribute.
  void Describe(const Attribute& attribute, AttributeRow& row) const {
    const KindInfo& info = InfoOf(attribute.kind);
    row.name = attribute.published.empty() ? attribute.name : attribute.published;
    row.getter = NameOf(type, attribute.name, {Role::kGetter});
    row.setter = NameOf(type, attribute.name, {Role::kSetter, Role::kAdder});
    row.type = info.target.empty() ? attribute.type : info.target;
    row.kind = info.published;
    row.isRequired = attribute.required.Has(model.release);
  }

  /// Returns the public operation with the first of these roles that the class or one of its bases
  /// has.
  std::string NameOf(const ResolvedClass& owner, const std::string& attribute,
                     const std::vector<Role>& roles) const {
    for (const Role role : roles) {
      for (const auto& operation : owner.operations) {
        const bool isFound = operation.role == role && operation.attribute == attribute;
        if (isFound && !operation.isProtected) return operation.name;
      }
    }
    for (const auto& base : owner.bases) {
      const ResolvedClass* other = model.Find(base);
      if (other == nullptr) continue;
      if (std::string name = NameOf(*other, attribute, roles); !name.empty()) return name;
    }
    return {};
  }

  /// Each step of Parse reads one position of the statement. So a load keeps an attribute if its
  /// positions in both orders are the same.
  bool IsKept(std::size_t index) const {
    if (!type.hasParse || index >= reads.size()) return false;
    const Step& read = reads[index];
    const bool isSame =
        read.act == Step::Act::kAttribute && read.name == type.positions[index].name;
    return isSame && !model.FindAttribute(type, read.name)->isIgnored;
  }

  bool IsWritten(const Step& step) const {
    if (!type.hasWrite || !model.FindAttribute(type, step.name)->writtenAs.empty()) return false;
    return std::any_of(type.writes.begin(), type.writes.end(), [&](const Step& write) {
      return write.act == Step::Act::kAttribute && write.name == step.name;
    });
  }

  void AddInverse(const Attribute& attribute) {
    AttributeRow row;
    Describe(attribute, row);
    const bool isInStatement =
        std::any_of(rows.begin(), rows.end(),
                    [&](const AttributeRow& other) { return other.name == row.name; });
    if (isInStatement || row.getter.empty() || row.kind.empty()) return;
    row.use = "kInverse";
    rows.push_back(std::move(row));
  }

  const ReleaseModel& model;
  const ResolvedClass& type;
  std::vector<Step> reads;
  std::vector<AttributeRow> rows;
};

}  // namespace

std::string PointerName(const std::string& attribute) { return "k" + attribute; }

std::size_t PositionCount(const ReleaseModel& model, std::string_view name) {
  if (const CoreClass* core = FindCoreClass(name)) return AttributesOf(*core).size();
  const ResolvedClass* type = model.Find(name);
  return type == nullptr ? 0 : PositionCount(model, type->recordBase) + type->positions.size();
}

std::vector<AttributeRow> RowsOf(const ReleaseModel& model, const ResolvedClass& type) {
  return RowWriter(model, type).Run();
}

}  // namespace schemac
