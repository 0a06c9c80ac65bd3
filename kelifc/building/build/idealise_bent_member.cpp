#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/build/idealise_member.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_solid.h"
#include "kelifc/building/build/idealise_strip.h"

namespace KelIFC::building::idealising {
namespace {

// Where the body is cut in the plane of the bends, as a part of its extent. A little beside the
// middle, so that the cut does not run through points.
constexpr double kCut = 0.4999;

// Ends whose corners are within this distance of a radius of the arc are square, in metres.
constexpr double kSquareEnd = 1e-3;

// The strip in which the plane of the bends cuts a member. The plane goes through the origin.
struct Bends {
  PlaneFrame plane;
  Strip strip;
  std::size_t edge = 0;  // the longest one of the left side

  Vector3 Normal() const { return NormalOf(plane); }
  Point2 MiddleOfEdge() const { return Between(strip.left[edge], strip.left[edge + 1]); }
  Vector2 EdgeDirection() const {
    Vector2 direction = strip.left[edge + 1] - strip.left[edge];
    Normalise(direction);
    return direction;
  }
  Vector3 InSpace(const Vector2& v) const { return v.x * plane.x + v.y * plane.y; }
};

// The profile in the middle of an edge, the place of its centroid in the plane of the bends, and
// its level above that plane.
struct MiddleProfile {
  FoundProfile found;
  Point2 centroid;
  double level = 0.0;
};

std::size_t LongestEdge(const Outline& chain) {
  std::size_t longest = 0;
  for (std::size_t i = 1; i + 1 < chain.size(); ++i) {
    if (Distance(chain[i], chain[i + 1]) > Distance(chain[longest], chain[longest + 1]) + 1e-9) {
      longest = i;
    }
  }
  return longest;
}

std::optional<Strip> StripOf(const Outline& outline) {
  if (std::optional<ArcStrip> arcs = FindArcStrip(outline)) return std::move(arcs->strip);
  std::optional<Strip> strip = FindStrip(outline);
  return strip ? strip : FindParallelStrip(outline);
}

std::optional<Bends> FindBends(Subject& subject, const Vector3& normal) {
  Bends bends;
  bends.plane = FrameAcross(normal, {});
  const Span span = subject.boundary.Along(bends.Normal());
  if (!(span.Length() > 1e-6)) return std::nullopt;
  const std::optional<Section> section =
      SectionAt(subject.boundary, bends.plane, span.from + kCut * span.Length());
  if (!section || !section->region.holes.empty()) return std::nullopt;
  std::optional<Strip> strip = StripOf(section->region.outer);
  if (!strip) return std::nullopt;
  bends.strip = std::move(*strip);
  const Vector3 chord = bends.InSpace(bends.strip.left.back() - bends.strip.left.front());
  if (!(Length(chord) > 1e-6)) return std::nullopt;
  if (Dot(OrientAxis(subject, Unit(chord)), chord) < 0.0) {
    std::reverse(bends.strip.left.begin(), bends.strip.left.end());
    std::reverse(bends.strip.right.begin(), bends.strip.right.end());
  }
  bends.edge = LongestEdge(bends.strip.left);
  return bends;
}

std::optional<MiddleProfile> FindMiddleProfile(Subject& subject, const Bends& bends) {
  const Vector3 normal = bends.Normal();
  const Span span = subject.boundary.Along(normal);
  const Point3 onEdge =
      Lift(bends.plane, bends.MiddleOfEdge()) + (span.from + kCut * span.Length()) * normal;
  const PlaneFrame across = FrameAcross(bends.InSpace(bends.EdgeDirection()), onEdge);
  const std::optional<FlatRegion> region = RegionAround(subject.boundary, across);
  if (!region) return std::nullopt;
  MiddleProfile middle{FindProfile(*region, across, {}), {}, 0.0};
  middle.centroid = Project(bends.plane, middle.found.frame.origin);
  middle.level = At(middle.found.frame.origin, normal);
  return middle;
}

Point3 AtLevel(const Bends& bends, const Point2& p, double level) {
  return Lift(bends.plane, p) + level * bends.Normal();
}

// A direction of the profile in the middle, turned from one direction of the plane to another one.
Vector3 Turned(const Bends& bends, const Vector3& v, const Vector2& from, const Vector2& to) {
  ArcInSpace turn;
  turn.normal = bends.Normal();
  return turn.Turn(Point3(v.x, v.y, v.z), std::atan2(Cross(from, to), Dot(from, to))) - Point3();
}

bool IsRadial(const Point2& centre, const Point2& a, const Point2& b) {
  Vector2 radius = a - centre;
  Normalise(radius);
  return std::abs(Cross(radius, b - centre)) <= kSquareEnd && Dot(radius, b - centre) > 0.0;
}

// The member along an arc. The profile was cut in the middle of a chord, which is nearer to the
// centre than the arc.
std::optional<Reading> AlongArc(const Bends& bends, const MiddleProfile& middle) {
  const std::optional<StripCircles> circles = FindCircles(bends.strip);
  if (!circles || circles->chordError > kLargestChordError) return std::nullopt;
  const Outline& left = bends.strip.left;
  const Outline& right = bends.strip.right;
  const Point2 centre = Between(circles->left.centre, circles->right.centre);
  if (!IsRadial(centre, left.front(), right.front()) ||
      !IsRadial(centre, left.back(), right.back())) {
    return std::nullopt;
  }
  const double radius = Distance(centre, middle.centroid) * circles->left.radius /
                        Distance(centre, bends.MiddleOfEdge());
  const auto towards = [&](const Point2& p) {
    return AtLevel(bends, centre + (p - centre) * (radius / Distance(centre, p)), middle.level);
  };
  Reading reading;
  reading.member.curve = CurveForm::kArc;
  reading.member.points = {towards(left.front()), towards(left[left.size() / 2]),
                           towards(left.back())};
  reading.member.y =
      Turned(bends, middle.found.frame.x, bends.MiddleOfEdge() - centre, left.front() - centre);
  return reading;
}

std::optional<EndPlane> EndOf(const Bends& bends, const Point3& point, const Vector2& across,
                              const Vector3& out) {
  Vector3 normal = Unit(Cross(bends.InSpace(across), bends.Normal()));
  if (Dot(normal, out) < 0.0) normal = -normal;
  if (Dot(normal, out) > kSquareCosine) return std::nullopt;
  return EndPlane{point, normal};
}

// The member along the line with bends on which the centroids lie. They divide the way from the
// left side to the right one by the same part everywhere.
std::optional<Reading> AlongPolyline(const Bends& bends, const MiddleProfile& middle) {
  const Outline& left = bends.strip.left;
  const Outline& right = bends.strip.right;
  if (left.size() != right.size()) return std::nullopt;
  const Vector2 edge = bends.EdgeDirection();
  const double width = Cross(right[bends.edge] - left[bends.edge], edge);
  if (!(std::abs(width) > 1e-6)) return std::nullopt;
  const double part = Cross(middle.centroid - left[bends.edge], edge) / width;
  Reading reading;
  reading.member.curve = CurveForm::kPolyline;
  std::vector<Point3>& points = reading.member.points;
  for (std::size_t i = 0; i < left.size(); ++i) {
    points.push_back(AtLevel(bends, left[i] + (right[i] - left[i]) * part, middle.level));
  }
  reading.member.y = Turned(bends, middle.found.frame.x, edge, left[1] - left[0]);
  const std::size_t last = points.size() - 1;
  reading.member.ends[0] = EndOf(bends, points[0], right[0] - left[0], Unit(points[0] - points[1]));
  reading.member.ends[1] =
      EndOf(bends, points[last], right[last] - left[last], Unit(points[last] - points[last - 1]));
  return reading;
}

}  // namespace

std::optional<Reading> ReadBentMember(Subject& subject, const Vector3& normal) {
  const std::optional<Bends> bends = FindBends(subject, normal);
  if (!bends) return std::nullopt;
  std::optional<MiddleProfile> middle = FindMiddleProfile(subject, *bends);
  if (!middle) return std::nullopt;
  std::optional<Reading> reading = AlongArc(*bends, *middle);
  if (!reading) reading = AlongPolyline(*bends, *middle);
  if (!reading) return std::nullopt;
  reading->profile = std::move(middle->found.profile);
  return FinishCurvedMember(subject, std::move(*reading));
}

}  // namespace KelIFC::building::idealising
