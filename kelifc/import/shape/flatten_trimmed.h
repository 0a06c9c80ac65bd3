#ifndef KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_
#define KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_

#include <cstddef>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"
#include "kelifc/import/shape/curve_facts.h"

namespace KelIFC {

/// Appends the points of a trimmed curve to `points`, in metres and with z 0. Appends nothing if
/// the curve has no kind of trim, or if its basis is neither a line nor a circle.
///
/// A segment of a composite curve starts where the previous segment ends. So the start is appended
/// only if `segmentNumber` is 1; use 1 for a curve that is no segment.
///
/// An arc between Cartesian trims becomes chords of a 64th of a circle. Its radius is the distance
/// of the start from the centre, not the radius in the file. `tolerance` is an angle in radians: a
/// chord that would end closer than this to the end of the arc is merged with the last chord.
///
/// An arc between parameters always becomes 32 points, without the last point of the arc. Only
/// whole degrees of a parameter count. The parameters of a line are converted from degrees to
/// radians as well.
///
/// Coordinates that are not finite append at most 68 points, which are not finite either.
void FlattenTrimmed(Mvector<Point3>& points, const TrimmedCurveFacts& curve, double tolerance,
                    std::size_t segmentNumber);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_
