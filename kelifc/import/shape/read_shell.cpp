#include "kelifc/import/shape/read_shell.h"

#include <cstddef>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/shape/boundary_builder.h"
#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

namespace {

/// Replaces `points` by the points of a loop. For a loop in the plane, z is 0. A point that cannot
/// be read becomes a copy of the previous point; if it is the first one, it becomes the origin.
template <class IfcPolyLoop>
void ReadLoop(Mvector<Point3>& points, const IfcPolyLoop& loop, double scale) {
  points.clear();
  const auto polygon = loop.GetPolygon();
  // The dimension of a loop is that of its first point.
  const std::size_t dimension =
      polygon.GetEmpty() || polygon[1] == nullptr ? 0u : polygon[1]->Coordinates().GetSize();
  points.reserve(polygon.GetSize());
  Point3 point;
  for (std::size_t i = 1; i <= polygon.GetSize(); ++i) {
    if (dimension == 2) {
      Point2 inPlane(point.x, point.y);
      ReadPoint2(polygon[i], scale, inPlane);
      point = Point3(inPlane.x, inPlane.y, 0.0);
    } else if (dimension == 3) {
      ReadPoint3(polygon[i], scale, point);
    }
    points.push_back(point);
  }
}

/// Appends a face with all its bounds.
template <class Release>
void CaptureFace(const typename Release::IfcFace& face, bool isTurnedOver, double scale,
                 Mvector<Point3>& points, BoundaryBuilder& builder) {
  builder.BeginFace();
  const auto bounds = face.GetBounds();
  for (std::size_t i = 1; i <= bounds.GetSize(); ++i) {
    const auto* loop = bounds[i] == nullptr ? nullptr : bounds[i]->GetBound();
    if (loop == nullptr) continue;
    ReadLoop(points, *loop, scale);
    const bool isOuter = CachedCast<typename Release::IfcFaceOuterBound>(bounds[i]) != nullptr;
    builder.AddBound(points, isOuter, !bounds[i]->GetOrientation(), isTurnedOver);
  }
}

}  // namespace

template <class Release>
BRep CaptureShell(const typename Release::IfcConnectedFaceSet& shell, double scale) {
  BRep boundary;
  const auto faces = shell.GetCfsFaces();
  BoundaryBuilder builder(boundary, faces.GetSize());
  Mvector<Point3> points;
  for (std::size_t i = 1; i <= faces.GetSize(); ++i) {
    if (faces[i] == nullptr) continue;
    CaptureFace<Release>(*faces[i], false, scale, points, builder);
    // The sense of the surface is ignored.
    const bool isOnSurface = CachedCast<typename Release::IfcFaceSurface>(faces[i]) != nullptr;
    if (isOnSurface) CaptureFace<Release>(*faces[i], true, scale, points, builder);
  }
  return boundary;
}

template BRep CaptureShell<Release2x>(const Release2x::IfcConnectedFaceSet&, double);
template BRep CaptureShell<Release2x2>(const Release2x2::IfcConnectedFaceSet&, double);
template BRep CaptureShell<Release2x3>(const Release2x3::IfcConnectedFaceSet&, double);

}  // namespace KelIFC
