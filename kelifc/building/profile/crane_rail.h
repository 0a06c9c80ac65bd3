#ifndef KELIFC_BUILDING_PROFILE_CRANE_RAIL_H_
#define KELIFC_BUILDING_PROFILE_CRANE_RAIL_H_

#include <optional>

#include "kelifc/building/facts/contour.h"

namespace KelIFC::building {

/// The sizes of a crane rail, in metres. The rail is symmetric: a base, a web and a head on top.
struct CraneRail {
  double height = 0.0;
  double headWidth = 0.0;
  double headAtWeb = 0.0;   ///< the depth of the head where its lower face meets the web
  double headAtEdge = 0.0;  ///< the depth of the head at its sides
  double headRadius = 0.0;  ///< of the two upper edges of the head; 0 for sharp edges
  double webThickness = 0.0;
  double baseWidth = 0.0;
  double baseAtWeb = 0.0;   ///< the thickness of the base where its upper face meets the web
  double baseAtEdge = 0.0;  ///< the thickness of the base at its sides

  /// The two places at which the upper face of the base changes its slope: their distance from each
  /// other, and the thickness of the base there. 0 if the slope does not change.
  double bendWidth = 0.0;
  double baseAtBend = 0.0;
};

/// The region of a crane rail, with the head at the top and the centre of the bounding box at the
/// origin. The edges other than those of `headRadius` are sharp. None if the sizes make no rail.
std::optional<Region> CraneRailRegion(const CraneRail& rail);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_CRANE_RAIL_H_
