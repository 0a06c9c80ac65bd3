#include "kelifc/geometry/set_carver.h"

#include <cmath>

#include "kelifc/geometry/constants.h"

namespace KelIFC {

namespace {

/// A millimetre, for values in metres.
constexpr double kTolerance = 0.001;

Point2 FromTheSide(const Point3& point) { return {point.x, point.z}; }

void Begin(Sector2& sector, const Point3& a, const Point3& b) {
  sector.SetStart(FromTheSide(a));
  sector.SetEnd(FromTheSide(b));
  if (sector.start.x > sector.end.x) sector.Reverse();
}

}  // namespace

void project_node_vertically2xx(Point3& node, const Plane3& plane) {
  Line3 vertical(node, AxisZ, kTolerance);
  Plane3 tested = plane;
  const LineHit3 hit = tested.Intersect(vertical);
  if (hit.found) node = hit.point;
}

void SetCarver2xx(Point2& a, Point2& b, LocalPlane& localPlane, Plane3& plane, Sector2& sector,
                  Line3& line, bool& isSet) {
  Point3 worldA = localPlane.Apply(Point3(a.x, a.y, 0.0));
  Point3 worldB = localPlane.Apply(Point3(b.x, b.y, 0.0));
  project_node_vertically2xx(worldA, plane);
  project_node_vertically2xx(worldB, plane);
  const LineHit3 footA = line.Foot(worldA);
  if (!footA.found) return;
  const LineHit3 footB = line.Foot(worldB);
  if (!footB.found) return;
  if (!(std::abs(footA.point.x - footB.point.x) > kTolerance)) return;
  if (!isSet) {
    isSet = true;
    Begin(sector, worldA, worldB);
    return;
  }
  // The ends of the sector are projected points, but they are compared with feet on the line.
  if (sector.start.x > footA.point.x) sector.SetStart(FromTheSide(worldA));
  if (footB.point.x > sector.end.x) sector.SetEnd(FromTheSide(worldB));
}

}  // namespace KelIFC
