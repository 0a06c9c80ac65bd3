#ifndef KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_
#define KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_

#include <cstddef>

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"
#include "kelifc/import/shape/curve_facts.h"

namespace KelIFC {

/// Appends the points of a trimmed curve to `points`, with z 0.
///
/// A segment of a composite curve begins where the one before ends, so only the first, number 1,
/// adds its start. An arc between points becomes chords of a 64th of a circle; one between
/// parameters 32 points, without the last. The arc is that of the start's distance from the centre,
/// whatever the radius. Parameters count whole degrees, on a line too, where they are turned into
/// radians. What has no kind of trim, or no line or circle for basis, adds nothing.
///
/// Coordinates that are not numbers give points that are not numbers, at most 68 of them.
void FlattenTrimmed(Mvector<Point3>& points, const TrimmedCurveFacts& curve, double tolerance,
                    std::size_t segmentNumber);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_FLATTEN_TRIMMED_H_
