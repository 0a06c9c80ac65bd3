#include <algorithm>
#include <cmath>
#include <numbers>

#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/rings.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

void AddArc(const Point3& from, const Point3& through, const Point3& to,
            std::vector<Point3>& points) {
  const Vector3 p = through - from;
  const Vector3 q = to - from;
  const Vector3 normal = Cross(p, q);
  const double square = Dot(normal, normal);
  if (!(square > 1e-24)) return;
  const Vector3 toCentre =
      (Cross(q, normal) * Dot(p, p) + Cross(normal, p) * Dot(q, q)) / (2.0 * square);
  const Point3 centre = from + toCentre;
  const double radius = Length(toCentre);
  const Vector3 x = -Unit(toCentre);
  const Vector3 y = Cross(Unit(normal), x);
  double angle = std::atan2(Dot(to - centre, y), Dot(to - centre, x));
  if (angle <= 0.0) angle += 2.0 * std::numbers::pi;
  const std::size_t count = ChordCount(radius, angle);
  for (std::size_t i = 1; i < count; ++i) {
    const double turned = angle * static_cast<double>(i) / static_cast<double>(count);
    points.push_back(centre + (x * std::cos(turned) + y * std::sin(turned)) * radius);
  }
}

/// A curve as chords, without repeated points. Points of a closed curve are not repeated at its
/// end.
std::vector<Point3> ChordsOf(const SpaceCurve& curve) {
  std::vector<Point3> all;
  auto arc = curve.arcs.begin();
  for (std::size_t i = 0; i < curve.points.size(); ++i) {
    all.push_back(curve.points[i]);
    while (arc != curve.arcs.end() && arc->first < i) ++arc;
    if (arc == curve.arcs.end() || arc->first != i) continue;
    if (i + 1 == curve.points.size() && !curve.isClosed) break;
    AddArc(curve.points[i], arc->second, curve.points[(i + 1) % curve.points.size()], all);
  }
  std::vector<Point3> result;
  for (const Point3& p : all) {
    if (result.empty() || Length(p - result.back()) > kWeldDistance) result.push_back(p);
  }
  while (curve.isClosed && result.size() > 1 &&
         Length(result.back() - result.front()) <= kWeldDistance) {
    result.pop_back();
  }
  return result;
}

bool IsUsable(const SpaceCurve& curve) {
  return std::all_of(curve.points.begin(), curve.points.end(),
                     [](const Point3& p) { return building::IsUsable(p); }) &&
         std::all_of(curve.arcs.begin(), curve.arcs.end(),
                     [](const auto& arc) { return building::IsUsable(arc.second); });
}

/// The points of a directrix, and how it runs through them.
struct Path {
  std::vector<Point3> points;
  bool isClosed = false;

  std::size_t StationCount() const { return points.size() + (isClosed ? 1 : 0); }
  const Point3& At(std::size_t station) const { return points[station % points.size()]; }

  /// The direction before and after a station.
  Vector3 Before(std::size_t station) const {
    const std::size_t count = points.size();
    if (station == 0 && !isClosed) return After(0);
    return Unit(At(station) - At(station + count - 1));
  }
  Vector3 After(std::size_t station) const {
    if (station + 1 == points.size() && !isClosed) return Before(station);
    return Unit(At(station + 1) - At(station));
  }

  /// The normal of the plane in which two pieces are mitred. Where the path turns back, which no
  /// mitre can do, it is the direction before.
  Vector3 MitreOf(std::size_t station) const {
    const Vector3 before = Before(station);
    const Vector3 mitre = Unit(before + After(station));
    return Dot(mitre, before) < 0.05 ? before : mitre;
  }
};

Path PathOf(const SpaceCurve& curve) {
  Path path;
  path.points = ChordsOf(curve);
  path.isClosed = curve.isClosed && path.points.size() > 2;
  return path;
}

/// Moves points along a direction into the plane through a station.
void Project(std::vector<Point3>& ring, const Vector3& along, const Point3& place,
             const Vector3& normal) {
  const double rise = Dot(along, normal);
  for (Point3& p : ring) p += along * (Dot(place - p, normal) / rise);
}

/// The points of a circle, then clockwise those of its hole, at the start of a path.
std::vector<Point3> DiskAt(const Path& path, const SweptDisk& solid, std::size_t corners) {
  const Vector3 direction = path.After(0);
  const Vector3 x = SquareTo(direction);
  const Vector3 y = Cross(direction, x);
  std::vector<Point3> ring;
  const auto add = [&](double radius, double sign) {
    for (std::size_t i = 0; i < corners; ++i) {
      const double angle =
          sign * 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(corners);
      ring.push_back(path.At(0) + (x * std::cos(angle) + y * std::sin(angle)) * radius);
    }
  };
  add(solid.radius, 1.0);
  if (solid.innerRadius > 0.0) add(solid.innerRadius, -1.0);
  return ring;
}

