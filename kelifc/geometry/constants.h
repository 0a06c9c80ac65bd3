#ifndef KELIFC_GEOMETRY_CONSTANTS_H_
#define KELIFC_GEOMETRY_CONSTANTS_H_

#include "kelifc/geometry/point.h"

namespace KelIFC {

// Constants of the whole process. They are constant expressions, so they can be used during the
// initialisation of other objects.

inline constexpr Vector2 Zero2;             ///< the displacement of length 0 in the plane
inline constexpr Vector2 AxisX2(1.0, 0.0);  ///< the x axis of the plane, with length 1
inline constexpr Vector2 AxisY2(0.0, 1.0);  ///< the y axis of the plane, with length 1
inline constexpr Point2 Origin2;            ///< the origin of the plane

inline constexpr Vector3 Zero3;                 ///< the displacement of length 0 in space
inline constexpr Vector3 AxisX(1.0, 0.0, 0.0);  ///< the x axis of space, with length 1
inline constexpr Vector3 AxisY(0.0, 1.0, 0.0);  ///< the y axis of space, with length 1
inline constexpr Vector3 AxisZ(0.0, 0.0, 1.0);  ///< the z axis of space, with length 1
inline constexpr Point3 Origin3;                ///< the origin of space

/// The origin of the plane in which a profile is drawn.
inline constexpr Point2 ProfileOrigin;

/// A direction shorter than this length counts as zero.
inline constexpr double kDirectionTolerance = 1e-10;

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_CONSTANTS_H_
