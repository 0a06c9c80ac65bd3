#ifndef KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_
#define KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// What every outline is flattened with.
inline constexpr double kFlattenTolerance = 0.001;

/// The points of a curve, in metres, in place of what `points` held; z is 0 for a curve of the
/// plane. Polylines, trimmed lines and circles, and plane composite curves of these are understood;
/// any other curve, and null, gives no points.
///
/// `dropClosing` leaves out the last point of a polyline, whether or not it repeats the first: an
/// outline whose file does not repeat it loses a corner. `scale` is the factor from lengths of the
/// file to metres.
template <class Release>
void FlattenCurve(Mvector<Point3>& points, const typename Release::IfcCurve* curve,
                  double tolerance, double scale, bool dropClosing);

/// All points of a polyline of the plane, in metres; a point of fewer than two dimensions is at the
/// origin.
template <class Release>
Mvector<Point2> PolyLinePoints(const typename Release::IfcPolyLine& polyLine, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_
