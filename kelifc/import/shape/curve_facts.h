#ifndef KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_
#define KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

/// The basis curve of a trimmed curve.
enum class BasisKind { kOther, kLine, kCircle };

/// Which pair of trims of a curve is used.
enum class TrimKind { kNone, kCartesian, kParameter };

/// A trimmed curve in the plane. Lengths are in metres.
struct TrimmedCurveFacts {
  BasisKind basis = BasisKind::kOther;
  TrimKind trim = TrimKind::kNone;
  bool isForward = true;  ///< from the first trim to the second, along the basis

  Point2 start;  ///< the Cartesian trims, each at the origin if it is unset
  Point2 end;

  double startParameter = 0.0;  ///< the parameter trims, in degrees; each 0 if it is unset
  double endParameter = 0.0;

  // Of a circle.
  Point2 centre;
  Vector2 xAxis;  ///< direction of parameter 0, not normalised; zero if it is unset
  double radius = 0.0;

  // Of a line.
  Point2 linePoint;
  Vector2 lineDirection;  ///< with the magnitude of the line's vector
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_CURVE_FACTS_H_
