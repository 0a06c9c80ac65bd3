#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_solid.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {
namespace {

// How far beside the start the section is taken, in metres.
constexpr double kBeside = 1e-4;

// Where the plane of the bend is taken, as parts of the height of the body beside its middle. Round
// sections have points in the middle, which rounding moves to either side.
constexpr double kPlaces[] = {0.0, 0.004};

// A bend in space: the middle line of a strip that the boundary has in the plane of the bend.
struct Bend {
  CurveForm curve = CurveForm::kArc;
  std::vector<Point3> points;
  Vector3 normal;   // of the plane of the bend
  Vector3 tangent;  // at the start
  Vector3 ends[2];  // the normals of the ends, which point outwards
};

// The normal of the end of a strip, which runs from one of its sides to the other.
Vector3 EndNormal(const PlaneFrame& plane, const Point2& left, const Point2& right,
                  const Vector3& out) {
  const Vector3 across = Lift(plane, left) - Lift(plane, right);
  const Vector3 normal = Unit(Cross(across, NormalOf(plane)));
  return Dot(normal, out) < 0.0 ? -normal : normal;
}

// The plane of the bend may cut the section in several regions; each of them is a strip.
std::optional<Bend> FindBend(Boundary& boundary, const Vector3& normal, double place) {
  const PlaneFrame plane = FrameAcross(normal, {});
  const Span span = boundary.Along(normal);
  const double middle = span.Middle() + place * span.Length();
  const std::vector<FlatRegion> regions = RegionsAt(boundary, plane, middle);
  if (regions.empty() || !regions[0].holes.empty()) return std::nullopt;
  const std::optional<Strip> strip = FindStrip(regions[0].outer);
  if (!strip) return std::nullopt;
  const std::optional<MiddleLine> line = MiddleOf(*strip);
  if (!line) return std::nullopt;
  Bend bend;
  bend.curve = line->curve;
  bend.normal = normal;
  PlaneFrame base = plane;
  base.origin += (middle - At(plane.origin, normal)) * normal;
  for (const Point2& p : line->points) bend.points.push_back(Lift(base, p));
  const std::size_t last = bend.points.size() - 1;
  bend.tangent = Unit(bend.points[1] - bend.points[0]);
  bend.ends[0] = EndNormal(base, strip->left.front(), strip->right.front(), -bend.tangent);
  bend.ends[1] = EndNormal(base, strip->left.back(), strip->right.back(),
                           bend.points[last] - bend.points[last - 1]);
  if (bend.curve != CurveForm::kArc) return bend;
  ArcInSpace arc;
  if (!MakeArc(bend.points[0], bend.points[1], bend.points[2], arc)) return std::nullopt;
  bend.tangent = Unit(Cross(arc.normal, bend.points[0] - arc.centre));
  return bend;
}

// Where the lines with two directions meet that are a distance to the side of their own points.
Vector3 AtBend(const Vector3& before, const Vector3& after, const Vector3& normal,
               double distance) {
  const Vector3 across = Unit(Cross(normal, before) + Cross(normal, after));
  const double cosine = Dot(across, Unit(Cross(normal, before)));
  return (distance / std::max(cosine, 0.1)) * across;
}

// An arc about the same axis that starts in another point.
std::vector<Point3> MoveArc(const Bend& bend, const Point3& start) {
  ArcInSpace arc;
  if (!MakeArc(bend.points[0], bend.points[1], bend.points[2], arc)) return {};
  const Vector3 shift = start - bend.points[0];
  const Vector3 along = Dot(shift, bend.normal) * bend.normal;
  const double radius = Length(bend.points[0] - arc.centre);
  const double moved = Length(bend.points[0] + (shift - along) - arc.centre);
  std::vector<Point3> points;
  for (const Point3& p : bend.points) {
    points.push_back(arc.centre + (p - arc.centre) * (moved / radius) + along);
  }
  return points;
}

// A line with the same bends whose first edge runs through another point.
std::vector<Point3> MoveLine(const Bend& bend, const Point3& through) {
  const Vector3 shift = through - bend.points[0];
  const Vector3 along = Dot(shift, bend.normal) * bend.normal;
  const double side = Dot(shift, Cross(bend.normal, bend.tangent));
  const std::size_t last = bend.points.size() - 1;
  const auto edge = [&](std::size_t k) { return Unit(bend.points[k + 1] - bend.points[k]); };
  std::vector<Point3> points;
  for (std::size_t i = 0; i <= last; ++i) {
    const Vector3 before = edge(i == 0 ? 0 : i - 1);
    const Vector3 after = edge(std::min(i, last - 1));
    points.push_back(bend.points[i] + AtBend(before, after, bend.normal, side) + along);
  }
  // Both ends stay in their planes.
  for (const std::size_t i : {std::size_t{0}, last}) {
    const Vector3& normal = bend.ends[i == 0 ? 0 : 1];
    const Vector3 direction = edge(i == 0 ? 0 : last - 1);
    const double slope = Dot(direction, normal);
    if (std::fabs(slope) < 0.1) return {};
    points[i] += (Dot(bend.points[i] - points[i], normal) / slope) * direction;
  }
  return points;
}

// The ends of a line with bends that are not square.
void SetEnds(const Bend& bend, MemberAxis& axis) {
  constexpr double kSquare = 1.0 - 1e-8;
  const std::size_t last = axis.points.size() - 1;
  const Vector3 outwards[2] = {axis.points[0] - axis.points[1],
                               axis.points[last] - axis.points[last - 1]};
  for (const std::size_t k : {0U, 1U}) {
    if (Dot(Unit(outwards[k]), bend.ends[k]) > kSquare) continue;
    axis.ends[k] = EndPlane{axis.points[k == 0 ? 0 : last], bend.ends[k]};
  }
}

double LengthOf(const std::vector<Point3>& points) {
  double length = 0.0;
  for (std::size_t i = 1; i < points.size(); ++i) length += Length(points[i] - points[i - 1]);
  return length;
}

}  // namespace

