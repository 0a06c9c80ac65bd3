#ifndef KELIFC_BUILDING_READ_OFFSET_H_
#define KELIFC_BUILDING_READ_OFFSET_H_

#include <vector>

#include "kelifc/building/facts/contour.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::building {

/// The points without z and without those that coincide with the one before.
std::vector<Point2> PlanePoints(const std::vector<Point3>& points);

/// The line at a distance to the left of another one (to the right if it is negative), with mitred
/// corners. A mitre of more than four times the distance is cut off. The last point of a closed
/// line, which repeats the first, is left out of the result.
std::vector<Point2> OffsetLine(std::vector<Point2> points, double distance, bool isClosed);

/// The region of a thickness that has a line in its middle, with square ends. A closed line gives a
/// ring. Without points in the outer contour if the line has no length or the thickness is not
/// positive.
Region Thicken(const std::vector<Point2>& points, double thickness, bool isClosed);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_OFFSET_H_
