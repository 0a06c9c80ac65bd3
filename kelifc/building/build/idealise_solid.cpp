#include "kelifc/building/build/idealise_solid.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kelifc/building/build/idealise_frame.h"
#include "kelifc/building/facts/contour.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building::idealising {
namespace {

// The loops of a section one after the other, the outer one first, as points in space.
using Station = std::vector<Point3>;

std::vector<std::size_t> LoopSizesOf(const BuildingProfile& profile) {
  std::vector<std::size_t> sizes{profile.outline.size()};
  for (const Outline& hole : profile.holes) sizes.push_back(hole.size());
  return sizes;
}

void AddCap(Mesh& mesh, const std::vector<std::size_t>& sizes, std::size_t first, bool isReversed) {
  mesh.BeginFace();
  std::vector<Mesh::Index> loop;
  for (const std::size_t size : sizes) {
    loop.resize(size);
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t at = isReversed ? size - 1 - i : i;
      loop[i] = static_cast<Mesh::Index>(first + at);
    }
    mesh.AddLoop(loop);
    first += size;
  }
}

// The faces between two stations. Where sides are not plane they are cut into triangles.
void AddSides(Mesh& mesh, const std::vector<std::size_t>& sizes, std::size_t from, std::size_t to,
              bool inTriangles) {
  for (const std::size_t size : sizes) {
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t next = (i + 1) % size;
      const auto a = static_cast<Mesh::Index>(from + i);
      const auto b = static_cast<Mesh::Index>(from + next);
      const auto c = static_cast<Mesh::Index>(to + next);
      const auto d = static_cast<Mesh::Index>(to + i);
      const Mesh::Index corners[] = {a, b, c, d, a};
      mesh.BeginFace();
      mesh.AddLoop(corners, inTriangles ? 3 : 4);
      if (!inTriangles) continue;
      mesh.BeginFace();
      mesh.AddLoop(corners + 2, 3);
    }
    from += size;
    to += size;
  }
}

Mesh Loft(const std::vector<std::size_t>& sizes, const std::vector<Station>& stations,
          bool inTriangles) {
  Mesh mesh;
  if (stations.size() < 2 || stations[0].size() < 3) return mesh;
  const std::size_t count = stations[0].size();
  for (const Station& station : stations) {
    mesh.points.insert(mesh.points.end(), station.begin(), station.end());
  }
  AddCap(mesh, sizes, 0, true);
  for (std::size_t k = 0; k + 1 < stations.size(); ++k) {
    AddSides(mesh, sizes, k * count, (k + 1) * count, inTriangles);
  }
  AddCap(mesh, sizes, (stations.size() - 1) * count, false);
  return mesh;
}

Station PlaceSection(const BuildingProfile& profile, const Vector2& offset,
                     const PlaneFrame& frame) {
  Station station;
  const auto add = [&](const Outline& loop) {
    for (const Point2& p : loop) {
      station.push_back(Lift(frame, {p.x - offset.x, p.y - offset.y}));
    }
  };
  add(profile.outline);
  for (const Outline& hole : profile.holes) add(hole);
  return station;
}

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

Mesh MakeAlongArc(const MemberAxis& axis, const BuildingProfile& profile) {
  ArcInSpace arc;
  if (axis.points.size() != 3 || !MakeArc(axis.points[0], axis.points[1], axis.points[2], arc)) {
    return {};
  }
  const Vector3 x = Unit(Cross(arc.normal, axis.points[0] - arc.centre));
  const Station start =
      PlaceSection(profile, axis.offset, {axis.points[0], axis.y, Cross(x, axis.y)});
  double radius = kChordError;
  for (const Point3& p : start) {
    const Vector3 v = p - arc.centre;
    radius = std::max(radius, Length(v - Dot(v, arc.normal) * arc.normal));
  }
  const double step = 2.0 * std::acos(1.0 - kChordError / std::max(radius, 2 * kChordError));
  const auto steps = static_cast<std::size_t>(std::clamp(std::ceil(arc.angle / step), 2.0, 2000.0));
  std::vector<Station> stations(steps + 1, start);
  for (std::size_t k = 1; k <= steps; ++k) {
    const double by = arc.angle * static_cast<double>(k) / static_cast<double>(steps);
    for (Point3& p : stations[k]) p = arc.Turn(p, by);
  }
  return Loft(LoopSizesOf(profile), stations, false);
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
      return MakeAlongArc(axis, profile);
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