std::optional<Reading> ReadCurvedMember(Subject& subject, const Vector3& normal) {
  std::optional<Bend> bend;
  for (const double place : kPlaces) {
    if (!bend) bend = FindBend(subject.boundary, normal, place);
  }
  if (!bend) return std::nullopt;
  const bool isArc = bend->curve == CurveForm::kArc;
  const PlaneFrame plane = FrameAcross(bend->tangent, bend->points[0]);
  // Chords are farthest from their arc in the middle, ends of lines may not be square.
  const double beside = isArc ? kBeside : Length(bend->points[1] - bend->points[0]) / 2;
  const double at = At(bend->points[0], bend->tangent) + beside;
  std::vector<FlatRegion> regions = RegionsAt(subject.boundary, plane, at);
  // A plane across a bend of half a turn meets both ends.
  const auto isFar = [&](const FlatRegion& region) {
    return Distance(region.outer[0], Project(plane, bend->points[0])) > LengthOf(bend->points) / 4;
  };
  std::erase_if(regions, isFar);
  if (regions.size() != 1) return std::nullopt;
  FoundProfile found = FindProfile(regions[0], plane, {});
  Reading reading;
  reading.kind = ElementKind::kMember;
  reading.member.curve = bend->curve;
  reading.member.points =
      isArc ? MoveArc(*bend, found.frame.origin) : MoveLine(*bend, found.frame.origin);
  reading.member.y = found.frame.x;
  if (reading.member.points.size() < 2) return std::nullopt;
  if (!isArc) SetEnds(*bend, reading.member);
  const Proportions proportions =
      ProportionsOfMember(found.profile.outline, LengthOf(reading.member.points));
  const Extent2 extent = ExtentOf(found.profile.outline);
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = std::max(extent.x.Length(), extent.y.Length());
  reading.profile = std::move(found.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace KelIFC::building::idealising
