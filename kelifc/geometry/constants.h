#ifndef KELIFC_GEOMETRY_CONSTANTS_H_
#define KELIFC_GEOMETRY_CONSTANTS_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

// Constants of the whole process. They are constant expressions, so they can be used during the
// initialisation of other objects.

inline constexpr Vector2 Zero2;
inline constexpr Vector2 AxisX2(1.0, 0.0);
inline constexpr Vector2 AxisY2(0.0, 1.0);
inline constexpr Point2 Origin2;

inline constexpr Vector3 Zero3;
inline constexpr Vector3 AxisX(1.0, 0.0, 0.0);
inline constexpr Vector3 AxisY(0.0, 1.0, 0.0);
inline constexpr Vector3 AxisZ(0.0, 0.0, 1.0);
inline constexpr Point3 Origin3;

/// The origin of the plane in which a profile is drawn.
inline constexpr Point2 ProfileOrigin;

/// A direction shorter than this length counts as zero.
inline constexpr double kDirectionTolerance = 1e-10;

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_CONSTANTS_H_
