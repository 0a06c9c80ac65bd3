#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "kelifc/building/build/idealise_bends.h"
#include "kelifc/building/build/idealise_bevel.h"
#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// The places of the two sections, as parts of the points of a side.
constexpr double kPlaces[] = {0.2, 0.8};

// A section lies this part of a chord beside a point of the side: its centroid is on the arc there,
// and the cut does not run through points.
constexpr double kBesidePoint = 1e-3;

// The axis keeps its distance from the centre, and its level, within this distance, in metres.
constexpr double kSameRadius = 2e-3;

// A side with fewer points is a line with bends rather than an arc.
constexpr std::size_t kLeastPointsOfArc = 6;

// The chords of an arc turn by less, in radians. It is larger than the turn of arcs of a quarter
// that have five chords.
constexpr double kLargestTurn = 0.35;

// The centroids of smaller sections have no meaning, in square metres.
constexpr double kLeastArea = 1e-8;

// A section in a plane through the axis of the arc.
struct RadialSection {
  PlaneFrame plane;  // the origin is on the axis of the arc, x points away; the normal points ahead
  FlatRegion region;
  double angle = 0.0;  // from the start
};

double AngleBetween(const Vector2& from, const Vector2& to) {
  return std::atan2(Cross(from, to), Dot(from, to));
}

double TurnAt(const Outline& side, std::size_t i) {
  return std::fabs(AngleBetween(side[i] - side[i - 1], side[i + 1] - side[i]));
}

bool HasChordsOfAnArc(const Outline& side) {
  if (side.size() < kLeastPointsOfArc) return false;
  for (std::size_t i = 1; i + 1 < side.size(); ++i) {
    if (TurnAt(side, i) > kLargestTurn) return false;
  }
  return true;
}

// Where the lines of both ends meet: the centre of the arc, if the ends are square to it.
std::optional<Point2> CentreOf(const Strip& strip) {
  const Point2& a = strip.left.front();
  const Point2& b = strip.left.back();
  const Vector2 u = strip.right.front() - a;
  const Vector2 v = strip.right.back() - b;
  const double turn = Cross(u, v);
  constexpr double kLeastTurn = 1e-3;  // the sine of the smallest angle of an arc
  if (!(std::fabs(turn) > kLeastTurn * Length(u) * Length(v))) return std::nullopt;
  const Point2 centre = a + u * (Cross(b - a, v) / turn);
  if (!IsRadial(centre, a, strip.right.front()) || !IsRadial(centre, b, strip.right.back())) {
    return std::nullopt;
  }
  return centre;
}

// Of a point and the next one that where a side turns more: the other one may be the middle of a
// chord that is cut into triangles.
std::size_t PointAt(const Outline& side, double place) {
  const auto at = static_cast<std::size_t>(place * static_cast<double>(side.size() - 1));
  const std::size_t first = std::clamp<std::size_t>(at, 1, side.size() - 2);
  const std::size_t second = std::min(first + 1, side.size() - 2);
  return TurnAt(side, second) > TurnAt(side, first) ? second : first;
}

std::optional<RadialSection> SectionNear(Subject& subject, const Bends& bends, const Point2& centre,
                                         double place) {
  const Outline& left = bends.strip.left;
  const std::size_t at = PointAt(left, place);
  const Point2 beside = left[at] + (left[at + 1] - left[at]) * kBesidePoint;
  Vector2 out = beside - centre;
  Normalise(out);
  RadialSection section;
  section.angle = AngleBetween(left.front() - centre, beside - centre);
  const double level = LevelOfCut(subject, bends);
  section.plane.origin = bends.AtLevel(beside, level);
  section.plane.x = bends.InSpace(out);
  section.plane.y = section.angle < 0.0 ? bends.Normal() : -bends.Normal();
  std::optional<FlatRegion> region = RegionAround(subject.boundary, section.plane);
  if (!region) return std::nullopt;
  section.region = std::move(*region);
  const double radius = Distance(centre, beside);
  const double height = section.angle < 0.0 ? level : -level;
  const auto move = [&](Outline& loop) {
    for (Point2& p : loop) p = {p.x + radius, p.y + height};
  };
  move(section.region.outer);
  for (Outline& hole : section.region.holes) move(hole);
  section.plane.origin = bends.AtLevel(centre, 0.0);
  return section;
}

Outline Interpolate(const Outline& first, const Outline& second, double part) {
  Outline loop;
  for (std::size_t i = 0; i < first.size(); ++i) {
    loop.push_back(first[i] + (second[i] - first[i]) * part);
  }
  return loop;
}

FlatRegion RegionAt(const RadialSection& first, const RadialSection& second, double angle) {
  const double part = (angle - first.angle) / (second.angle - first.angle);
  FlatRegion region;
  region.outer = Interpolate(first.region.outer, second.region.outer, part);
  for (std::size_t i = 0; i < first.region.holes.size(); ++i) {
    region.holes.push_back(Interpolate(first.region.holes[i], second.region.holes[i], part));
  }
  return region;
}

}  // namespace

std::optional<Reading> ReadTaperedArc(Subject& subject, const Bends& bends) {
  const Outline& left = bends.strip.left;
  if (!HasChordsOfAnArc(left)) return std::nullopt;
  const std::optional<Point2> centre = CentreOf(bends.strip);
  if (!centre) return std::nullopt;
  const std::optional<RadialSection> first = SectionNear(subject, bends, *centre, kPlaces[0]);
  std::optional<RadialSection> second = SectionNear(subject, bends, *centre, kPlaces[1]);
  if (!first || !second || !Align(first->region, second->region)) return std::nullopt;
  // The angle of the whole arc, in the direction in which that of the sections grows.
  double angle = AngleBetween(left.front() - *centre, left.back() - *centre);
  if (angle * first->angle < 0.0) angle += std::copysign(2 * std::numbers::pi, first->angle);
  const FlatRegion start = RegionAt(*first, *second, 0.0);
  const FlatRegion end = RegionAt(*first, *second, angle);
  if (!(AreaOf(start) > kLeastArea) || !(AreaOf(end) > kLeastArea)) return std::nullopt;
  PlaneFrame plane = first->plane;
  Vector2 out = left.front() - *centre;
  Normalise(out);
  plane.x = bends.InSpace(out);
  FoundProfile from = FindProfile(start, plane, {});
  FoundProfile to = ProfileInFrame(end, plane, from.frame, {});
  if (Length(to.frame.origin - from.frame.origin) > kSameRadius) return std::nullopt;
  ArcInSpace arc;
  arc.centre = plane.origin;
  arc.normal = bends.Normal();
  Reading reading;
  reading.member.curve = CurveForm::kArc;
  for (const double part : {0.0, 0.5, 1.0}) {
    reading.member.points.push_back(arc.Turn(from.frame.origin, part * angle));
  }
  reading.member.y = from.frame.x;
  reading.profile = std::move(from.profile);
  reading.endProfile = std::move(to.profile);
  return FinishCurvedMember(subject, std::move(reading));
}

}  // namespace KelIFC::building::idealising
