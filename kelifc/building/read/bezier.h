#ifndef KELIFC_BUILDING_READ_BEZIER_H_
#define KELIFC_BUILDING_READ_BEZIER_H_

#include <optional>
#include <vector>

#include "kelifc/building/read/path.h"

namespace KelIFC::building {

/// The chords of a Bezier curve with the error kChordError. Several curves of the degree can follow
/// each other: the last control point of one is the first of the next. Without weights, all are 1.
/// None for a degree below 1 or above 32, and if the number of points does not fit the degree.
std::optional<Path> FlattenBezier(const std::vector<Point3>& points,
                                  const std::vector<double>& weights, double degree);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_BEZIER_H_
