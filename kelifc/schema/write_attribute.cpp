#include "kelifc/schema/write_attribute.h"

#include <string>

#include "kelifc/core/other.h"
#include "kelifc/core/statement_view.h"
#include "kelifc/schema/attribute_table.h"

namespace KelIFC {
namespace {

bool IsTruthValue(const StatementView& value, bool mayBeUnknown) {
  const std::string text = value.GetText(1);
  return text == "T" || text == "F" || (mayBeUnknown && text == "U");
}

bool IsNumber(ATTRIBUTE_KIND kind) { return kind == ATTRIBUTE_INTEGER || kind == ATTRIBUTE_REAL; }

bool IsReference(ATTRIBUTE_KIND kind) {
  return kind == ATTRIBUTE_REFERENCE || kind == ATTRIBUTE_TYPED;
}

/// Returns true if all elements of a list fit `fits`.
template <class Fits>
bool IsListOf(const StatementView& value, Fits fits) {
  if (value.GetKind(1) != ATTRIBUTE_LIST) return false;
  const StatementView elements = value.GetList(1);
  for (std::size_t i = 1; i <= elements.GetCount(); ++i) {
    if (!fits(elements.GetKind(i))) return false;
  }
  return true;
}

/// Returns true if the only position of `value` has a form that the attribute can have.
bool HasForm(const StatementView& value, AttributeKind kind) {
  const ATTRIBUTE_KIND form = value.GetKind(1);
  switch (kind) {
    case AttributeKind::kUnknown:
      return form != ATTRIBUTE_NONE;
    case AttributeKind::kText:
      return form == ATTRIBUTE_TEXT;
    case AttributeKind::kReal:
      return IsNumber(form);
    case AttributeKind::kInteger:
      return form == ATTRIBUTE_INTEGER;
    case AttributeKind::kBoolean:
    case AttributeKind::kLogical:
      return form == ATTRIBUTE_ENUMERATION && IsTruthValue(value, kind == AttributeKind::kLogical);
    case AttributeKind::kEnumeration:
      return form == ATTRIBUTE_ENUMERATION;
    case AttributeKind::kBinary:
      return form == ATTRIBUTE_BINARY;
    case AttributeKind::kReference:
      return IsReference(form);
    case AttributeKind::kTypedValue:
      return form == ATTRIBUTE_TYPED;
    case AttributeKind::kTextList:
      return IsListOf(value, [](ATTRIBUTE_KIND element) { return element == ATTRIBUTE_TEXT; });
    case AttributeKind::kRealList:
      return IsListOf(value, IsNumber);
    case AttributeKind::kIntegerList:
      return IsListOf(value, [](ATTRIBUTE_KIND element) { return element == ATTRIBUTE_INTEGER; });
    case AttributeKind::kReferenceSet:
    case AttributeKind::kReferenceList:
      return IsListOf(value, IsReference);
  }
  return false;
}

/// Replaces one attribute of raw text. The others keep their text.
bool WriteRaw(IfcOther& instance, std::size_t position, std::string_view text) {
  const StatementView attributes = instance.GetAttributes();
  if (position >= attributes.GetCount()) return false;
  std::string statement = "(";
  for (std::size_t i = 1; i <= attributes.GetCount(); ++i) {
    if (i != 1) statement += ',';
    statement += i == position + 1 ? text : attributes.GetSource(i);
  }
  statement += ')';
  IfcOther written;
  written.SetStepEntityName(instance.GetStepEntityName().c_str());
  written.SetServer(instance.GetServer());
  written.Parse(statement.c_str());
  instance = written;
  return true;
}

}  // namespace

bool WriteAttribute(IfcUnknown& instance, std::size_t position, std::string_view text) {
  const StatementView value(text);
  const ATTRIBUTE_KIND form = value.GetKind(1);
  const bool isComplete = value.GetCount() == 1 && value.GetSource(1) == text;
  if (!isComplete || form == ATTRIBUTE_NONE || form == ATTRIBUTE_DERIVED) return false;
  const EntityDescription* const entity = DescribeInstance(instance);
  if (entity == nullptr) {
    auto* const other = dynamic_cast<IfcOther*>(&instance);
    return other != nullptr && WriteRaw(*other, position, text);
  }
  const AttributeDescription* const attribute = entity->AttributeAt(position);
  if (attribute == nullptr || attribute->write == nullptr) return false;
  if (form != ATTRIBUTE_UNSET && !HasForm(value, attribute->kind)) return false;
  return attribute->write(instance, std::string(text).c_str());
}

}  // namespace KelIFC
