#include "kelifc/building/build/idealise_curved.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kelifc/building/build/idealise_direct.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// The arc of a member is shorter than a full turn by at least this, in radians.
constexpr double kLeastGap = 0.1;

// Longer paths are not idealised.
constexpr std::size_t kMostPathPoints = 2000;

// The scale of a map that keeps angles; 0 for others.
double ScaleOf(const Transform3& map) {
  constexpr double kTiny = 1e-6;
  const double scale = Length(map.x);
  if (!(scale > 1e-9) || !(scale < 1e9)) return 0.0;
  const bool isSimilar = std::fabs(Length(map.y) / scale - 1.0) < kTiny &&
                         std::fabs(Length(map.z) / scale - 1.0) < kTiny &&
                         std::fabs(Dot(map.x, map.y)) < kTiny * scale * scale &&
                         std::fabs(Dot(map.y, map.z)) < kTiny * scale * scale &&
                         std::fabs(Dot(map.z, map.x)) < kTiny * scale * scale;
  return isSimilar ? scale : 0.0;
}

double LengthOf(const std::vector<Point3>& points) {
  double length = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) length += Length(points[i] - points[i - 1]);
  return length;
}

// Sets y and, for a left-handed frame, mirrors the profile. `x` is the tangent at the start.
void SetAxes(const Vector3& x, const Vector3& profileX, const Vector3& profileY, Reading& reading) {
  reading.member.y = Unit(profileX - Dot(profileX, x) * x);
  if (Dot(Cross(x, reading.member.y), profileY) >= 0.0) return;
  MirrorProfile(reading.profile);
  reading.member.offset.y = -reading.member.offset.y;
}

Point3 TurnAbout(const Point3& p, const Point3& centre, const Vector3& axis, double angle) {
  ArcInSpace arc;
  arc.centre = centre;
  arc.normal = axis;
  return arc.Turn(p, angle);
}

struct Path {
  CurveForm form = CurveForm::kLine;
  std::vector<Point3> points;
};

void AddArcPoints(const Point3& start, const Point3& through, const Point3& end,
                  std::vector<Point3>& points) {
  ArcInSpace arc;
  if (!MakeArc(start, through, end, arc)) return;
  const double radius = Length(start - arc.centre);
  const double step =
      2.0 * std::acos(1.0 - std::min(0.5, kChordError / std::max(radius, kChordError)));
  const auto count = static_cast<int>(std::clamp(std::ceil(arc.angle / step), 1.0, 500.0));
  for (int i = 1; i < count; ++i) points.push_back(arc.Turn(start, arc.angle * i / count));
}

std::optional<Path> PathOf(const SpaceCurve& curve, const Transform3& map) {
  const std::size_t count = curve.points.size();
  if (count < 2 || count > kMostPathPoints || curve.isClosed) return std::nullopt;
  Path path;
  if (count == 2 && curve.arcs.size() == 1 && curve.arcs[0].first == 0) {
    path.form = CurveForm::kArc;
    path.points = {map(curve.points[0]), map(curve.arcs[0].second), map(curve.points[1])};
    return path;
  }
  auto arc = curve.arcs.begin();
  for (std::size_t i = 0; i < count; ++i) {
    const Point3 p = map(curve.points[i]);
    if (path.points.empty() || Length(p - path.points.back()) > 1e-7) path.points.push_back(p);
    while (arc != curve.arcs.end() && arc->first < i) ++arc;
    if (arc == curve.arcs.end() || arc->first != i || i + 1 == count) continue;
    AddArcPoints(p, map(arc->second), map(curve.points[i + 1]), path.points);
  }
  if (path.points.size() < 2) return std::nullopt;
  path.form = path.points.size() == 2 ? CurveForm::kLine : CurveForm::kPolyline;
  return path;
}

std::optional<Vector3> TangentOf(const Path& path) {
  if (path.form != CurveForm::kArc) return Unit(path.points[1] - path.points[0]);
  ArcInSpace arc;
  if (!MakeArc(path.points[0], path.points[1], path.points[2], arc)) return std::nullopt;
  return Unit(Cross(arc.normal, path.points[0] - arc.centre));
}

