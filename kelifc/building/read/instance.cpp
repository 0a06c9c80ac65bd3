#include "kelifc/building/read/instance.h"

#include <sstream>
#include <string_view>

#include "kelifc/core/other.h"
#include "kelifc/core/unknown.h"
#include "kelifc/platform/utf8.h"

namespace KelIFC::building {
namespace {

// The attributes of an instance, parsed from what it writes.
StatementView AttributesOf(const IfcUnknown& instance) {
  if (const auto* other = dynamic_cast<const IfcOther*>(&instance)) return other->GetAttributes();
  std::ostringstream out;
  instance.Write(out);
  const std::string text = out.str();
  const std::size_t begin = text.find('(');
  return StatementView(begin == std::string::npos ? std::string_view()
                                                  : std::string_view(text).substr(begin + 1));
}

}  // namespace

bool Value::IsSet() const {
  const ATTRIBUTE_KIND kind = view.GetKind(at);
  return kind != ATTRIBUTE_NONE && kind != ATTRIBUTE_UNSET && kind != ATTRIBUTE_DERIVED;
}

bool Value::IsDangling() const { return view.GetKind(at) == ATTRIBUTE_REFERENCE && !Target(); }

std::size_t Value::TargetNumber() const { return view.GetReference(at); }

Instance Value::Target() const {
  const std::size_t number = TargetNumber();
  return number == 0 ? Instance() : model->Find(number);
}

Value Value::Content() const {
  if (view.GetKind(at) != ATTRIBUTE_TYPED) return *this;
  return Value(*model, view.GetList(at), 1);
}

bool Value::IsNumber() const {
  const Value content = Content();
  const ATTRIBUTE_KIND kind = content.view.GetKind(content.at);
  return kind == ATTRIBUTE_INTEGER || kind == ATTRIBUTE_REAL;
}

double Value::Number(double fallback) const {
  const Value content = Content();
  return content.IsNumber() ? content.view.GetNumber(content.at) : fallback;
}

std::string Value::Text() const {
  const Value content = Content();
  if (content.view.GetKind(content.at) != ATTRIBUTE_TEXT) return {};
  return model->Decode(content.view.GetText(content.at));
}

std::string Value::Enumerator() const {
  return view.GetKind(at) == ATTRIBUTE_ENUMERATION ? view.GetText(at) : std::string();
}

bool Value::Truth(bool fallback) const {
  const std::string name = Enumerator();
  return name == "T" || (name != "F" && fallback);
}

std::size_t Value::Size() const {
  return view.GetKind(at) == ATTRIBUTE_LIST ? view.GetList(at).GetCount() : 0;
}

Value Value::operator[](std::size_t index) const {
  return index < Size() ? Value(*model, view.GetList(at), index + 1) : Value();
}

Instance::Instance(const Model& owner, const IfcUnknown* item, std::size_t itemNumber)
    : model(&owner),
      instance(item),
      number(itemNumber),
      entity(item ? owner.EntityOf(*item) : Entity::kOther) {}

std::size_t Instance::Number() const {
  if (instance == nullptr || number != 0) return number;
  return model->Server().Find(instance);
}

Value Instance::Get(Attribute attribute) const {
  if (instance == nullptr) return {};
  const auto position = PositionOf(model->Release(), entity, attribute);
  return position ? Value(*model, AttributesOf(*instance), *position + 1) : Value();
}

Model::Model(IfcServer& owner)
    : server(owner),
      release(owner.GetRelease()),
      isUtf8(owner.GetDialect() == STEP_DIALECT_ISO) {}

std::string Model::Decode(std::string_view text) const {
  if (isUtf8) return ToUtf8(text);
  std::string decoded;
  decoded.reserve(text.size());
  for (const char c : text) AppendUtf8(decoded, static_cast<unsigned char>(c));
  return decoded;
}

Instance Model::Find(std::size_t number) const { 
  return Instance(*this, server.GetItem(number), number);
}

Entity Model::EntityOf(const IfcUnknown& instance) const {
  const char* const name = instance.GetStepName();
  const auto found = entities.find(name);
  if (found != entities.end()) return found->second;
  if (const auto* other = dynamic_cast<const IfcOther*>(&instance)) {
    return FindEntityByName(other->GetStepEntityName());
  }
  return entities.emplace(name, FindEntityByName(name)).first->second;
}

}  // namespace KelIFC::building
