#ifndef KELIFC_BUILDING_FACTS_PRODUCT_FACTS_H_
#define KELIFC_BUILDING_FACTS_PRODUCT_FACTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/facts/transform3.h"

namespace KelIFC::building {

// What a file says of its products, without the classes of a release. Texts are UTF-8, lengths are
// in metres.

/// The layers of an element and where they lie.
struct LayerUsageFacts {
  /// The axis of the placement along which the layers follow each other, 1 to 3; 0 if not stated.
  int axis = 0;
  bool isPositive = true;
  double offset = 0.0;  ///< of the first layer from the reference plane
  bool hasUsage = false;
};

struct LayerFacts {
  std::string material;
  bool hasMaterial = false;
  double thickness = 0.0;
};

struct MaterialFacts {
  std::vector<std::string> materials;  ///< single or list; empty if layers are there
  std::vector<LayerFacts> layers;
  LayerUsageFacts usage;
};

struct OpeningFacts {
  std::size_t id = 0;
  std::string guid;
  std::size_t fill = 0;
  OpeningKind kind = OpeningKind::kVoid;
  Transform3 placement;  ///< to the world
  std::vector<SolidPointer> items;
};

/// A product and its shape.
struct ProductFacts {
  std::size_t id = 0;
  std::size_t line = 0;
  std::string className;  ///< as "IfcColumn"
  std::string guid;
  std::string name;
  std::string tag;
  std::string type;
  std::size_t storey = 0;
  std::size_t whole = 0;         ///< the product that it is a part of; 0 if there is none
  bool hasProductParts = false;  ///< at least one of its parts, at any depth, is a product

  Transform3 placement;  ///< to the world
  std::vector<SolidPointer> items;

  /// The axis of the "Axis" representation, in the coordinates of the placement, if there is one.
  std::optional<SpaceCurve> axis;

  MaterialFacts material;
  std::vector<OpeningFacts> openings;

  /// Why there are no items, or why the placement cannot be read.
  std::optional<Unreadable> fault;
};

/// A model, as it is read.
struct ModelFacts {
  Building head;                       ///< everything of a building but what is made from products
  std::vector<ProductFacts> products;  ///< in the order of the file
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_FACTS_PRODUCT_FACTS_H_
