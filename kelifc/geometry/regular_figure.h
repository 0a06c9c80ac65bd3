#ifndef KELIFC_GEOMETRY_REGULAR_FIGURE_H_
#define KELIFC_GEOMETRY_REGULAR_FIGURE_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// The figures that Poly2RegularFigure recognises.
enum EGEO_P2RF_PROFILES {
  EGEO_P2RF_NONE = 0,       ///< no figure
  EGEO_P2RF_RECTANGLE = 1,  ///< sides parallel to the axes, at any position
  EGEO_P2RF_T = 2,          ///< symmetrical about x = 0, with the flange on top
  EGEO_P2RF_CIRCLE = 3,     ///< at least 10 points on a circle around the origin
};

/// Recognises the figure of an outline. Neither its first point nor the direction in which it turns
/// matters. Lengths and the tolerance are in the unit of the points.
///
///  - A rectangle sets `a` to its width and `b` to its height.
///  - A T sets `a` to the width of the web, `b` to the height, `c` to the width of the flange and
///    `d` to its thickness.
///  - A circle sets `a` to the diameter.
///
/// An output that is not listed for the figure is left unchanged. If the result is EGEO_P2RF_NONE,
/// any output may have changed.
KELIFC_API EGEO_P2RF_PROFILES Poly2RegularFigure(const Mvector<Point2>& polygon, double tolerance,
                                                 double& a, double& b, double& c, double& d);

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_REGULAR_FIGURE_H_
