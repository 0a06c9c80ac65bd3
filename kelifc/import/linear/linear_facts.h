#ifndef KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_
#define KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/import/model/identity.h"
#include "kelifc/import/shape/extrusion_facts.h"
#include "kelifc/import/shape/placement_chain.h"

namespace KelIFC {

/// An item of a representation that can become a column or a beam: an extrusion, that of a clipping
/// too, or a faceted solid.
struct LinearItemFacts {
  std::size_t number = 0;  ///< among the items of its representation, from 1
  bool isExtrusion = false;
  ExtrusionFacts extrusion;
  BRep boundary;  ///< of a faceted solid, in metres
};

/// A representation: the items that are understood.
struct RepresentationFacts {
  std::size_t itemCount = 0;  ///< of all its items
  std::vector<LinearItemFacts> items;
};

/// A representation as a product has it.
struct LinearPartFacts {
  /// Products may share it, those with a mapped one.
  std::shared_ptr<RepresentationFacts> representation;

  bool isShared = false;

  /// The number of the mapped item that brings it, from 1; 0 if it is the only one, or if it is the
  /// product's own representation.
  std::size_t mappingIndex = 0;

  Isometry3 outer;  ///< the origin of the map; the identity without one
};

/// A column or a beam.
struct LinearFacts {
  IdentityFacts identity;
  std::vector<LinearPartFacts> parts;
  PlacementChain chain;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_LINEAR_LINEAR_FACTS_H_
