#ifndef KELIFC_IMPORT_SHAPE_READ_VALUES_H_
#define KELIFC_IMPORT_SHAPE_READ_VALUES_H_

#include "kelifc/core/cartesian_point.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

// The readers of points, directions and placements, whatever family the entity is of. Lengths
// become metres as they are read: `scale` is the factor from lengths of the file. Directions have
// no length and are not scaled.

/// The point, if it has three coordinates. Otherwise `target` keeps what it held.
void ReadPoint3(const IfcCartesianPoint* point, double scale, Point3& target);

/// The first two coordinates, if there are that many. Otherwise `target` keeps what it held.
void ReadPoint2(const IfcCartesianPoint* point, double scale, Point2& target);

/// The ratios as they stand, not normalised; zero unless there are three of them.
template <class IfcDirection>
void ReadDirection3(const IfcDirection* direction, Vector3& target) {
  double ratios[3] = {};
  const bool isRead = direction != nullptr && direction->GetRatios(ratios, 3) == 3;
  target = isRead ? Vector3(ratios[0], ratios[1], ratios[2]) : Vector3();
}

/// The same for two ratios.
template <class IfcDirection>
void ReadDirection2(const IfcDirection* direction, Vector2& target) {
  double ratios[2] = {};
  const bool isRead = direction != nullptr && direction->GetRatios(ratios, 2) == 2;
  target = isRead ? Vector2(ratios[0], ratios[1]) : Vector2();
}

/// A vector of the plane, in metres; zero unless it has two dimensions.
template <class IfcVector>
void ReadVector2(const IfcVector* vector, double scale, Vector2& target) {
  target = Vector2();
  if (vector == nullptr || vector->GetDim() != 2) return;
  ReadDirection2(vector->GetOrientation(), target);
  Normalise(target);
  target = target * vector->GetMagnitude() * scale;
}

/// The frame of a placement in space. Its z axis is the cross product of the other two; axes that
/// make no frame leave it a mere move. If the placement, its location or an axis is missing,
/// `frame` stays as it was.
template <class IfcAxis2Placement3D>
Isometry3& ReadPlacement(const IfcAxis2Placement3D* placement, double scale, Isometry3& frame) {
  const IfcCartesianPoint* location = placement == nullptr ? nullptr : placement->GetLocation();
  if (location == nullptr) return frame;
  const auto axes = placement->GetP();
  if (axes[1] == nullptr || axes[2] == nullptr) return frame;
  Point3 origin;
  Vector3 x;
  Vector3 y;
  ReadPoint3(location, scale, origin);
  ReadDirection3(axes[1], x);
  ReadDirection3(axes[2], y);
  frame.Set(origin, origin + x, origin + y);
  return frame;
}

/// The frame of a placement, the identity where ReadPlacement finds none.
template <class IfcAxis2Placement3D>
Isometry3 FrameOf(const IfcAxis2Placement3D* placement, double scale) {
  Isometry3 frame;
  return ReadPlacement(placement, scale, frame);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_VALUES_H_
