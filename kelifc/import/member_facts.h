#ifndef KELIFC_IMPORT_MEMBER_FACTS_H_
#define KELIFC_IMPORT_MEMBER_FACTS_H_

#include <cstddef>
#include <memory>
#include <vector>

#include "kelifc/geometry/brep.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/import/extrusion_facts.h"
#include "kelifc/import/identity.h"
#include "kelifc/import/placement_chain.h"

namespace KelIFC {

/// An item of a representation that can become a column or a beam: an extrusion, that of a clipping
/// too, or a faceted solid.
struct MemberItemFacts {
  std::size_t number = 0;  ///< among the items of its representation, from 1
  bool isExtrusion = false;
  ExtrusionFacts extrusion;
  bool hasShell = false;  ///< true if the outer shell of a faceted solid is found
  BRep boundary;          ///< of a faceted solid, in metres
};

/// A representation: the items that are understood.
struct RepresentationFacts {
  std::size_t itemCount = 0;  ///< of all its items
  std::vector<MemberItemFacts> items;
};

/// A representation as a product has it.
struct MemberPartFacts {
  /// Products may share it, those with a mapped one.
  std::shared_ptr<RepresentationFacts> representation;

  bool isShared = false;

  /// The number of the mapped item that brings it, from 1; 0 if it is the only one, or if it is the
  /// product's own representation.
  std::size_t mappingIndex = 0;

  Isometry3 outer;  ///< the origin of the map; the identity without one
};

/// A column or a beam.
struct MemberFacts {
  IdentityFacts identity;
  std::vector<MemberPartFacts> parts;
  PlacementChain chain;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MEMBER_FACTS_H_
