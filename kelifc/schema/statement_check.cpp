#include "kelifc/server/statement_check.h"

#include "kelifc/core/detail/cursor.h"
#include "kelifc/schema/attribute_table.h"
#include "kelifc/server/report_collector.h"
#include "kelifc/server/scan_buffer.h"

namespace KelIFC {
namespace {

constexpr bool IsList(AttributeKind kind) {
  return KindOfElements(kind) != AttributeKind::kUnknown;
}

/// Returns true for `.T.` and `.F.`, and on request for `.U.`.
bool IsTruthValue(const FoundValue& value, bool mayBeUnknown) {
  if (value.form != ValueForm::kEnumeration || value.at[1] == '\0' || value.at[2] != '.') {
    return false;
  }
  const char letter = static_cast<char>(value.at[1] & ~0x20);  // in upper case
  return letter == 'T' || letter == 'F' || (mayBeUnknown && letter == 'U');
}

bool HasForm(const FoundValue& value, AttributeKind kind) {
  const ValueForm form = value.form;
  const bool isNumber = form == ValueForm::kInteger || form == ValueForm::kReal;
  switch (kind) {
    case AttributeKind::kText:
      return form == ValueForm::kText;
    case AttributeKind::kReal:
      return isNumber;
    case AttributeKind::kInteger:
      return form == ValueForm::kInteger;
    case AttributeKind::kBoolean:
      return IsTruthValue(value, false);
    case AttributeKind::kLogical:
      return IsTruthValue(value, true);
    case AttributeKind::kEnumeration:
      return form == ValueForm::kEnumeration;
    case AttributeKind::kBinary:
      return form == ValueForm::kBinary;
    case AttributeKind::kReference:
    case AttributeKind::kTypedValue:
      return form == ValueForm::kReference || form == ValueForm::kTyped;
    default:
      return true;
  }
}

}  // namespace

StatementCheck::StatementCheck(IFC_RELEASE schema, STEP_DIALECT notation, LoadReport& target)
    : release(schema), dialect(notation), report(target) {}

void StatementCheck::NoteStatement(const Assignment& statement) {
  stated.Set(statement.number, FindOrAdd(statement.text));
}

std::uint32_t StatementCheck::FindOrAdd(const char* text) {
  std::string name = EntityNameAt(text);
  const auto [at, isNew] = positions.try_emplace(name, static_cast<std::uint32_t>(entities.size()));
  if (isNew) entities.push_back({std::move(name), FindEntity(release, at->first)});
  return at->second;
}

bool StatementCheck::IsStated(std::size_t number) const {
  return stated.Find(number) != detail::NumberIndex::kNone;
}

void StatementCheck::CheckStatement(const ScanBuffer& scanner, const Assignment& statement) {
  const Entity& entity = entities[FindOrAdd(statement.text)];
  const bool isComplex = *detail::SkipBlanks(statement.text) == '(';
  const auto note = [&](LoadFinding kind, const FoundValue& value, std::string_view name) {
    const std::size_t position = isComplex ? 0 : value.attribute;
    const auto offset = static_cast<std::size_t>(value.at - scanner.GetText());
    report.findings.Note(kind, scanner.GetPlace(offset),
                         {statement.number, entity.name, position, std::string(name)});
    auto& counts = kind == LoadFinding::kDanglingReference ? report.danglingByAttribute
                                                           : report.unreadByAttribute;
    ++counts[{entity.name, position, std::string(name)}];
  };
  ValueWalk walk(statement.text, scanner.GetTextEnd(), dialect);
  std::size_t unread = 0;  // the attribute that was noted last
  for (FoundValue value; walk.Next(value);) {
    const AttributeDescription* attribute =
        entity.description == nullptr ? nullptr
                                      : entity.description->AttributeAt(value.attribute - 1);
    const std::string_view name = attribute == nullptr ? std::string_view() : attribute->name;
    if (value.form == ValueForm::kReference && !IsStated(value.number)) {
      note(LoadFinding::kDanglingReference, value, name);
    } else if (attribute != nullptr && unread != value.attribute && !Fits(value, *attribute)) {
      note(LoadFinding::kUnreadAttribute, value, name);
      unread = value.attribute;
    }
  }
}

// Returns whether a value fits its attribute. Values in lists of lists and in typed values always
// fit, because the table does not describe them.
bool StatementCheck::Fits(const FoundValue& value, const AttributeDescription& attribute) const {
  if (value.form == ValueForm::kOmitted || attribute.use == AttributeUse::kDerived) return true;
  const bool isList = IsList(attribute.kind);
  if (value.depth == 2 && isList) return FitsAsElement(value, attribute);
  if (value.depth != 1) return true;
  if (isList) return value.form == ValueForm::kList;
  return HasForm(value, attribute.kind) && LeadsTo(value, attribute);
}

bool StatementCheck::FitsAsElement(const FoundValue& value,
                                   const AttributeDescription& attribute) const {
  // An empty list has an element without a form.
  if (value.form == ValueForm::kNone || value.form == ValueForm::kList) return true;
  return HasForm(value, KindOfElements(attribute.kind)) && LeadsTo(value, attribute);
}

// Returns false if a reference is known to lead to an instance of a class that does not fit.
bool StatementCheck::LeadsTo(const FoundValue& value, const AttributeDescription& attribute) const {
  if (value.form != ValueForm::kReference || attribute.type.empty()) return true;
  const EntityDescription* wanted = FindEntity(release, attribute.type);
  const EntityDescription* found = entities[stated.Find(value.number)].description;
  return wanted == nullptr || found == nullptr || found->IsKindOf(*wanted);
}

}  // namespace KelIFC
