#ifndef KELIFC_GEO_READING_ELEMENT_POINTS_H_
#define KELIFC_GEO_READING_ELEMENT_POINTS_H_

#include <array>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/core/mvector.h"

namespace KelIFC {

// The points with which the object model shows elements of a building, in metres and world
// coordinates.

/// Returns a copy of the points.
Mvector<Point3> PointsOf(const std::vector<Point3>& points);

/// Returns the points of a plane outline in space, at z = 0.
Mvector<Point3> PointsOf(const Outline& outline);

/// Returns the outline of a surface. Arcs are replaced by chords that are at most 0.1 mm from them.
/// The given points stay exactly as they are.
Mvector<Point3> ChordedOutline(const SurfaceRegion& surface);

/// Returns two opposite corners of the smallest rectangle in a plane that contains the points and
/// has a horizontal side: the lower corner at one end, and the upper corner at the other end.
/// `normal` is the unit normal of the plane; it points to the left of the direction from the first
/// corner to the second one. `points` must not be empty.
std::array<Point3, 2> DiagonalOf(const std::vector<Point3>& points, const Vector3& normal);

/// Returns the centre of the lower face of a box, which must not be empty.
Point3 LowerCentreOf(const BuildingBox& box);

}  // namespace KelIFC

#endif  // KELIFC_GEO_READING_ELEMENT_POINTS_H_