ProfileFacts RingFacts(const SweptDisk& disk, double scale) {
  ProfileFacts facts;
  const auto set = [&](ProfileParameter parameter, double value) {
    facts.parameters[static_cast<std::size_t>(parameter)] = value;
  };
  set(ProfileParameter::kD, 2 * disk.radius * scale);
  const bool isHollow = disk.innerRadius > 0.0;
  facts.shape = isHollow ? ProfileShape::kHollowCircle : ProfileShape::kCircle;
  if (isHollow) set(ProfileParameter::kT, (disk.radius - disk.innerRadius) * scale);
  return facts;
}

}  // namespace

std::optional<Reading> FinishCurvedMember(Subject& subject, Reading reading) {
  reading.kind = ElementKind::kMember;
  const Proportions proportions =
      ProportionsOfMember(reading.profile.outline, LengthOf(reading.member.points));
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  const Extent2 extent = ExtentOf(reading.profile.outline);
  reading.size = std::max(extent.x.Length(), extent.y.Length());
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

std::optional<Reading> ReadRevolution(Subject& subject, const Revolution& revolution,
                                      const Transform3& toLocal) {
  if (!revolution.profile || !(std::fabs(revolution.angle) > 1e-6) ||
      std::fabs(revolution.angle) > 2 * std::numbers::pi - kLeastGap) {
    return std::nullopt;
  }
  const Transform3 map = Combine(toLocal, revolution.position);
  const double scale = ScaleOf(map);
  if (scale == 0.0) return std::nullopt;
  std::optional<PlacedProfile> placed = MakeProfile(Scaled(*revolution.profile, scale));
  if (!placed) return std::nullopt;
  // The axis of the member runs through the centroid: the origin may lie on the axis of the turn.
  const Point3 start{-placed->offset.x / scale, -placed->offset.y / scale, 0.0};
  Reading reading;
  reading.member.curve = CurveForm::kArc;
  for (const double part : {0.0, 0.5, 1.0}) {
    reading.member.points.push_back(
        map(TurnAbout(start, revolution.axisPoint, revolution.axis, part * revolution.angle)));
  }
  const std::optional<Vector3> x = TangentOf({CurveForm::kArc, reading.member.points});
  if (!x) return std::nullopt;
  reading.profile = std::move(placed->profile);
  SetAxes(*x, map.x / scale, map.y / scale, reading);
  return FinishCurvedMember(subject, std::move(reading));
}

std::optional<Reading> ReadSweptDisk(Subject& subject, const SweptDisk& disk,
                                     const Transform3& toLocal) {
  const double scale = ScaleOf(toLocal);
  std::optional<Path> path = PathOf(disk.directrix, toLocal);
  if (scale == 0.0 || !path) return std::nullopt;
  const std::optional<Vector3> x = TangentOf(*path);
  std::optional<PlacedProfile> placed = MakeProfile(RingFacts(disk, scale));
  if (!x || !placed) return std::nullopt;
  Reading reading;
  reading.member.curve = path->form;
  reading.member.points = std::move(path->points);
  reading.profile = std::move(placed->profile);
  reading.member.y = FrameAcross(*x, {}).x;
  return FinishCurvedMember(subject, std::move(reading));
}

std::optional<Reading> ReadSweptCurve(Subject& subject, const SweptCurve& sweep,
                                      const Transform3& toLocal) {
  const Transform3 map = Combine(toLocal, sweep.position);
  const double scale = ScaleOf(map);
  if (scale == 0.0 || !sweep.profile) return std::nullopt;
  std::optional<Path> path = PathOf(sweep.directrix, map);
  if (!path) return std::nullopt;
  const std::optional<Vector3> x = TangentOf(*path);
  std::optional<PlacedProfile> placed = MakeProfile(Scaled(*sweep.profile, scale));
  if (!x || !placed) return std::nullopt;
  const double hand = map.Determinant() < 0.0 ? -1.0 : 1.0;
  const Vector3 profileX = Unit(hand * Cross(map(sweep.reference), *x));
  if (Length(profileX) < 0.5) return std::nullopt;
  Reading reading;
  reading.member.curve = path->form;
  reading.member.points = std::move(path->points);
  reading.member.offset = placed->offset;
  reading.profile = std::move(placed->profile);
  SetAxes(*x, profileX, hand * Cross(*x, profileX), reading);
  return FinishCurvedMember(subject, std::move(reading));
}

}  // namespace KelIFC::building::idealising
