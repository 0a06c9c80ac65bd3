#include "kelifc/building/build/idealise_solid.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kelifc/building/build/idealise_frame.h"
#include "kelifc/building/build/idealise_loft.h"
#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building::idealising {
namespace {

// Moves the points of a section along a direction into a plane; false if that is not possible.
bool MoveToPlane(Station& station, const Vector3& along, const Point3& point,
                 const Vector3& normal) {
  const double slope = Dot(along, normal);
  if (std::fabs(slope) < 1e-3) return false;
  for (Point3& p : station) p += (Dot(point - p, normal) / slope) * along;
  return true;
}

bool EndStation(Station& station, const Vector3& x, const Point3& axisEnd,
                const std::optional<EndPlane>& plane) {
  return plane ? MoveToPlane(station, x, plane->point, plane->normal)
               : MoveToPlane(station, x, axisEnd, x);
}

// The part of a member between its ends must have a positive length everywhere. A length that is
// negative by less than the slack becomes zero.
bool PutInOrder(std::vector<Station>& stations, const Vector3& x, double slack) {
  const Station& a = stations.front();
  Station& b = stations.back();
  for (std::size_t i = 0; i < a.size(); ++i) {
    const double length = Dot(b[i] - a[i], x);
    if (length > 0.0) continue;
    if (!(length > -slack)) return false;
    b[i] = a[i];
  }
  return true;
}

Mesh MakeStraight(const MemberAxis& axis, const BuildingProfile& profile,
                  const BuildingProfile* end, double slack) {
  const Point3& a = axis.points.front();
  const Point3& b = axis.points.back();
  const Vector3 x = Unit(b - a);
  const Vector3 z = Cross(x, axis.y);
  std::vector<Station> stations(2);
  const BuildingProfile& last = end != nullptr ? *end : profile;
  stations[0] = PlaceSection(profile, axis.offset, {a, axis.y, z});
  stations[1] = PlaceSection(last, axis.offset, {b, axis.y, z});
  if (stations[0].size() != stations[1].size()) return {};
  if (!EndStation(stations[0], x, a, axis.ends[0])) return {};
  if (!EndStation(stations[1], x, b, axis.ends[1])) return {};
  if (!PutInOrder(stations, x, slack)) return {};
  return Loft(LoopSizesOf(profile), stations, end != nullptr);
}

Mesh MakeAlongPolyline(const MemberAxis& axis, const BuildingProfile& profile) {
  const std::vector<Point3>& points = axis.points;
  Vector3 x = Unit(points[1] - points[0]);
  std::vector<Station> stations{
      PlaceSection(profile, axis.offset, {points[0], axis.y, Cross(x, axis.y)})};
  if (!EndStation(stations[0], x, points[0], axis.ends[0])) return {};
  for (std::size_t k = 1; k < points.size(); ++k) {
    const Vector3 next = k + 1 < points.size() ? Unit(points[k + 1] - points[k]) : x;
    stations.push_back(stations.back());
    if (!MoveToPlane(stations.back(), x, points[k], Unit(x + next))) return {};
    x = next;
  }
  if (!EndStation(stations.back(), x, points.back(), axis.ends[1])) return {};
  return Loft(LoopSizesOf(profile), stations, false);
}

// A contour of the arcs and edges of an outline, cut into chords.
Outline FlattenOutline(const SurfaceRegion& surface, const PlaneFrame& frame) {
  Contour contour;
  for (const Point3& p : surface.outline) contour.points.push_back(Project(frame, p));
  for (const OutlineArc& arc : surface.arcs) {
    contour.arcs.push_back({arc.edge, Project(frame, arc.through)});
  }
  return contour.arcs.empty() ? contour.points : Flatten(contour);
}

// A curved wall is a member along its base line whose profile is a rectangle.
Mesh MakeWall(const SurfaceRegion& surface) {
  const WallSweep& sweep = *surface.sweep;
  MemberAxis axis;
  axis.curve = sweep.curve;
  axis.points = sweep.points;
  Vector3 x = Unit(sweep.points[1] - sweep.points[0]);
  ArcInSpace arc;
  if (sweep.curve == CurveForm::kArc) {
    if (sweep.points.size() != 3 ||
        !MakeArc(sweep.points[0], sweep.points[1], sweep.points[2], arc)) {
      return {};
    }
    x = Unit(Cross(arc.normal, sweep.points[0] - arc.centre));
  }
  axis.y = Unit(Cross(sweep.direction, x));
  const double half = surface.thickness / 2;
  BuildingProfile profile;
  profile.outline = {{-half, 0.0}, {half, 0.0}, {half, sweep.height}, {-half, sweep.height}};
  return MakeMemberSolid(axis, profile, nullptr);
}

}  // namespace

Mesh MakeMemberSolid(const MemberAxis& axis, const BuildingProfile& profile,
                     const BuildingProfile* end, double slack) {
  if (axis.points.size() < 2 || profile.outline.size() < 3) return {};
  switch (axis.curve) {
    case CurveForm::kArc:
      return MakeAlongArc(axis, profile, end);
    case CurveForm::kPolyline:
      return MakeAlongPolyline(axis, profile);
    case CurveForm::kLine:
      break;
  }
  return MakeStraight(axis, profile, end, slack);
}

Mesh MakeSurfaceSolid(const SurfaceRegion& surface) {
  if (!(surface.thickness > 0.0)) return {};
  if (surface.sweep) {
    return surface.sweep->points.size() < 2 ? Mesh() : MakeWall(surface);
  }
  if (surface.outline.size() < 2) return {};
  const PlaneFrame frame = FrameAcross(surface.normal, surface.outline[0]);
  MemberAxis axis;
  const Vector3 half = surface.normal * (surface.thickness / 2);
  axis.points = {frame.origin + -half, frame.origin + half};
  axis.y = frame.x;
  BuildingProfile profile;
  profile.outline = FlattenOutline(surface, frame);
  for (const std::vector<Point3>& hole : surface.holes) {
    profile.holes.emplace_back();
    for (const Point3& p : hole) profile.holes.back().push_back(Project(frame, p));
  }
  return MakeMemberSolid(axis, profile, nullptr);
}

bool MakeArc(const Point3& start, const Point3& through, const Point3& end, ArcInSpace& arc) {
  const Vector3 a = through - start;
  const Vector3 b = end - start;
  const Vector3 n = Cross(a, b);
  const double square = Dot(n, n);
  if (!(square > 1e-16 * Dot(a, a) * Dot(b, b))) return false;
  // The centre has the same distance from all three points.
  const Vector3 toCentre = (Dot(a, a) * Cross(b, n) + Dot(b, b) * Cross(n, a)) / (2.0 * square);
  arc.centre = start + toCentre;
  arc.normal = Unit(n);
  const Vector3 u = -toCentre;
  const Vector3 v = end - arc.centre;
  double angle = std::atan2(Dot(arc.normal, Cross(u, v)), Dot(u, v));
  if (angle <= 0.0) angle += 2.0 * std::numbers::pi;
  arc.angle = angle;
  return true;
}

Point3 ArcInSpace::Turn(const Point3& p, double by) const {
  const Vector3 v = p - centre;
  const Vector3 along = Dot(v, normal) * normal;
  const Vector3 across = v - along;
  return centre + (along + (std::cos(by) * across + std::sin(by) * Cross(normal, across)));
}

}  // namespace KelIFC::building::idealising
