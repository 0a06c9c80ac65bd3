#ifndef TESTS_BUILDING_BUILD_MADE_FACTS_H_
#define TESTS_BUILDING_BUILD_MADE_FACTS_H_

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/building/facts/product_facts.h"

namespace KelIFC::building {

// Facts of small models, made without a file.

inline SolidPointer Share(Solid solid) { return std::make_shared<const Solid>(std::move(solid)); }

/// A block of the sizes x, y and z. The centre of its lower face is the origin.
inline SolidPointer Block(double x, double y, double z, std::size_t id = 900) {
  auto profile = std::make_shared<ProfileFacts>();
  profile->id = id + 1;
  profile->shape = ProfileShape::kRectangle;
  profile->parameters[static_cast<std::size_t>(ProfileParameter::kB)] = x;
  profile->parameters[static_cast<std::size_t>(ProfileParameter::kH)] = y;
  Extrusion extrusion;
  extrusion.profile = profile;
  extrusion.depth = z;
  return Share({id, extrusion});
}

inline SolidPointer Mapped(std::vector<SolidPointer> items, const Transform3& transform = {},
                           std::size_t id = 800) {
  return Share({id, MappedItems{transform, std::move(items)}});
}

inline SolidPointer Unknown(LossReason reason, std::size_t at) {
  return Share({at, Unreadable{reason, at}});
}

inline Transform3 MovedTo(double x, double y, double z) {
  Transform3 transform;
  transform.origin = {x, y, z};
  return transform;
}

inline ProductFacts Product(std::size_t id, const std::string& className,
                            std::vector<SolidPointer> items, const Transform3& placement = {}) {
  ProductFacts product;
  product.id = id;
  product.line = 10 * id;
  product.className = className;
  product.guid = "guid" + std::to_string(id);
  product.name = "name" + std::to_string(id);
  product.items = std::move(items);
  product.placement = placement;
  return product;
}

inline ProductFacts Column(std::size_t id, const Transform3& placement = {}) {
  return Product(id, "IfcColumn", {Block(0.3, 0.4, 3.0)}, placement);
}

inline BuildingStorey Storey(std::size_t id, double elevation) {
  BuildingStorey storey;
  storey.id = id;
  storey.elevation = elevation;
  storey.hasElevation = true;
  return storey;
}

}  // namespace KelIFC::building

#endif  // TESTS_BUILDING_BUILD_MADE_FACTS_H_
