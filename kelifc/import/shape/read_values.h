#ifndef KELIFC_IMPORT_SHAPE_READ_VALUES_H_
#define KELIFC_IMPORT_SHAPE_READ_VALUES_H_

#include "kelifc/core/cartesian_point.h"
#include "kelifc/geometry/constants.h"
#include "kelifc/geometry/isometry3.h"
#include "kelifc/geometry/point.h"

namespace KelIFC {

// Readers of points, directions and placements of any release. Lengths are converted to metres:
// `scale` is the factor from the length unit of the file. Directions have no unit and are not
// scaled. Null is allowed for every entity.

/// Reads a point. Leaves `target` unchanged unless the point has exactly three coordinates.
void ReadPoint3(const IfcCartesianPoint* point, double scale, Point3& target);

/// Reads the first two coordinates of a point. Leaves `target` unchanged if there are fewer.
void ReadPoint2(const IfcCartesianPoint* point, double scale, Point2& target);

/// Reads a direction without normalising it. Sets `target` to zero unless there are three ratios.
template <class IfcDirection>
void ReadDirection3(const IfcDirection* direction, Vector3& target) {
  double ratios[3] = {};
  const bool isRead = direction != nullptr && direction->GetRatios(ratios, 3) == 3;
  target = isRead ? Vector3(ratios[0], ratios[1], ratios[2]) : Vector3();
}

/// Reads a direction in the plane in the same way; it must have two ratios.
template <class IfcDirection>
void ReadDirection2(const IfcDirection* direction, Vector2& target) {
  double ratios[2] = {};
  const bool isRead = direction != nullptr && direction->GetRatios(ratios, 2) == 2;
  target = isRead ? Vector2(ratios[0], ratios[1]) : Vector2();
}

/// Reads a vector in the plane, in metres. Sets `target` to zero unless it has two dimensions.
template <class IfcVector>
void ReadVector2(const IfcVector* vector, double scale, Vector2& target) {
  target = Vector2();
  if (vector == nullptr || vector->GetDim() != 2) return;
  ReadDirection2(vector->GetOrientation(), target);
  Normalise(target);
  target = target * vector->GetMagnitude() * scale;
}

/// Reads a placement in space as a transform and returns `frame`. The axes are those of GetP of the
/// placement: those of the world unless Axis and RefDirection are both set. If two axes are
/// parallel or zero, the transform is a mere translation. Leaves `frame` unchanged if the placement
/// or its location is null.
template <class IfcAxis2Placement3D>
Isometry3& ReadPlacement(const IfcAxis2Placement3D* placement, double scale, Isometry3& frame) {
  const IfcCartesianPoint* location = placement == nullptr ? nullptr : placement->GetLocation();
  if (location == nullptr) return frame;
  const auto* refDirection = placement->GetRefDirection();
  const auto* axis = placement->GetAxis();
  Point3 origin;
  ReadPoint3(location, scale, origin);
  Vector3 x = AxisX;
  Vector3 y = AxisY;
  if (refDirection != nullptr && axis != nullptr) {
    Vector3 z;
    ReadDirection3(refDirection, x);
    ReadDirection3(axis, z);
    y = Cross(z, x);
  }
  frame.Set(origin, origin + x, origin + y);
  return frame;
}

/// Returns a placement in space as a transform; the identity if ReadPlacement changes nothing.
template <class IfcAxis2Placement3D>
Isometry3 FrameOf(const IfcAxis2Placement3D* placement, double scale) {
  Isometry3 frame;
  return ReadPlacement(placement, scale, frame);
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_SHAPE_READ_VALUES_H_
