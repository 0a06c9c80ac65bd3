#ifndef KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_
#define KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The tolerance for outlines; FlattenTrimmed defines what it means.
inline constexpr double kFlattenTolerance = 0.001;

/// Replaces `points` by the points of a curve, in metres. For a curve in the plane, z is 0.
/// Supported curves are polylines, trimmed lines and circles, and composite curves of these in the
/// plane. For any other curve, and for null, `points` becomes empty.
///
/// `dropClosing` leaves out the last point of a polyline, without a check whether it repeats the
/// first one: an outline that the file does not close loses a corner. `scale` is the factor from
/// the length unit of the file to metres.
template <class Release>
void FlattenCurve(Mvector<Point3>& points, const typename Release::IfcCurve* curve,
                  double tolerance, double scale, bool dropClosing);

/// Returns the x and y of all points of a polyline, in metres. A point that is unset, or has fewer
/// than two coordinates, becomes the origin.
template <class Release>
Mvector<Point2> PolyLinePoints(const typename Release::IfcPolyLine& polyLine, double scale);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_FLATTEN_CURVE_H_
