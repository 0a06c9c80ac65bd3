#include "kelifc/building/difference.h"

#include "kelifc/building/compare/element_change.h"
#include "kelifc/building/compare/match_elements.h"

namespace KelIFC {
namespace {

/// The ids of the elements that no match names.
std::vector<std::size_t> IdsOfOthers(const Building& building, const std::vector<bool>& isMatched) {
  std::vector<std::size_t> ids;
  for (std::size_t i = 0; i < building.elements.size(); ++i) {
    if (!isMatched[i]) ids.push_back(building.elements[i].id);
  }
  return ids;
}

}  // namespace

std::string_view TextOf(MatchedBy matchedBy) {
  return matchedBy == MatchedBy::kGuid ? "guid" : "geometry";
}

BuildingDifference Compare(const Building& oldBuilding, const Building& newBuilding,
                           const ComparisonOptions& options) {
  BuildingDifference difference;
  std::vector<bool> isOldMatched(oldBuilding.elements.size());
  std::vector<bool> isNewMatched(newBuilding.elements.size());
  for (const building::ElementMatch& match :
       building::MatchElements(oldBuilding, newBuilding, options.largestMatchDistance)) {
    isOldMatched[match.oldIndex] = true;
    isNewMatched[match.newIndex] = true;
    std::optional<ElementChange> change =
        building::ChangeOf(oldBuilding, oldBuilding.elements[match.oldIndex], newBuilding,
                           newBuilding.elements[match.newIndex], options);
    if (!change) {
      ++difference.same;
      continue;
    }
    change->matchedBy = match.matchedBy;
    difference.changed.push_back(std::move(*change));
  }
  difference.removed = IdsOfOthers(oldBuilding, isOldMatched);
  difference.added = IdsOfOthers(newBuilding, isNewMatched);
  return difference;
}

}  // namespace KelIFC
