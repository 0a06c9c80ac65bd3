#include "kelifc/building/read/instance.h"

#include <algorithm>
#include <cstdint>

#include "kelifc/core/global_id.h"
#include "kelifc/core/other.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/core/unknown.h"
#include "kelifc/platform/utf8.h"

namespace KelIFC::building {

using Kind = AttributeValueKind;

// A reference that neither names an instance nor holds one is unset.
bool Value::IsSet() const {
  if (value.GetKind() == Kind::kReference) {
    return value.AsReferenceNumber() != 0 || value.AsReference() != nullptr;
  }
  return value.GetKind() != Kind::kUnset && value.GetKind() != Kind::kDerived;
}

bool Value::IsDangling() const { return TargetNumber() != 0 && !Target(); }

Instance Value::Target() const {
  const IfcUnknown* const target = value.AsReference();
  return target == nullptr ? Instance() : Instance(*model, target, TargetNumber());
}

AttributeValue Value::Content() const {
  return value.GetKind() == Kind::kTyped ? value.TypedValue() : value;
}

bool Value::IsNumber() const {
  const Kind kind = Content().GetKind();
  return kind == Kind::kInteger || kind == Kind::kReal;
}

double Value::Number(double fallback) const {
  if (value.GetKind() == Kind::kReal) return value.AsNumber();
  const AttributeValue content = Content();
  const bool isNumber = content.GetKind() == Kind::kInteger || content.GetKind() == Kind::kReal;
  return isNumber ? content.AsNumber() : fallback;
}

std::string Value::Text() const {
  const AttributeValue content = Content();
  return content.GetKind() == Kind::kText ? model->Decode(content.AsText()) : std::string();
}

bool Value::Truth(bool fallback) const {
  const LOGICAL_VALUE truth = value.AsLogical();
  return truth == LOGICAL_TRUE || (truth != LOGICAL_FALSE && fallback);
}

Value Value::operator[](std::size_t index) const {
  return model == nullptr ? Value() : Value(*model, value.At(index));
}

Instance::Instance(const Model& owner, const IfcUnknown* item, std::size_t itemNumber)
    : model(&owner),
      instance(item),
      number(itemNumber),
      type(item == nullptr ? nullptr : &owner.ClassOf(*item)) {}

std::size_t Instance::Number() const {
  if (instance == nullptr || number != 0) return number;
  return model->Server().Find(instance);
}

Value Instance::Get(Attribute attribute) const {
  if (instance == nullptr) return {};
  if (!type->isRaw) {
    const AttributeReader read = type->readers[static_cast<std::size_t>(attribute)];
    return read == nullptr ? Value() : Value(*model, read(*instance));
  }
  const auto position = PositionOf(model->Release(), type->entity, attribute);
  return position ? Value(*model, ReadAttribute(*instance, *position)) : Value();
}

std::string Instance::StatedGlobalId() const {
  std::string id = Get(Attribute::kGlobalId).Text();
  const bool isMade = model != nullptr && model->Statements().IsMadeId(Number(), id);
  if (isMade || !IsGlobalId64(id.c_str())) id.clear();
  return id;
}

std::string Instance::StatedEnumerator(Attribute attribute) const {
  if (instance == nullptr) return {};
  const auto position = PositionOf(model->Release(), type->entity, attribute);
  const bool isKept = type->isRaw || type->readers[static_cast<std::size_t>(attribute)] != nullptr;
  if (isKept || !position) return Get(attribute).Enumerator();
  std::string entity(instance->GetStepName());
  for (char& c : entity) c = ascii::ToUpperCase(c);
  const StatementView statement = model->Statements().Read(Number(), entity);
  const bool isEnumerator = statement.GetKind(*position + 1) == ATTRIBUTE_ENUMERATION;
  return isEnumerator ? statement.GetText(*position + 1) : std::string();
}

Model::Model(IfcServer& owner)
    : server(owner),
      release(owner.GetRelease()),
      isUtf8(owner.GetDialect() == STEP_DIALECT_ISO),
      statements(owner) {
  for (std::size_t i = 0; i < kEntityCount; ++i) {
    rawClasses[i].entity = static_cast<Entity>(i);
    rawClasses[i].isRaw = true;
  }
}

std::string Model::Decode(std::string_view text) const {
  if (isUtf8) return ToUtf8(text);
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (std::all_of(text.begin(), text.end(), isAscii)) return std::string(text);
  std::string decoded;
  decoded.reserve(text.size());
  for (const char c : text) AppendUtf8(decoded, static_cast<unsigned char>(c));
  return decoded;
}

Instance Model::Find(std::size_t number) const {
  return Instance(*this, number == 0 ? nullptr : server.GetItem(number), number);
}

const InstanceClass& Model::ClassOf(const IfcUnknown& instance) const {
  const char* const name = instance.GetStepName();
  // Names are a few bytes long, so neighbours differ in the upper bits of the place.
  const auto address = reinterpret_cast<std::uintptr_t>(name);
  auto& [recentName, recentClass] =
      recent[(address ^ address >> 4 ^ address >> 10) % recent.size()];
  if (recentName == name && recentClass != nullptr) return *recentClass;
  const auto found = classes.find(name);
  if (found != classes.end()) {
    recentName = name;
    recentClass = &found->second;
    return found->second;
  }
  if (const auto* other = CachedCast<IfcOther>(&instance)) {
    return rawClasses[static_cast<std::size_t>(EntityOfRaw(other->GetStepEntityName()))];
  }
  return classes.insert_or_assign(name, Describe(instance, name)).first->second;
}

// A model has few names of raw text, so most of them are among those that were found last.
Entity Model::EntityOfRaw(std::string_view name) const {
  if (name.empty()) return FindEntityByName(name);
  const std::size_t key = name.size() + std::size_t{7} * static_cast<unsigned char>(name.back());
  auto& [recentName, entity] = recentRaw[key % recentRaw.size()];
  if (recentName != name) {
    entity = FindEntityByName(name);
    recentName = name;
  }
  return entity;
}

InstanceClass Model::Describe(const IfcUnknown& instance, std::string_view name) const {
  InstanceClass described;
  described.entity = FindEntityByName(name);
  const EntityDescription* const description = DescribeInstance(instance);
  if (description == nullptr) return described;
  for (std::size_t i = 0; i < kAttributeCount; ++i) {
    const auto position = PositionOf(release, described.entity, static_cast<Attribute>(i));
    if (!position) continue;
    const AttributeDescription* const attribute = description->AttributeAt(*position);
    if (attribute != nullptr) described.readers[i] = attribute->read;
  }
  return described;
}

}  // namespace KelIFC::building
