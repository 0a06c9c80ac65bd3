#include "kelifc/building/build/idealise_scan.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kelifc/building/solid/unite_regions.h"

namespace KelIFC::building::idealising {
namespace {

// Points of an outline nearer than this to the line of their neighbours are left out, in metres.
constexpr double kCollinear = 2e-5;

// Sections of solids nearer to each other than this are one, in metres.
constexpr double kTouching = 5e-5;

// Coordinates nearer to each other than this are one, in metres.
constexpr double kSameCoordinate = 1e-6;

// Sections are the same if their sizes differ by less, in metres.
constexpr double kSameSize = 5e-4;

// After so many stations the scan ends if the section of the longest interval, and the last one,
// hold over less than this part of the length: the boundary is no prism.
constexpr std::size_t kFewStations = 8;
constexpr double kLeastPart = 0.1;

// The longest intervals without points, longest first.
std::vector<Span> LongestIntervals(const Boundary& boundary, const Vector3& normal,
                                   const Span& span) {
  std::vector<Span> intervals = IntervalsWithoutPoints(boundary, normal, span);
  std::stable_sort(intervals.begin(), intervals.end(),
                   [](const Span& a, const Span& b) { return a.Length() > b.Length(); });
  if (intervals.size() > kMostStations) intervals.resize(kMostStations);
  return intervals;
}

bool AreClose(const Span& a, const Span& b) {
  return std::fabs(a.from - b.from) < kSameSize && std::fabs(a.to - b.to) < kSameSize;
}

bool AreSame(const Section& a, const Section& b) {
  if (a.regionCount != b.regionCount || a.region.holes.size() != b.region.holes.size()) {
    return false;
  }
  const Extent2 first = ExtentOf(a.region.outer);
  const Extent2 second = ExtentOf(b.region.outer);
  const double perimeter = PerimeterOf(a.region.outer);
  return AreClose(first.x, second.x) && AreClose(first.y, second.y) &&
         std::fabs(a.area - b.area) < kSameSize * perimeter;
}

}  // namespace

double AreaOf(const FlatRegion& region) {
  double area = std::fabs(AreaOf(region.outer));
  for (const Outline& hole : region.holes) area -= std::fabs(AreaOf(hole));
  return area;
}

std::vector<Span> IntervalsWithoutPoints(const Boundary& boundary, const Vector3& normal,
                                         const Span& span) {
  std::vector<double> coordinates{span.from, span.to};
  for (const Point3& p : boundary.Points()) {
    const double at = At(p, normal);
    if (at > span.from && at < span.to) coordinates.push_back(at);
  }
  std::sort(coordinates.begin(), coordinates.end());
  std::vector<Span> intervals;
  for (std::size_t i = 0; i + 1 < coordinates.size(); ++i) {
    if (coordinates[i + 1] - coordinates[i] > kSameCoordinate) {
      intervals.push_back({coordinates[i], coordinates[i + 1]});
    }
  }
  return intervals;
}

std::vector<FlatRegion> RegionsAt(Boundary& boundary, const PlaneFrame& plane, double at) {
  const Vector3 normal = NormalOf(plane);
  PlaneFrame moved = plane;
  moved.origin += (at - At(plane.origin, normal)) * normal;
  std::vector<FlatRegion> regions = Slice(boundary.Mesh(), moved, kCollinear);
  if (boundary.SolidCount() > 1) regions = UniteRegions(std::move(regions), kTouching);
  return regions;
}

std::optional<Section> SectionAt(Boundary& boundary, const PlaneFrame& plane, double at) {
  std::vector<FlatRegion> regions = RegionsAt(boundary, plane, at);
  if (regions.empty() || regions[0].outer.size() < 3) return std::nullopt;
  Section section;
  section.area = AreaOf(regions[0]);
  section.at = at;
  if (!(section.area > 1e-9)) return std::nullopt;
  for (const FlatRegion& region : regions) {
    if (AreaOf(region) > 1e-3 * section.area) ++section.regionCount;
  }
  section.region = std::move(regions[0]);
  return section;
}

std::optional<FlatRegion> RegionAround(Boundary& boundary, const PlaneFrame& plane) {
  constexpr double kSlack = 1e-4;  // metres, so that an origin on the outline counts
  std::optional<FlatRegion> found;
  for (FlatRegion& region : Slice(boundary.Mesh(), plane, kCollinear)) {
    const Extent2 extent = ExtentOf(region.outer);
    const bool isAround = extent.x.from <= kSlack && extent.x.to >= -kSlack &&
                          extent.y.from <= kSlack && extent.y.to >= -kSlack;
    if (!isAround || region.outer.size() < 3) continue;
    if (found) return std::nullopt;
    found = std::move(region);
  }
  return found;
}

Span LongestGap(const Boundary& boundary, const Vector3& normal, const Span& span) {
  const std::vector<Span> intervals = LongestIntervals(boundary, normal, span);
  return intervals.empty() ? span : intervals[0];
}

std::vector<Section> ScanSections(Boundary& boundary, const PlaneFrame& plane, const Span& span) {
  std::vector<Section> sections;
  std::size_t taken = 0;
  for (const Span& interval : LongestIntervals(boundary, NormalOf(plane), span)) {
    const double length = interval.Length();
    std::optional<Section> section = SectionAt(boundary, plane, interval.Middle());
    if (!section) continue;
    section->length = length;
    auto same = std::find_if(sections.begin(), sections.end(),
                             [&](const Section& known) { return AreSame(known, *section); });
    if (same != sections.end()) {
      same->length += length;
    } else {
      same = sections.insert(same, std::move(*section));
    }
    const double longest = same->length;
    if (longest > 0.5 * span.Length()) break;
    if (++taken >= kFewStations && longest < kLeastPart * span.Length() &&
        sections[0].length < kLeastPart * span.Length()) {
      break;
    }
  }
  std::stable_sort(sections.begin(), sections.end(),
                   [](const Section& a, const Section& b) { return a.length > b.length; });
  return sections;
}

}  // namespace KelIFC::building::idealising
