#ifndef KELIFC_BUILDING_READ_INSTANCE_H_
#define KELIFC_BUILDING_READ_INSTANCE_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "kelifc/building/read/attribute.h"
#include "kelifc/building/read/entity.h"
#include "kelifc/schema/attribute_value.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/source_statements.h"

namespace KelIFC {
class IfcUnknown;
}

namespace KelIFC::building {

class Instance;
class Model;

/// One value of an instance. A value of another kind than an operation expects counts as unset. It
/// is valid as long as the model is.
class Value {
 public:
  /// An unset value.
  Value() = default;
  Value(const Model& owner, AttributeValue kept) : model(&owner), value(std::move(kept)) {}

  /// False for `$`, `*`, and what is not there or not kept.
  bool IsSet() const;

  /// True for a reference to a number that the model does not have.
  bool IsDangling() const;

  /// The number of the instance that a reference leads to; 0 for any other value.
  std::size_t TargetNumber() const { return value.AsReferenceNumber(); }

  /// The instance that a reference leads to; none for any other value.
  Instance Target() const;

  bool IsNumber() const;

  /// A number, also one that is the content of a typed value.
  double Number(double fallback) const;

  /// A text in UTF-8, also one that is the content of a typed value.
  std::string Text() const;

  /// The name of an enumerator without its dots, "T" and "F" for booleans.
  std::string Enumerator() const { return std::string(value.AsEnumerator()); }

  /// A boolean or logical value. The fallback is for unset and unknown ones.
  bool Truth(bool fallback) const;

  /// The elements of a list.
  std::size_t Size() const { return value.Size(); }
  Value operator[](std::size_t index) const;

 private:
  AttributeValue Content() const;

  const Model* model = nullptr;
  AttributeValue value;
};

/// What all instances of a class have in common.
struct InstanceClass {
  Entity entity = Entity::kOther;

  /// By attribute; null for those that the class does not have or keep.
  std::array<AttributeReader, kAttributeCount> readers = {};
  bool isRaw = false;  ///< the instance keeps the text of its statement
};

/// A small handle of an instance of a model, or of none. Handles are copied freely.
class Instance {
 public:
  /// None.
  Instance() = default;

  /// `itemNumber` is 0 if it is not known.
  Instance(const Model& owner, const IfcUnknown* item, std::size_t itemNumber = 0);

  explicit operator bool() const { return instance != nullptr; }

  /// kOther for none and for entities that the reading does not know.
  Entity GetEntity() const { return type == nullptr ? Entity::kOther : type->entity; }
  bool Is(unsigned flag) const { return Has(GetEntity(), flag); }

  /// The number in the file, 0 for none. It identifies the instance.
  std::size_t Number() const;

  /// An unset value if the entity does not have the attribute in the release of the model, or if
  /// the instance does not keep it.
  Value Get(Attribute attribute) const;

  /// The GlobalId, as the file states it. Empty if the file has none that can be decoded; an
  /// identifier that the load made instead does not count.
  std::string StatedGlobalId() const;

  /// The name of an enumerator without its dots. If the class does not keep the attribute, it is
  /// read from the statement in the source of the model. Empty if that is not possible.
  std::string StatedEnumerator(Attribute attribute) const;

 private:
  const Model* model = nullptr;
  const IfcUnknown* instance = nullptr;
  std::size_t number = 0;  // 0: not yet known
  const InstanceClass* type = nullptr;
};

/// A model, as the reading sees it: instances with entities and attributes. It never changes the
/// model.
class Model {
 public:
  explicit Model(IfcServer& owner);

  IfcServer& Server() const { return server; }
  IFC_RELEASE Release() const { return release; }

  /// Texts of the classic dialect are ISO 8859-1, those of ISO 10303-21 are UTF-8.
  std::string Decode(std::string_view text) const;

  Instance Find(std::size_t number) const;

  /// The statements of the instances in the source of the model.
  SourceStatements& Statements() const { return statements; }
  const InstanceClass& ClassOf(const IfcUnknown& instance) const;

 private:
  Entity EntityOfRaw(std::string_view name) const;
  InstanceClass Describe(const IfcUnknown& instance, std::string_view name) const;

  IfcServer& server;
  IFC_RELEASE release;
  bool isUtf8;
  mutable SourceStatements statements;

  // By the address of the name of a class, which is constant. Classes of raw text are by entity.
  mutable std::unordered_map<const char*, InstanceClass> classes;
  // Those of `classes` that were found last, at a place that depends on the address.
  mutable std::array<std::pair<const char*, const InstanceClass*>, 256> recent = {};
  mutable std::array<InstanceClass, kEntityCount> rawClasses;
  // The names of raw text that were found last, at a place that depends on the text.
  mutable std::array<std::pair<std::string, Entity>, 64> recentRaw = {};
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_INSTANCE_H_
