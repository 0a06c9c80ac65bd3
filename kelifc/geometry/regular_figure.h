#ifndef KELIFC_GEOMETRY_REGULAR_FIGURE_H_
#define KELIFC_GEOMETRY_REGULAR_FIGURE_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// What figure an outline is.
enum EGEO_P2RF_PROFILES {
  EGEO_P2RF_NONE = 0,       ///< none of these
  EGEO_P2RF_RECTANGLE = 1,  ///< along the axes, anywhere
  EGEO_P2RF_T = 2,          ///< symmetrical about x = 0, with the flange on top
  EGEO_P2RF_CIRCLE = 3,     ///< at least 10 points round the origin
};

/// Tells what figure an outline is, whatever its first point and its sense. A rectangle sets `a` to
/// its width and `b` to its height; a T sets `a` to the width of the web, `b` to the height, `c` to
/// the width and `d` to the thickness of the flange; a circle sets `a` to the diameter. Outputs may
/// be written even if there is no figure, and those that are not named stay as they were.
KELIFC_API EGEO_P2RF_PROFILES Poly2RegularFigure(const Mvector<Point2>& polygon, double tolerance,
                                                 double& a, double& b, double& c, double& d);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_REGULAR_FIGURE_H_
