#include <algorithm>
#include <cmath>
#include <optional>

#include "kelifc/building/build/idealise_loft.h"
#include "kelifc/building/build/idealise_solid.h"
#include "kelifc/building/profile/make_profile.h"

namespace KelIFC::building::idealising {
namespace {

// A solid has at least two steps along an arc, and not more than this.
constexpr double kMostSteps = 2000.0;

// The angle at which a circle meets the plane of an end is found by Newton's method, to this
// distance in metres. It is within half of the arc of the end; the derivative is taken over kStep.
constexpr int kMostIterations = 20;
constexpr double kInPlane = 1e-10;
constexpr double kFarthest = 0.5;
constexpr double kStep = 1e-6;

// The points of a profile, each of which moves along an arc.
struct ArcSweep {
  ArcInSpace arc;
  Station start;  // the profile at the start of the arc
  Station end;    // the profile at the end, placed at the start; empty for a member without taper

  Point3 At(std::size_t i, double angle) const {
    Point3 p = start[i];
    if (!end.empty()) p += (end[i] - start[i]) * (angle / arc.angle);
    return angle == 0.0 ? p : arc.Turn(p, angle);
  }

  // The angle at which a point is in a plane, near an angle.
  std::optional<double> AngleInPlane(std::size_t i, const EndPlane& plane, double near) const {
    double angle = near;
    for (int k = 0; k < kMostIterations; ++k) {
      const double distance = Dot(At(i, angle) - plane.point, plane.normal);
      if (std::fabs(distance) < kInPlane) return angle;
      const double slope = Dot(At(i, angle + kStep) - At(i, angle), plane.normal) / kStep;
      angle -= distance / slope;
      if (!(std::fabs(angle - near) < kFarthest * arc.angle)) return std::nullopt;
    }
    return std::nullopt;
  }

  double Radius() const {
    double radius = kChordError;
    for (const Station* station : {&start, &end}) {
      for (const Point3& p : *station) {
        const Vector3 v = p - arc.centre;
        radius = std::max(radius, Length(v - Dot(v, arc.normal) * arc.normal));
      }
    }
    return radius;
  }
};

std::optional<ArcSweep> MakeArcSweep(const MemberAxis& axis, const BuildingProfile& profile,
                                     const BuildingProfile* end) {
  ArcSweep sweep;
  ArcInSpace& arc = sweep.arc;
  if (axis.points.size() != 3 || !MakeArc(axis.points[0], axis.points[1], axis.points[2], arc)) {
    return std::nullopt;
  }
  const Vector3 x = Unit(Cross(arc.normal, axis.points[0] - arc.centre));
  const PlaneFrame frame{axis.points[0], axis.y, Cross(x, axis.y)};
  sweep.start = PlaceSection(profile, axis.offset, frame);
  if (end == nullptr) return sweep;
  if (LoopSizesOf(profile) != LoopSizesOf(*end)) return std::nullopt;
  sweep.end = PlaceSection(*end, axis.offset, frame);
  return sweep;
}

// The angles at which the points of a profile begin, or end; false if one has none.
bool FindAngles(const ArcSweep& sweep, const std::optional<EndPlane>& plane, double square,
                std::vector<double>& angles) {
  angles.assign(sweep.start.size(), square);
  if (!plane) return true;
  for (std::size_t i = 0; i < angles.size(); ++i) {
    const std::optional<double> angle = sweep.AngleInPlane(i, *plane, square);
    if (!angle) return false;
    angles[i] = *angle;
  }
  return true;
}

}  // namespace

Mesh MakeAlongArc(const MemberAxis& axis, const BuildingProfile& profile,
                  const BuildingProfile* end) {
  const std::optional<ArcSweep> sweep = MakeArcSweep(axis, profile, end);
  if (!sweep) return {};
  const double radius = std::max(sweep->Radius(), 2 * kChordError);
  const double step = 2.0 * std::acos(1.0 - kChordError / radius);
  const double steps = std::clamp(std::ceil(sweep->arc.angle / step), 2.0, kMostSteps);
  std::vector<double> from;
  std::vector<double> to;
  if (!FindAngles(*sweep, axis.ends[0], 0.0, from) ||
      !FindAngles(*sweep, axis.ends[1], sweep->arc.angle, to)) {
    return {};
  }
  std::vector<Station> stations(static_cast<std::size_t>(steps) + 1, sweep->start);
  for (std::size_t k = 0; k < stations.size(); ++k) {
    for (std::size_t i = 0; i < from.size(); ++i) {
      if (!(from[i] < to[i])) return {};
      stations[k][i] = sweep->At(i, from[i] + (to[i] - from[i]) * static_cast<double>(k) / steps);
    }
  }
  const bool isTwisted = end != nullptr || axis.ends[0] || axis.ends[1];
  return Loft(LoopSizesOf(profile), stations, isTwisted);
}

}  // namespace KelIFC::building::idealising
