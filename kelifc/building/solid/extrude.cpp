#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <utility>

#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/rings.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// A station at which the plane of x and y of a map is moved.
std::vector<Mesh::Index> AddStation(Mesh& mesh, const std::vector<Point2>& points,
                                    const Transform3& map, const Vector3& shift) {
  std::vector<Mesh::Index> ring;
  ring.reserve(points.size());
  for (const Point2& p : points) {
    ring.push_back(AddPoint(mesh, map(Point3(p.x, p.y, 0.0)) + shift));
  }
  return ring;
}

/// The lengths along a closed outline at which its points lie, as fractions of the whole.
std::vector<double> FractionsOf(const Outline& outline) {
  std::vector<double> result;
  double sum = 0.0;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    result.push_back(sum);
    sum += Distance(outline[i], outline[(i + 1) % outline.size()]);
  }
  for (double& fraction : result) fraction /= sum;
  return result;
}

/// The points of an outline at fractions that rise and include those of all its points.
Outline Resample(const Outline& outline, const std::vector<double>& fractions) {
  const std::vector<double> own = FractionsOf(outline);
  Outline result;
  std::size_t edge = 0;
  for (const double fraction : fractions) {
    while (edge + 1 < own.size() && own[edge + 1] <= fraction) ++edge;
    const double end = edge + 1 < own.size() ? own[edge + 1] : 1.0;
    const double part = end > own[edge] ? (fraction - own[edge]) / (end - own[edge]) : 0.0;
    result.push_back(Between(outline[edge], outline[(edge + 1) % outline.size()], part));
  }
  return result;
}

/// Gives two outlines the same number of points: the points of each at the fractions of both.
void Match(Outline& first, Outline& second) {
  if (first.size() == second.size() || first.empty() || second.empty()) return;
  std::vector<double> fractions = FractionsOf(first);
  const std::vector<double> others = FractionsOf(second);
  fractions.insert(fractions.end(), others.begin(), others.end());
  std::sort(fractions.begin(), fractions.end());
  fractions.erase(std::unique(fractions.begin(), fractions.end(),
                              [](double a, double b) { return b - a < 1e-9; }),
                  fractions.end());
  first = Resample(first, fractions);
  second = Resample(second, fractions);
}

bool Match(FlatProfile& first, FlatProfile& second) {
  if (first.regions.size() != second.regions.size()) return false;
  for (std::size_t i = 0; i < first.regions.size(); ++i) {
    FlatRegion& a = first.regions[i];
    FlatRegion& b = second.regions[i];
    if (a.holes.size() != b.holes.size()) return false;
    Match(a.outer, b.outer);
    for (std::size_t k = 0; k < a.holes.size(); ++k) Match(a.holes[k], b.holes[k]);
  }
  return true;
}

/// The mesh of a region that turns about an axis of its plane.
class Turning {
 public:
  Turning(const Revolution& someSolid, double turn, std::size_t count)
      : solid(someSolid),
        across(Cross(Vector3(0.0, 0.0, 1.0), someSolid.axis)),
        angle(turn),
        steps(count) {}

  /// How far a point of the plane is from the axis, to its left.
  double DistanceOf(const Point2& p) const {
    return Dot(Point3(p.x, p.y, 0.0) - solid.axisPoint, across);
  }

  /// The least and the largest distance of the points of a profile; 0 counts as one.
  std::pair<double, double> RangeOf(const FlatProfile& profile) const {
    std::pair<double, double> range;
    for (const FlatRegion& region : profile.regions) {
      for (const Point2& p : region.outer) {
        range.first = std::min(range.first, DistanceOf(p));
        range.second = std::max(range.second, DistanceOf(p));
      }
    }
    return range;
  }

  void Add(Mesh& mesh, const FlatRegion& region, const Transform3& map, bool isRound) const {
    RingSweep sweep;
    sweep.loopSizes = LoopSizesOf(region);
    sweep.isRound = isRound;
    const std::vector<Point2> points = PointsOf(region);
    for (std::size_t step = 0; step <= steps; ++step) {
      if (isRound && step == steps) {
        sweep.rings.push_back(sweep.rings.front());
        break;
      }
      std::vector<Mesh::Index> ring;
      for (std::size_t i = 0; i < points.size(); ++i) {
        const bool isOnAxis = std::abs(DistanceOf(points[i])) <= kWeldDistance;
        ring.push_back(isOnAxis && step > 0 ? sweep.rings.front()[i]
                                            : AddPoint(mesh, map(At(points[i], step))));
      }
      sweep.rings.push_back(std::move(ring));
    }
    AddSweep(mesh, sweep);
  }

