#ifndef PYTHON_SOURCE_INSTANCE_H_
#define PYTHON_SOURCE_INSTANCE_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "kelifc/kelifc.h"

#include "python/source/model.h"

namespace KelIFC::python {

/// An instance of a model as Python holds it. It keeps the model alive. If the instance was removed
/// from the model, every use raises ReferenceError.
class Instance {
 public:
  /// The instance with a number. Raises ReferenceError if there is none.
  Instance(std::shared_ptr<Model> model, std::size_t number);

  /// The same if the instance with this number, `item`, is at hand.
  Instance(std::shared_ptr<Model> model, std::size_t number, const IfcUnknown& item);

  /// The instance. Raises ReferenceError.
  IfcUnknown& Get() const {
    IfcUnknown* const item = model->Find(number, epoch, generation);
    if (item == nullptr) RaiseRemoved();
    return *item;
  }

  const std::shared_ptr<Model>& GetModel() const { return model; }
  std::size_t GetNumber() const { return number; }

  /// The description of the entity; null for raw text.
  const EntityDescription* GetEntity() const { return entity; }

  /// The entity: as the schema spells it, or for raw text as the file does.
  std::string EntityName() const;

  /// True for the entity of this name and for those that derive from it. Raises ValueError if no
  /// release knows the name.
  bool IsA(const std::string& name) const;

  friend bool operator==(const Instance& a, const Instance& b) {
    return a.model == b.model && a.number == b.number && a.epoch == b.epoch &&
           a.generation == b.generation;
  }

 private:
  [[noreturn]] void RaiseRemoved() const;

  std::shared_ptr<Model> model;
  std::size_t number;
  std::uint64_t epoch;
  std::uint64_t generation;
  const EntityDescription* entity;
};

/// Raises ValueError if no release has an entity or another class with this name.
void RequireKnownName(const std::string& name);

/// True if both names are equal without regard to the case of ASCII letters.
bool IsSameName(std::string_view a, std::string_view b);

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_INSTANCE_H_
