#include "tools/schemac/attribute_text.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace schemac {

namespace {

/// Names of attributes that are reserved words of C++.
constexpr std::array<std::string_view, 2> kReservedWords = {"operator", "private"};

/// The enumerator of the value 0 if no row has it.
constexpr std::string_view kUnsetRow = "NONE";

/// The enumerator that a new instance holds. An unknown text reads as this enumerator, too.
std::string InitialEnumerator(const ReleaseModel& model, const Attribute& attribute) {
  if (!attribute.initial.empty()) return Enumerator(attribute.type, attribute.initial);
  const EnumTable& table = *model.FindTable(*model.enumerations.at(attribute.type));
  for (const auto& [text, value] : table.rows) {
    if (value == 0) return Enumerator(attribute.type, text);
  }
  return Enumerator(attribute.type, "");
}

/// Returns true for a set that is not in the file. Its members have no owner.
bool IsInverseSet(const Attribute& attribute) {
  return attribute.kind == Kind::kSet && !attribute.inFile;
}

/// Returns true if a getter returns a reference to the data member, which then has the type of the
/// value.
bool IsReturnedByReference(const Entity& entity, const Attribute& attribute) {
  return std::any_of(entity.operations.begin(), entity.operations.end(),
                     [&](const Operation& operation) {
                       return operation.isConst && operation.name == "Get" + attribute.name;
                     });
}

}  // namespace

std::string MemberName(const std::string& attribute) {
  std::string name = attribute;
  name[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[0])));
  const bool isReserved =
      std::find(kReservedWords.begin(), kReservedWords.end(), name) != kReservedWords.end();
  return isReserved ? name + "Value" : name;
}

std::string StoredType(const Attribute& attribute, std::size_t release) {
  const KindInfo& info = InfoOf(attribute.kind);
  return info.holdsNamedType ? attribute.type : std::string(ValueType(info, release));
}

std::string TableName(const std::string& enumeration) { return "k" + enumeration + "Table"; }

std::string Enumerator(const std::string& enumeration, const std::string& row) {
  return enumeration + "_" + (row.empty() ? std::string(kUnsetRow) : row);
}

TemplateWords WordsOf(const ReleaseModel& model, const Attribute& attribute) {
  const KindInfo& info = InfoOf(attribute.kind);
  TemplateWords words = {
      {"Name", attribute.name},
      {"member", MemberName(attribute.name)},
      {"stored", StoredType(attribute, model.release)},
      {"view", std::string(info.view)},
      {"target", info.target.empty() ? attribute.type : std::string(info.target)},
      {"text", attribute.initial.empty() ? "" : "{\"" + attribute.initial + "\"}"},
  };
  if (attribute.kind == Kind::kCoreEnum) words["table"] = TableName(attribute.type);
  if (attribute.kind == Kind::kEnum) {
    words["table"] = TableName(attribute.type);
    words["start"] = InitialEnumerator(model, attribute);
    words["missing"] = attribute.initial.empty() ? "" : ", " + words["start"];
  }
  return words;
}

std::string FieldType(const ReleaseModel& model, const ResolvedClass& type,
                      const Attribute& attribute) {
  if (IsInverseSet(attribute)) return "InverseSet";
  if (attribute.kind == Kind::kInstance) return "CachedInstance<" + attribute.type + ">";
  const KindInfo& info = InfoOf(attribute.kind);
  const bool isSmaller = !info.field.empty() && !IsReturnedByReference(*type.entity, attribute);
  return isSmaller ? std::string(info.field) : StoredType(attribute, model.release);
}

std::string FieldInitializer(const ReleaseModel& model, const Attribute& attribute) {
  if (attribute.isOwnerless || IsInverseSet(attribute)) return {};
  return Fill(InfoOf(attribute.kind).initializer, WordsOf(model, attribute));
}

std::string ReadPart(const ReleaseModel& model, const Attribute& attribute) {
  return Fill(InfoOf(attribute.kind).reader, WordsOf(model, attribute));
}

std::string WritePart(const ReleaseModel& model, const Attribute& attribute) {
  if (!attribute.writtenAs.empty()) return "Literal(\"" + attribute.writtenAs + "\")";
  return Fill(InfoOf(attribute.kind).writer, WordsOf(model, attribute));
}

}  // namespace schemac
