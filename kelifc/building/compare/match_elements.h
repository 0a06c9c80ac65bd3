#ifndef KELIFC_BUILDING_COMPARE_MATCH_ELEMENTS_H_
#define KELIFC_BUILDING_COMPARE_MATCH_ELEMENTS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/building/difference.h"

namespace KelIFC::building {

/// An element of each revision, by its index.
struct ElementMatch {
  std::size_t oldIndex = 0;
  std::size_t newIndex = 0;
  MatchedBy matchedBy = MatchedBy::kGuid;
};

/// Matches the elements of two revisions, each at most once. The result is in the order of the old
/// revision.
std::vector<ElementMatch> MatchElements(const Building& oldBuilding, const Building& newBuilding,
                                        double largestDistance);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_COMPARE_MATCH_ELEMENTS_H_
