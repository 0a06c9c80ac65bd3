#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "kelifc/building/build/idealise_bevel.h"
#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"
#include "kelifc/building/build/idealise_taper.h"

namespace KelIFC::building::idealising {
namespace {

// The places of the two sections between cut ends, as parts of the longest part without points.
constexpr double kGapStart = 0.1;
constexpr double kGapEnd = 0.9;

// The cosine of a line and the normal of a plane that the line hardly meets.
constexpr double kLeastSlope = 1e-3;

// A body that is shorter in relation to its section is a wedge and not a member.
constexpr double kLeastSlenderness = 0.5;

// The places where the lines through corresponding points of two sections meet a plane.
std::optional<std::vector<Point3>> LoopInPlane(const PlaneFrame& first, const Outline& firstLoop,
                                               const PlaneFrame& second, const Outline& secondLoop,
                                               const FoundEnd& end) {
  std::vector<Point3> loop;
  for (std::size_t i = 0; i < firstLoop.size(); ++i) {
    const Point3 from = Lift(first, firstLoop[i]);
    const Vector3 along = Lift(second, secondLoop[i]) - from;
    const double slope = Dot(along, end.normal);
    if (std::fabs(slope) < kLeastSlope * Length(along)) return std::nullopt;
    loop.push_back(from + (Dot(end.point - from, end.normal) / slope) * along);
  }
  return loop;
}

// A member between two sections with corresponding points, cut by a plane at each end.
struct CutTaper {
  PlaneFrame frames[2];
  FlatRegion regions[2];
  FoundEnd ends[2];
};

// The loops of the face in which a tapered member ends, the outer one first.
using EndFace = std::vector<std::vector<Point3>>;

std::optional<EndFace> EndFaceOf(const CutTaper& taper, const FoundEnd& end) {
  EndFace face;
  const auto add = [&](const Outline& first, const Outline& second) {
    auto loop = LoopInPlane(taper.frames[0], first, taper.frames[1], second, end);
    if (loop) face.push_back(std::move(*loop));
    return loop.has_value();
  };
  if (!add(taper.regions[0].outer, taper.regions[1].outer)) return std::nullopt;
  for (std::size_t i = 0; i < taper.regions[0].holes.size(); ++i) {
    if (!add(taper.regions[0].holes[i], taper.regions[1].holes[i])) return std::nullopt;
  }
  return face;
}

// A face as seen along the normal of a plane.
FlatRegion Seen(const EndFace& face, const PlaneFrame& plane) {
  FlatRegion region;
  for (std::size_t i = 0; i < face.size(); ++i) {
    Outline loop;
    for (const Point3& p : face[i]) loop.push_back(Project(plane, p));
    if (i == 0) {
      region.outer = std::move(loop);
    } else {
      region.holes.push_back(std::move(loop));
    }
  }
  return region;
}

// The centroid of a face in the plane of an end. A parallel projection keeps centroids.
Point3 CentroidOf(const EndFace& face, const PlaneFrame& plane, const FoundEnd& end) {
  const Point3 seen = Lift(plane, PropertiesOf(Seen(face, plane)).centroid);
  const Vector3 along = NormalOf(plane);
  return seen + (Dot(end.point - seen, end.normal) / Dot(along, end.normal)) * along;
}

std::optional<CutTaper> FindCutTaper(Subject& subject, const PlaneFrame& plane, const Span& span) {
  const Vector3 x = NormalOf(plane);
  const Span gap = LongestGap(subject.boundary, x, span);
  CutTaper taper;
  for (const std::size_t k : {0U, 1U}) {
    const double at = gap.from + (k == 0 ? kGapStart : kGapEnd) * gap.Length();
    std::optional<Section> section = SectionAt(subject.boundary, plane, at);
    if (!section || section->regionCount != 1) return std::nullopt;
    taper.frames[k] = plane;
    taper.frames[k].origin += (at - At(plane.origin, x)) * x;
    taper.ends[k] = FindEnd(subject.boundary, k == 0 ? -x : x, section->area);
    if (std::fabs(Dot(taper.ends[k].normal, x)) < kLeastSlope) return std::nullopt;
    taper.regions[k] = std::move(section->region);
  }
  const bool isSkew = !taper.ends[0].isSquare || !taper.ends[1].isSquare;
  if (!isSkew || !Align(taper.regions[0], taper.regions[1])) return std::nullopt;
  return taper;
}

void SetEnd(const FoundEnd& found, const Point3& point, const Vector3& out,
            std::optional<EndPlane>& end) {
  if (Dot(found.normal, out) < kSquareCosine) end = EndPlane{point, found.normal};
}

}  // namespace

std::optional<Reading> ReadCutTaper(Subject& subject, const PlaneFrame& plane, const Span& span) {
  const std::optional<CutTaper> taper = FindCutTaper(subject, plane, span);
  if (!taper) return std::nullopt;
  const std::optional<EndFace> first = EndFaceOf(*taper, taper->ends[0]);
  const std::optional<EndFace> last = EndFaceOf(*taper, taper->ends[1]);
  if (!first || !last) return std::nullopt;
  const Point3 a = CentroidOf(*first, plane, taper->ends[0]);
  const Point3 b = CentroidOf(*last, plane, taper->ends[1]);
  const Vector3 x = Unit(b - a);
  if (!(Dot(x, NormalOf(plane)) > 0.5)) return std::nullopt;
  const PlaneFrame across = FrameAcross(x, a);
  FoundProfile start = FindProfile(Seen(*first, across), across, {});
  FoundProfile end = ProfileInFrame(Seen(*last, across), across, start.frame, {});
  if (!(start.profile.area > 1e-8) || !(end.profile.area > 1e-8)) return std::nullopt;
  Reading reading;
  reading.kind = ElementKind::kMember;
  reading.member.points = {a, b};
  reading.member.y = start.frame.x;
  SetEnd(taper->ends[0], a, -x, reading.member.ends[0]);
  SetEnd(taper->ends[1], b, x, reading.member.ends[1]);
  const Proportions proportions = ProportionsOfMember(start.profile.outline, Length(b - a));
  if (!(proportions.slenderness > kLeastSlenderness)) return std::nullopt;
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = Length(b - a) / std::max(proportions.slenderness, 1e-9);
  reading.profile = std::move(start.profile);
  reading.endProfile = std::move(end.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace KelIFC::building::idealising
