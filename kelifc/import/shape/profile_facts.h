#ifndef KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_
#define KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The kind of a profile.
enum class ProfileKind {
  kOther,  ///< not supported
  kCircle,
  kRectangle,
  kOutline,  ///< any closed curve
};

/// A profile in its plane. Lengths are in metres.
struct ProfileFacts {
  ProfileKind kind = ProfileKind::kOther;

  // Of a circle or a rectangle.
  bool hasPosition = false;
  Point2 location;       ///< the origin if there is no position
  Vector2 refDirection;  ///< the x direction, not normalised; zero if unset

  double xDim = 0.0;
  double yDim = 0.0;
  double radius = 0.0;

  // Of an outline.
  bool isPolyLine = false;
  Mvector<Point3>
      outline;  ///< flattened, without the closing point; z is 0 unless the curve is in space

  /// All points of a polyline, including the closing one; empty unless ReadExtrusion was asked for
  /// them.
  Mvector<Point2> corners;
};

/// Returns the corners of a rectangle, counter-clockwise from the lower left one, in the
/// coordinates of the profile's plane.
Mvector<Point2> RectangleCorners(const ProfileFacts& rectangle);

/// Converts a point from the coordinates of a rectangle, whose origin is its centre, to those of
/// the profile's plane.
Point2 ToPosition(const ProfileFacts& rectangle, const Point2& point);

/// Returns the outline of a rectangle or of a closed curve, with z 0 for a curve in the plane; an
/// empty list for any other profile.
Mvector<Point3> ContourOf(const ProfileFacts& profile);

/// Drops the z of points.
Mvector<Point2> ToPlane(const Mvector<Point3>& points);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_
