#ifndef EXPORT_SVG_PLAN_H_
#define EXPORT_SVG_PLAN_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC::exporting::svg {

/// How an element appears on a plan.
enum class Look : std::uint8_t {
  kHidden,  ///< under the floor
  kBelow,   ///< visible below the cut
  kCut,     ///< cut by the plane
  kAbove    ///< above the cut
};

/// An element on a plan.
struct PlanItem {
  std::size_t element = 0;   ///< the index in Building::elements
  Look look = Look::kBelow;  ///< how it appears
  bool hasLabel = false;     ///< false if another plan labels the element
};

/// A horizontal section through the building, and what is on it.
struct Plan {
  const BuildingStorey* storey = nullptr;  ///< null for the elements without a storey
  double floor = 0.0;                      ///< the world z of the floor, in metres
  double cut = 0.0;                        ///< the world z of the plane that cuts, in metres
  std::vector<PlanItem> items;             ///< in the order of the elements
};

/// The plans of a building.
struct PlanSet {
  std::vector<Plan> plans;      ///< by rising floor; the elements without a storey come first
  std::size_t leftOutCuts = 0;  ///< how many cuts of elements on further plans are left out
};

/// Arranges the elements on one plan for each storey, and on one plan for the elements without a
/// storey if there are any. The plans point into `building`.
///
/// Each element with a box is on the plan of its storey. It is also on the plans of the other
/// storeys whose plane cuts it; a slab also on that of the storey that it carries, and a beam on
/// that of the storey under it. If several storeys have the same plane, such as those of several
/// buildings, it is the one whose instance number is nearest to that of its storey. The sum of
/// these further items is limited to about 20 for each element. It takes n log n time.
PlanSet ArrangePlans(const Building& building);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_PLAN_H_