/// The ring at the start, turned such that its points follow those of the ring that arrives there.
std::vector<Mesh::Index> Closing(const std::vector<Mesh::Index>& first,
                                 const std::vector<Point3>& arriving, const Mesh& mesh,
                                 std::size_t corners) {
  std::size_t shift = 0;
  for (std::size_t i = 1; i < corners; ++i) {
    if (Length(mesh.points[first[i]] - arriving[0]) <
        Length(mesh.points[first[shift]] - arriving[0])) {
      shift = i;
    }
  }
  std::vector<Mesh::Index> ring;
  for (std::size_t i = 0; i < first.size(); ++i) {
    const std::size_t loop = i / corners;
    const std::size_t turned = loop == 0 ? i + shift : i + corners - shift;
    ring.push_back(first[loop * corners + turned % corners]);
  }
  return ring;
}

std::vector<Mesh::Index> AddRing(Mesh& mesh, const std::vector<Point3>& ring,
                                 const Transform3& map) {
  std::vector<Mesh::Index> result;
  result.reserve(ring.size());
  for (const Point3& p : ring) result.push_back(AddPoint(mesh, map(p)));
  return result;
}

/// The profile at a station, in its mitre plane. Empty if the path runs along the reference.
std::vector<Point3> ProfileAt(const Path& path, std::size_t station, const Vector3& reference,
                              const std::vector<Point2>& points) {
  const Vector3 direction = path.MitreOf(station);
  const Vector3 x = Unit(Cross(reference, direction));
  const Vector3 y = Cross(direction, x);
  std::vector<Point3> ring;
  if (Length(x) == 0.0) return ring;
  // Square to the mitre plane the pieces meet at an angle, so that the profile is wider there.
  const Vector3 before = path.Before(station);
  const double rise = Dot(before, direction);
  const Vector3 bend = Unit(FromTo(direction * rise, before));
  const double widening = rise > 0.05 ? 1.0 / rise - 1.0 : 0.0;
  for (const Point2& p : points) {
    const Vector3 v = x * p.x + y * p.y;
    ring.push_back(path.At(station) + (v + bend * (Dot(v, bend) * widening)));
  }
  return ring;
}

}  // namespace

MadeMesh MakeSweptDisk(const SweptDisk& solid, const Transform3& map, std::size_t maxPoints) {
  if (!IsUsable(solid.directrix) || !(std::abs(solid.radius) <= kLargestCoordinate) ||
      !(std::abs(solid.innerRadius) <= kLargestCoordinate)) {
    return MadeMesh(LossReason::kNotFinite);
  }
  const Path path = PathOf(solid.directrix);
  if (path.points.size() < 2 || !(solid.radius > kWeldDistance) ||
      solid.innerRadius > solid.radius - kWeldDistance) {
    return MadeMesh(LossReason::kDegenerate);
  }
  const std::size_t corners = ChordCount(solid.radius, 2.0 * std::numbers::pi);
  RingSweep sweep;
  sweep.loopSizes.assign(solid.innerRadius > 0.0 ? 2 : 1, corners);
  sweep.isRound = path.isClosed;
  if (corners * sweep.loopSizes.size() > maxPoints / path.StationCount()) {
    return MadeMesh(LossReason::kLimit);
  }
  Mesh mesh;
  std::vector<Point3> ring = DiskAt(path, solid, corners);
  Project(ring, path.After(0), path.At(0), path.MitreOf(0));
  sweep.rings.push_back(AddRing(mesh, ring, Transform3()));
  for (std::size_t station = 1; station < path.StationCount(); ++station) {
    Project(ring, path.Before(station), path.At(station), path.MitreOf(station));
    const bool isLast = station + 1 == path.StationCount() && path.isClosed;
    sweep.rings.push_back(isLast ? Closing(sweep.rings.front(), ring, mesh, corners)
                                 : AddRing(mesh, ring, Transform3()));
  }
  AddSweep(mesh, sweep);
  return Finish(Moved(mesh, map));
}

MadeMesh MakeSweptCurve(const SweptCurve& solid, const Transform3& map, std::size_t maxPoints) {
  const FlatProfile profile = FlatProfileOf(solid.profile);
  if (profile.fault) return MadeMesh(*profile.fault, solid.profile ? solid.profile->id : 0);
  if (!IsUsable(solid.directrix) || !building::IsUsable(solid.reference)) {
    return MadeMesh(LossReason::kNotFinite);
  }
  const Path path = PathOf(solid.directrix);
  if (path.points.size() < 2) return MadeMesh(LossReason::kDegenerate);
  if (profile.PointCount() > maxPoints / path.StationCount()) {
    return MadeMesh(LossReason::kLimit);
  }
  const Transform3 placed = Combine(map, solid.position);
  Mesh mesh;
  for (const FlatRegion& region : profile.regions) {
    RingSweep sweep;
    sweep.loopSizes = LoopSizesOf(region);
    sweep.isRound = path.isClosed;
    const std::vector<Point2> points = PointsOf(region);
    for (std::size_t station = 0; station < path.points.size(); ++station) {
      const std::vector<Point3> ring = ProfileAt(path, station, solid.reference, points);
      if (ring.empty()) return MadeMesh(LossReason::kDegenerate);
      sweep.rings.push_back(AddRing(mesh, ring, placed));
    }
    if (path.isClosed) sweep.rings.push_back(sweep.rings.front());
    AddSweep(mesh, sweep);
  }
  MadeMesh result = Finish(std::move(mesh));
  result.isExact = profile.isExact;
  return result;
}

}  // namespace KelIFC::building
