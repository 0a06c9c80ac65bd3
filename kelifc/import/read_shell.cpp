#include "kelifc/import/read_shell.h"

#include <cstddef>
#include <utility>

#include "kelifc/import/face_facts.h"
#include "kelifc/import/families.h"
#include "kelifc/import/read_values.h"

namespace KelIFC {

namespace {

/// The points of a loop, in place of what `points` held. A loop of the plane has z 0. A point that
/// cannot be read repeats the one before it, the origin at first.
template <class IfcPolyLoop>
void ReadLoop(Mvector<Point3>& points, const IfcPolyLoop& loop, double scale) {
  points.clear();
  const int dimension = loop.GetDim();
  const auto polygon = loop.GetPolygon();
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

template <class Release>
FaceFacts ReadFace(const typename Release::IfcFace& face, double scale) {
  FaceFacts facts;
  facts.isSurface = dynamic_cast<const typename Release::IfcFaceSurface*>(&face) != nullptr;
  const auto bounds = face.GetBounds();
  facts.bounds.reserve(bounds.GetSize());
  for (std::size_t i = 1; i <= bounds.GetSize(); ++i) {
    const auto* loop = bounds[i] == nullptr ? nullptr : bounds[i]->GetBound();
    if (loop == nullptr) continue;
    BoundFacts& bound = facts.bounds.emplace_back();
    bound.isOuter = dynamic_cast<const typename Release::IfcFaceOuterBound*>(bounds[i]) != nullptr;
    bound.isReversed = !bounds[i]->GetOrientation();
    ReadLoop(bound.points, *loop, scale);
  }
  return facts;
}

}  // namespace

template <class Release>
void CaptureShell(const typename Release::IfcConnectedFaceSet& shell, BRep& boundary,
                  const Isometry3& outer, double scale) {
  const auto faces = shell.GetCfsFaces();
  for (std::size_t i = 1; i <= faces.GetSize(); ++i) {
    if (faces[i] != nullptr) CaptureFace(ReadFace<Release>(*faces[i], scale), outer, boundary);
  }
}

template void CaptureShell<Release2x>(const Release2x::IfcConnectedFaceSet&, BRep&,
                                      const Isometry3&, double);
template void CaptureShell<Release2x2>(const Release2x2::IfcConnectedFaceSet&, BRep&,
                                       const Isometry3&, double);
template void CaptureShell<Release2x3>(const Release2x3::IfcConnectedFaceSet&, BRep&,
                                       const Isometry3&, double);

}  // namespace KelIFC
