#ifndef KELIFC_BUILDING_PROFILE_ROUNDED_CONTOUR_H_
#define KELIFC_BUILDING_PROFILE_ROUNDED_CONTOUR_H_

#include <optional>
#include <vector>

#include "kelifc/building/facts/contour.h"

namespace KelIFC::building {

/// A corner of a polygon that an arc tangent to both edges may round.
struct RoundedCorner {
  Point2 point;
  double radius = 0.0;  ///< in metres; 0 for a sharp corner
};

/// The contour of a polygon with rounded corners. None if a radius is negative, if two arcs need
/// more than the edge between them, or if fewer than three points are left.
std::optional<Contour> RoundedContour(const std::vector<RoundedCorner>& corners);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_PROFILE_ROUNDED_CONTOUR_H_