 private:
  Point3 At(const Point2& p, std::size_t step) const {
    const double turned = angle * static_cast<double>(step) / static_cast<double>(steps);
    const Vector3 v = Point3(p.x, p.y, 0.0) - solid.axisPoint;
    const double along = Dot(v, solid.axis);
    const double distance = Dot(v, across);
    const Vector3 out = across * std::cos(turned) + Cross(solid.axis, across) * std::sin(turned);
    return solid.axisPoint + (solid.axis * along + out * distance);
  }

  const Revolution& solid;
  Vector3 across;
  double angle;
  std::size_t steps;
};

}  // namespace

MadeMesh MakeExtrusion(const Extrusion& solid, const Transform3& map, std::size_t maxPoints) {
  FlatProfile start = FlatProfileOf(solid.profile);
  if (start.fault) return MadeMesh(*start.fault, solid.profile ? solid.profile->id : 0);
  if (!std::isfinite(solid.depth)) return MadeMesh(LossReason::kNotFinite);
  if (std::abs(solid.depth) <= kWeldDistance) return MadeMesh(LossReason::kDegenerate);
  FlatProfile other;
  if (solid.endProfile != nullptr) {
    other = FlatProfileOf(solid.endProfile);
    if (other.fault) return MadeMesh(*other.fault, solid.endProfile->id);
    if (!Match(start, other)) {
      return MadeMesh(LossReason::kUnsupportedProfile, solid.endProfile->id);
    }
  }
  const FlatProfile& end = solid.endProfile != nullptr ? other : start;
  if (2 * start.PointCount() > maxPoints) return MadeMesh(LossReason::kLimit);
  const Transform3 placed = Combine(map, solid.position);
  const Vector3 shift = placed(solid.direction * solid.depth);
  Mesh mesh;
  for (std::size_t i = 0; i < start.regions.size(); ++i) {
    RingSweep sweep;
    sweep.loopSizes = LoopSizesOf(start.regions[i]);
    sweep.rings.push_back(AddStation(mesh, PointsOf(start.regions[i]), placed, Vector3()));
    sweep.rings.push_back(AddStation(mesh, PointsOf(end.regions[i]), placed, shift));
    AddSweep(mesh, sweep);
  }
  MadeMesh result = Finish(std::move(mesh));
  result.isExact = start.isExact && end.isExact;
  return result;
}

MadeMesh MakeRevolution(const Revolution& solid, const Transform3& map, std::size_t maxPoints) {
  const FlatProfile profile = FlatProfileOf(solid.profile);
  if (profile.fault) return MadeMesh(*profile.fault, solid.profile ? solid.profile->id : 0);
  if (!std::isfinite(solid.angle) || !IsUsable(solid.axisPoint) || !IsUsable(solid.axis)) {
    return MadeMesh(LossReason::kNotFinite);
  }
  Revolution flat = solid;
  flat.axis = Unit(Vector3(solid.axis.x, solid.axis.y, 0.0));
  flat.axisPoint.z = 0.0;
  constexpr double kFullTurn = 2.0 * std::numbers::pi;
  const double angle = std::clamp(solid.angle, -kFullTurn, kFullTurn);
  if (Length(flat.axis) == 0.0 || std::abs(angle) < 1e-9) {
    return MadeMesh(LossReason::kDegenerate);
  }
  const auto [least, most] = Turning(flat, angle, 1).RangeOf(profile);
  // A region on both sides of the axis would run through itself.
  if (least < -1e-6 && most > 1e-6) return MadeMesh(LossReason::kSelfIntersecting);
  const std::size_t steps = ChordCount(std::max(-least, most), angle);
  if (profile.PointCount() > maxPoints / (steps + 1)) return MadeMesh(LossReason::kLimit);
  const bool isRound = kFullTurn - std::abs(angle) < 1e-6;
  Mesh mesh;
  const Turning turning(flat, isRound ? kFullTurn : angle, steps);
  const Transform3 placed = Combine(map, solid.position);
  for (const FlatRegion& region : profile.regions) turning.Add(mesh, region, placed, isRound);
  MadeMesh result = Finish(std::move(mesh));
  result.isExact = profile.isExact;
  return result;
}

}  // namespace KelIFC::building
