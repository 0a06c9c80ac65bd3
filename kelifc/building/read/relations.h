#ifndef KELIFC_BUILDING_READ_RELATIONS_H_
#define KELIFC_BUILDING_READ_RELATIONS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/read/instance.h"

namespace KelIFC::building {

/// The elements of a model and how they are related, from one pass over them and the
/// relationships. Instances
/// are named by their numbers; 0 is none. Of several relationships that say different things of the
/// same object, the first in the file counts.
class Relations {
 public:
  explicit Relations(const Model& owner);

  Instance Project() const { return project; }

  /// In the order of the file.
  const std::vector<Instance>& Elements() const { return elements; }
  const std::vector<Instance>& Storeys() const { return storeys; }

  /// What an object is aggregated into, and the relationship that says so.
  struct Whole {
    std::size_t number = 0;
    std::size_t relationship = 0;
  };
  Whole WholeOf(std::size_t object) const { return Look(wholes, object); }

  /// The part of the spatial structure that contains an element.
  std::size_t ContainerOf(std::size_t element) const { return Look(containers, element); }

  /// What defines the material of an object or a type.
  std::size_t MaterialOf(std::size_t object) const { return Look(materials, object); }

  std::size_t TypeOf(std::size_t object) const { return Look(types, object); }

  /// In the order of the file.
  const std::vector<std::size_t>& OpeningsOf(std::size_t element) const;
  std::size_t FillOf(std::size_t opening) const { return Look(fills, opening); }

 private:
  template <class T>
  static T Look(const NumberMap<T>& map, std::size_t number) {
    const auto found = map.find(number);
    return found == map.end() ? T() : found->second;
  }

  void Take(const Instance& instance);
  void TakeRelationship(const Instance& instance);

  Instance project;
  std::vector<Instance> elements;
  std::vector<Instance> storeys;
  NumberMap<bool> isListed;  // of elements and storeys
  NumberMap<Whole> wholes;
  NumberMap<std::size_t> containers;
  NumberMap<std::size_t> materials;
  NumberMap<std::size_t> types;
  NumberMap<std::size_t> fills;
  NumberMap<std::vector<std::size_t>> openings;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_RELATIONS_H_
