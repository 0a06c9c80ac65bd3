#ifndef KELIFC_BUILDING_READ_INSTANCE_H_
#define KELIFC_BUILDING_READ_INSTANCE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "kelifc/building/read/attribute.h"
#include "kelifc/building/read/entity.h"
#include "kelifc/core/statement_view.h"
#include "kelifc/server/ifc_server.h"

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
  Value(const Model& owner, StatementView attributes, std::size_t position)
      : model(&owner), view(std::move(attributes)), at(position) {}

  /// False for `$`, `*` and for what is not there.
  bool IsSet() const;

  /// True for a reference to a number that the model does not have.
  bool IsDangling() const;

  /// The number of the instance that a reference leads to; 0 for any other value.
  std::size_t TargetNumber() const;

  /// The instance that a reference leads to; none for any other value.
  Instance Target() const;

  bool IsNumber() const;

  /// A number, also one that is the content of a typed value.
  double Number(double fallback) const;

  /// A text in UTF-8, also one that is the content of a typed value.
  std::string Text() const;

  /// The name of an enumerator without its dots, "T" and "F" for booleans.
  std::string Enumerator() const;

  /// A boolean or logical value. The fallback is for unset and unknown ones.
  bool Truth(bool fallback) const;

  /// The elements of a list.
  std::size_t Size() const;
  Value operator[](std::size_t index) const;

 private:
  Value Content() const;

  const Model* model = nullptr;
  StatementView view;
  std::size_t at = 0;
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
  Entity GetEntity() const { return entity; }
  bool Is(unsigned flag) const { return Has(entity, flag); }

  /// The number in the file, 0 for none. It identifies the instance.
  std::size_t Number() const;

  /// An unset value if the entity does not have the attribute in the release of the model.
  Value Get(Attribute attribute) const;

 private:
  const Model* model = nullptr;
  const IfcUnknown* instance = nullptr;
  std::size_t number = 0;  // 0: not yet known
  Entity entity = Entity::kOther;
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
  Entity EntityOf(const IfcUnknown& instance) const;

 private:
  IfcServer& server;
  IFC_RELEASE release;
  bool isUtf8;

  /// By the address of the name of a class, which is constant. Raw instances are found by name.
  mutable std::unordered_map<const char*, Entity> entities;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_INSTANCE_H_
