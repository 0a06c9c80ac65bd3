#ifndef KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_
#define KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_

#include "kelifc/core/mvector.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

/// What a profile is, as far as it is understood.
enum class ProfileKind {
  kOther,
  kCircle,
  kRectangle,
  kOutline,  ///< any closed curve
};

/// A profile in its plane, in metres.
struct ProfileFacts {
  ProfileKind kind = ProfileKind::kOther;

  // Of a circle or a rectangle.
  bool hasPosition = false;
  Point2 location;       ///< at the origin if there is no position
  Vector2 refDirection;  ///< as the file has it, zero if it does not tell

  double xDim = 0.0;
  double yDim = 0.0;
  double radius = 0.0;

  // Of an outline.
  bool isPolyLine = false;
  Mvector<Point3> outline;  ///< flattened, without the closing point; z is 0 in the plane

  /// All points of a polyline, the closing one too, if they were wanted.
  Mvector<Point2> corners;
};

/// The corners of a rectangle, counter-clockwise from the lower left one, turned and moved to its
/// position.
Mvector<Point2> RectangleCorners(const ProfileFacts& rectangle);

/// A point of the rectangle's own frame, turned and moved to its position.
Point2 ToPosition(const ProfileFacts& rectangle, const Point2& point);

/// The outline of a rectangle or of a closed curve, with z 0 in the plane; of any other profile no
/// points.
Mvector<Point3> ContourOf(const ProfileFacts& profile);

/// The x and y of points.
Mvector<Point2> ToPlane(const Mvector<Point3>& points);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_PROFILE_FACTS_H_
