#include "kelifc/building/build/idealise_taper.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_bevel.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_scan.h"

namespace KelIFC::building::idealising {
namespace {

// The places of the two sections, as parts of the length. Ends may have plates or cuts.
constexpr double kFirstPlace = 0.2;
constexpr double kSecondPlace = 0.8;

// The points of a loop at a place, from their places in two sections.
Outline Extrapolate(const Outline& first, const Outline& second, double place) {
  Outline loop;
  const double part = (place - kFirstPlace) / (kSecondPlace - kFirstPlace);
  for (std::size_t i = 0; i < first.size(); ++i) {
    loop.push_back(first[i] + (second[i] - first[i]) * part);
  }
  return loop;
}

struct TwoRegions {
  FlatRegion start;
  FlatRegion end;
};

std::optional<TwoRegions> FindEnds(const FlatRegion& first, FlatRegion second) {
  if (!Align(first, second)) return std::nullopt;
  TwoRegions ends;
  ends.start.outer = Extrapolate(first.outer, second.outer, 0.0);
  ends.end.outer = Extrapolate(first.outer, second.outer, 1.0);
  for (std::size_t i = 0; i < first.holes.size(); ++i) {
    ends.start.holes.push_back(Extrapolate(first.holes[i], second.holes[i], 0.0));
    ends.end.holes.push_back(Extrapolate(first.holes[i], second.holes[i], 1.0));
  }
  if (!(AreaOf(ends.start.outer) > 1e-8) || !(AreaOf(ends.end.outer) > 1e-8)) return std::nullopt;
  return ends;
}

}  // namespace

void SetTaperedAxis(MemberAxis& axis, const Point3& start, const Point3& end, const Vector3& along,
                    const Vector3& y) {
  axis.points = {start, end};
  const Vector3 x = Unit(end - start);
  axis.y = Unit(y - Dot(y, x) * x);
  if (Length(Cross(x, along)) < 1e-9) return;
  axis.ends[0] = EndPlane{start, -along};
  axis.ends[1] = EndPlane{end, along};
}

std::optional<Reading> ReadTapered(Subject& subject, const PlaneFrame& plane, const Span& span) {
  const auto place = [&](double part) { return span.from + part * span.Length(); };
  const std::optional<Section> first = SectionAt(subject.boundary, plane, place(kFirstPlace));
  const std::optional<Section> second = SectionAt(subject.boundary, plane, place(kSecondPlace));
  if (!first || !second || first->regionCount != 1 || second->regionCount != 1) {
    return std::nullopt;
  }
  std::optional<TwoRegions> ends = FindEnds(first->region, second->region);
  if (!ends) return std::nullopt;
  FoundProfile start = FindProfile(ends->start, plane, {});
  FoundProfile end = ProfileInFrame(ends->end, plane, start.frame, {});
  const Vector3 x = NormalOf(plane);
  const auto moveTo = [&](Point3& p, double at) { p += (at - At(p, x)) * x; };
  moveTo(start.frame.origin, span.from);
  moveTo(end.frame.origin, span.to);
  Reading reading;
  reading.kind = ElementKind::kMember;
  SetTaperedAxis(reading.member, start.frame.origin, end.frame.origin, x, start.frame.x);
  const Proportions proportions = ProportionsOfMember(start.profile.outline, span.Length());
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = span.Length() / std::max(proportions.slenderness, 1e-9);
  reading.profile = std::move(start.profile);
  reading.endProfile = std::move(end.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace KelIFC::building::idealising
