#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_bends.h"
#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// The profile in the middle of an edge, the place of its centroid in the plane of the bends, and
// its level above that plane.
struct MiddleProfile {
  FoundProfile found;
  Point2 centroid;
  double level = 0.0;
};

std::optional<MiddleProfile> FindMiddleProfile(Subject& subject, const Bends& bends) {
  const Point3 onEdge = bends.AtLevel(bends.MiddleOfEdge(), LevelOfCut(subject, bends));
  const PlaneFrame across = FrameAcross(bends.InSpace(bends.EdgeDirection()), onEdge);
  const std::optional<FlatRegion> region = RegionAround(subject.boundary, across);
  if (!region) return std::nullopt;
  MiddleProfile middle{FindProfile(*region, across, {}), {}, 0.0};
  middle.centroid = Project(bends.plane, middle.found.frame.origin);
  middle.level = At(middle.found.frame.origin, bends.Normal());
  return middle;
}

// A direction of the profile in the middle, turned from one direction of the plane to another one.
Vector3 Turned(const Bends& bends, const Vector3& v, const Vector2& from, const Vector2& to) {
  ArcInSpace turn;
  turn.normal = bends.Normal();
  return turn.Turn(Point3(v.x, v.y, v.z), std::atan2(Cross(from, to), Dot(from, to))) - Point3();
}

std::optional<EndPlane> EndOf(const Bends& bends, const Point3& point, const Vector2& across,
                              const Vector3& out) {
  Vector3 normal = Unit(Cross(bends.InSpace(across), bends.Normal()));
  if (Dot(normal, out) < 0.0) normal = -normal;
  if (Dot(normal, out) > kSquareCosine) return std::nullopt;
  return EndPlane{point, normal};
}

// Where the line through the corners of an end meets a circle, nearest to the middle of the
// corners.
std::optional<Point2> OnEnd(const PlaneCircle& circle, const Point2& a, const Point2& b) {
  const Vector2 along = b - a;
  const Vector2 v = Between(a, b) - circle.centre;
  const double square = Dot(along, along);
  const double half = Dot(v, along);
  const double root = half * half - square * (Dot(v, v) - circle.radius * circle.radius);
  if (!(root >= 0.0) || !(square > 0.0)) return std::nullopt;
  const double part = (half > 0.0 ? std::sqrt(root) - half : -std::sqrt(root) - half) / square;
  return Between(a, b) + along * part;
}

// The end of a member along an arc: the place of the axis in the plane of the bends, and the plane
// of an end that is not square. `out` points out of the member.
struct ArcEnd {
  Point2 point;
  std::optional<EndPlane> plane;
};

std::optional<ArcEnd> ArcEndOf(const Bends& bends, const PlaneCircle& axis, double level,
                               const Point2& left, const Point2& right, const Vector2& out) {
  const Vector2 toLeft = left - axis.centre;
  if (IsRadial(axis.centre, left, right)) {
    return ArcEnd{axis.centre + toLeft * (axis.radius / Length(toLeft)), {}};
  }
  const std::optional<Point2> point = OnEnd(axis, left, right);
  if (!point) return std::nullopt;
  Vector2 tangent{axis.centre.y - point->y, point->x - axis.centre.x};
  Normalise(tangent);
  if (Dot(tangent, out) < 0.0) tangent = tangent * -1.0;
  return ArcEnd{*point,
                EndOf(bends, bends.AtLevel(*point, level), right - left, bends.InSpace(tangent))};
}

// The member along an arc. The profile was cut in the middle of a chord, which is nearer to the
// centre than the arc.
std::optional<Reading> AlongArc(const Bends& bends, const MiddleProfile& middle) {
  const std::optional<StripCircles> circles = FindCircles(bends.strip);
  if (!circles || circles->chordError > kLargestChordError) return std::nullopt;
  const Outline& left = bends.strip.left;
  const Outline& right = bends.strip.right;
  PlaneCircle axis{Between(circles->left.centre, circles->right.centre), 0.0};
  axis.radius = Distance(axis.centre, middle.centroid) * circles->left.radius /
                Distance(axis.centre, bends.MiddleOfEdge());
  const std::optional<ArcEnd> start =
      ArcEndOf(bends, axis, middle.level, left.front(), right.front(), left[0] - left[1]);
  const std::optional<ArcEnd> end = ArcEndOf(bends, axis, middle.level, left.back(), right.back(),
                                             left.back() - left[left.size() - 2]);
  if (!start || !end) return std::nullopt;
  const Vector2 between = left[left.size() / 2] - axis.centre;
  Reading reading;
  MemberAxis& member = reading.member;
  member.curve = CurveForm::kArc;
  for (const Point2& p :
       {start->point, axis.centre + between * (axis.radius / Length(between)), end->point}) {
    member.points.push_back(bends.AtLevel(p, middle.level));
  }
  member.ends = {start->plane, end->plane};
  member.y = Turned(bends, middle.found.frame.x, bends.MiddleOfEdge() - axis.centre,
                    start->point - axis.centre);
  return reading;
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
    points.push_back(bends.AtLevel(left[i] + (right[i] - left[i]) * part, middle.level));
  }
  reading.member.y = Turned(bends, middle.found.frame.x, edge, left[1] - left[0]);
  const std::size_t last = points.size() - 1;
  reading.member.ends[0] = EndOf(bends, points[0], right[0] - left[0], Unit(points[0] - points[1]));
  reading.member.ends[1] =
      EndOf(bends, points[last], right[last] - left[last], Unit(points[last] - points[last - 1]));
  return reading;
}

// Reads a member with the same profile everywhere.
std::optional<Reading> ReadEvenly(Subject& subject, const Bends& bends) {
  if (bends.strip.left.size() != bends.strip.right.size() && !FindCircles(bends.strip)) {
    return std::nullopt;
  }
  std::optional<MiddleProfile> middle = FindMiddleProfile(subject, bends);
  if (!middle) return std::nullopt;
  std::optional<Reading> reading = AlongArc(bends, *middle);
  if (!reading) reading = AlongPolyline(bends, *middle);
  if (!reading) return std::nullopt;
  reading->profile = std::move(middle->found.profile);
  return FinishCurvedMember(subject, std::move(*reading));
}

}  // namespace

std::optional<Reading> ReadBentMember(Subject& subject, const Vector3& normal) {
  const std::optional<Bends> bends = FindBends(subject, normal);
  if (!bends) return std::nullopt;
  std::optional<Reading> reading = ReadEvenly(subject, *bends);
  if (!reading || reading->fit.isApproximate) {
    KeepBetter(reading, ReadTaperedArc(subject, *bends));
  }
  return reading;
}

}  // namespace KelIFC::building::idealising
