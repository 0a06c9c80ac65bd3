#include "kelifc/schema/attribute_value.h"

#include "kelifc/core/other.h"
#include "kelifc/core/references/model.h"
#include "kelifc/schema/value_reader.h"

namespace KelIFC {

namespace {

using Kind = AttributeValueKind;

const IfcOther* AsOther(const IfcUnknown& instance) {
  return dynamic_cast<const IfcOther*>(&instance);
}

}  // namespace

IfcUnknown* AttributeValue::AsReference() const {
  if (kind != Kind::kReference) return nullptr;
  if (number != 0) return FindInstance(const_cast<IfcUnknown*>(holder)->GetServer(), number);
  return const_cast<IfcUnknown*>(static_cast<const IfcUnknown*>(object));
}

std::size_t AttributeValue::AsReferenceNumber() const {
  return kind == Kind::kReference ? number : 0;
}

double AttributeValue::AsNumber() const {
  if (kind == Kind::kReal) return real;
  return static_cast<double>(AsInteger());
}

std::int64_t AttributeValue::AsInteger() const { return kind == Kind::kInteger ? integer : 0; }

bool AttributeValue::AsBoolean() const { return AsLogical() == LOGICAL_TRUE; }

LOGICAL_VALUE AttributeValue::AsLogical() const {
  const std::string_view name = AsEnumerator();
  return name == "T" ? LOGICAL_TRUE : name == "F" ? LOGICAL_FALSE : LOGICAL_UNKNOWN;
}

std::string_view AttributeValue::AsText() const {
  return kind == Kind::kText || kind == Kind::kBinary ? text : std::string_view();
}

std::string_view AttributeValue::AsEnumerator() const {
  const bool isEnumerator =
      kind == Kind::kEnumeration || kind == Kind::kBoolean || kind == Kind::kLogical;
  return isEnumerator ? text : std::string_view();
}

std::size_t AttributeValue::Size() const {
  if (kind != Kind::kList) return 0;
  return raw != nullptr ? raw->parts.GetCount() : operations->size(object);
}

AttributeValue AttributeValue::At(std::size_t index) const {
  if (index >= Size()) return {};
  if (raw != nullptr) return ValueReader::OfText(raw->parts, index + 1, *holder);
  return operations->at(object, index, *holder);
}

std::string_view AttributeValue::TypeName() const {
  return kind == Kind::kTyped ? text : std::string_view();
}

AttributeValue AttributeValue::TypedValue() const {
  if (kind != Kind::kTyped) return {};
  if (raw != nullptr) return ValueReader::OfText(raw->parts, 1, *holder);
  return ReadAttribute(*static_cast<const IfcUnknown*>(object), 0);
}

InstanceView::InstanceView(const IfcUnknown& viewed)
    : instance(&viewed), description(DescribeInstance(viewed)) {
  const IfcOther* const other = description == nullptr ? AsOther(viewed) : nullptr;
  if (other != nullptr) statement = other->GetAttributes();
}

std::string_view InstanceView::EntityName() const {
  const IfcOther* const other = description == nullptr ? AsOther(*instance) : nullptr;
  if (other != nullptr) return other->GetStepEntityName();
  return instance->GetStepName();
}

std::size_t InstanceView::Size() const {
  if (description == nullptr) return statement.GetCount();
  return description->form == EntityForm::kValueType ? 1 : description->positionCount;
}

AttributeValue InstanceView::operator[](std::size_t position) const {
  if (description == nullptr) return ValueReader::OfText(statement, position + 1, *instance);
  if (description->form == EntityForm::kValueType) {
    return position == 0 ? description->readValue(*instance) : AttributeValue();
  }
  const AttributeDescription* const attribute = description->AttributeAt(position);
  if (attribute == nullptr) return {};
  if (attribute->read != nullptr) return attribute->read(*instance);
  return attribute->use == AttributeUse::kDerived ? ValueReader::Derived() : AttributeValue();
}

AttributeValue ReadAttribute(const IfcUnknown& instance, std::size_t position) {
  return InstanceView(instance)[position];
}

}  // namespace KelIFC
