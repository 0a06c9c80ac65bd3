#ifndef KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_
#define KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// What a trimmed curve is cut from.
enum class BasisKind { kOther, kLine, kCircle };

/// Which trims of a curve count.
enum class TrimKind { kNone, kCartesian, kParameter };

/// A trimmed curve of the plane, in metres.
struct TrimmedCurveFacts {
  BasisKind basis = BasisKind::kOther;
  TrimKind trim = TrimKind::kNone;
  bool isForward = true;  ///< from the first trim to the second, along the basis

  Point2 start;  ///< the Cartesian trims; at the origin where they are missing
  Point2 end;

  double startParameter = 0.0;  ///< degrees on a circle; 0 where they are missing
  double endParameter = 0.0;

  Point2 centre;  ///< of a circle
  Vector2 xAxis;  ///< of a circle's position, as the file has it; zero if it does not tell
  double radius = 0.0;

  Point2 linePoint;
  Vector2 lineDirection;  ///< with the length of the line's vector
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_
