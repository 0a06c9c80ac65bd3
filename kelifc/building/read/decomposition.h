#ifndef KELIFC_BUILDING_READ_DECOMPOSITION_H_
#define KELIFC_BUILDING_READ_DECOMPOSITION_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/read/relations.h"

namespace KelIFC::building {

/// Which elements are products, and what they are parts of. It follows chains of any length without
/// recursion, each link once.
class Decomposition {
 public:
  Decomposition(const Model& owner, const Relations& relations);

  /// In the order of the file.
  const std::vector<Instance>& Products() const { return products; }

  /// The product that a product is a part of; 0 if there is none.
  std::size_t WholeOf(std::size_t product) const;

  /// True if a part of the product, at any depth, is a product.
  bool HasProductParts(std::size_t product) const { return withParts.count(product) != 0; }

  /// The relationship through which a product is a part of itself; 0 if it is not.
  std::size_t CycleOf(std::size_t product) const;

  /// How many wholes a product is nested in.
  std::size_t DepthOf(std::size_t product) const;

  /// The storey that contains a product, or the whole that it belongs to: directly, or through a
  /// space or another part of the spatial structure below the storey. 0 if there is none.
  std::size_t StoreyOf(std::size_t product);

 private:
  struct Node {
    bool isComplete = false;
    bool spreads = false;  // its parts are products
    bool isProduct = false;
    std::size_t depth = 0;
    std::size_t cycle = 0;
  };

  void Complete(const Instance& element);
  Node Make(const Instance& instance, const Node* whole) const;
  const Node* Find(std::size_t number) const;

  const Model& model;
  const Relations& relations;
  std::vector<Instance> products;
  NumberMap<Node> nodes;
  NumberMap<bool> withParts;
  NumberMap<std::size_t> storeys;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_DECOMPOSITION_H_
