#ifndef KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_
#define KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/placed_boundary.h"
#include "kelifc/import/model/identity.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

// A linear product is a column, a beam or an IfcMember: it is converted into an axis with a
// section.

/// An item of a representation that can be converted: an extrusion, the extrusion that a clipping
/// cuts, or a faceted solid.
struct LinearItemFacts {
  std::size_t number = 0;  ///< position in the representation, from 1
  bool isExtrusion = false;
  ExtrusionFacts extrusion;  ///< set only if isExtrusion
  bool hasShell = false;     ///< true if the outer shell of a faceted solid is found

  /// Of a faceted solid with a shell, in metres; null otherwise, and if the reader leaves
  /// boundaries out.
  std::shared_ptr<const BRep> boundary;
};

/// A representation and those of its items that can be converted.
struct RepresentationFacts {
  std::size_t itemCount = 0;  ///< number of all items, converted or not
  std::vector<LinearItemFacts> items;
};

/// A representation as one product uses it.
struct LinearPartFacts {
  /// Not null. Several products share the object if they use the same mapped representation.
  std::shared_ptr<const RepresentationFacts> representation;

  bool isShared = false;  ///< it is a mapped representation, whether or not others use it

  /// The position of the mapped item in the product's representation, from 1. It is 0 for the only
  /// mapped item, and for the product's own representation.
  std::size_t mappingIndex = 0;

  Isometry3 outer;  ///< the origin of the representation map; the identity if there is no map
};

/// A linear product. It has no parts if none of its representations can be converted.
struct LinearFacts {
  IdentityFacts identity;
  std::vector<LinearPartFacts> parts;
  PlacementChain chain;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_
