#include "kelifc/building/build/idealise_envelope.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "kelifc/building/solid/rings.h"
#include "kelifc/building/solid/unite_regions.h"

namespace KelIFC::building::idealising {
namespace {

// A body with more sections, or with longer outlines, was hardly cut from a prism.
constexpr std::size_t kMostIntervals = 12;
constexpr std::size_t kMostRegions = 12;
constexpr std::size_t kMostPoints = 240;

// The prism may be larger than the body by this factor.
constexpr double kLargestVolume = 1.4;

// Shorter intervals come from rounded coordinates, in metres.
constexpr double kShortest = 1e-4;

// How far beside the end of an interval its section is taken, as a part of the interval.
constexpr double kBeside = 1e-4;

// Regions whose boxes and areas differ by less are one, in metres.
constexpr double kSameSize = 1e-4;

// The corners of a united outline that are nearer to the line of their neighbours go, in metres.
constexpr double kStraight = 5e-5;

bool AreClose(const Span& a, const Span& b) {
  return std::fabs(a.from - b.from) < kSameSize && std::fabs(a.to - b.to) < kSameSize;
}

bool AreSame(const FlatRegion& a, const FlatRegion& b) {
  if (a.holes.size() != b.holes.size()) return false;
  const Extent2 first = ExtentOf(a.outer);
  const Extent2 second = ExtentOf(b.outer);
  return AreClose(first.x, second.x) && AreClose(first.y, second.y) &&
         std::fabs(AreaOf(a) - AreaOf(b)) < kSameSize * PerimeterOf(a.outer);
}

// The different regions of the sections at both ends of each interval. None if there are too many.
class Sections {
 public:
  Sections(Boundary& source, const PlaneFrame& sections) : boundary(source), plane(sections) {}

  bool Add(const Span& interval) {
    for (const double part : {kBeside, 1.0 - kBeside}) {
      if (!AddAt(interval.from + part * interval.Length())) return false;
    }
    return true;
  }

  const std::vector<FlatRegion>& Regions() const { return regions; }

 private:
  bool AddAt(double at) {
    for (FlatRegion& region : RegionsAt(boundary, plane, at)) {
      const bool isKnown =
          std::any_of(regions.begin(), regions.end(),
                      [&](const FlatRegion& known) { return AreSame(known, region); });
      if (isKnown) continue;
      pointCount += PointsOf(region).size();
      regions.push_back(std::move(region));
      if (regions.size() > kMostRegions || pointCount > kMostPoints) return false;
    }
    return true;
  }

  Boundary& boundary;
  const PlaneFrame& plane;
  std::vector<FlatRegion> regions;
  std::size_t pointCount = 0;
};

}  // namespace

std::optional<Section> EnvelopeOf(Boundary& boundary, const PlaneFrame& plane, const Span& span) {
  const std::optional<double> volume = boundary.Volume();
  std::vector<Span> intervals = IntervalsWithoutPoints(boundary, NormalOf(plane), span);
  std::erase_if(intervals, [](const Span& interval) { return interval.Length() < kShortest; });
  if (!volume || intervals.size() < 2 || intervals.size() > kMostIntervals) return std::nullopt;
  Sections sections(boundary, plane);
  for (const Span& interval : intervals) {
    if (!sections.Add(interval)) return std::nullopt;
  }
  const double largest = kLargestVolume * *volume / span.Length();
  for (const FlatRegion& region : sections.Regions()) {
    if (AreaOf(region) > largest) return std::nullopt;
  }
  if (sections.Regions().size() < 2) return std::nullopt;
  std::vector<FlatRegion> united = UniteRegions(sections.Regions(), kStraight);
  if (united.size() != 1 || AreaOf(united[0]) > largest) return std::nullopt;
  Section envelope;
  envelope.area = AreaOf(united[0]);
  envelope.region = std::move(united[0]);
  envelope.regionCount = 1;
  envelope.length = span.Length();
  envelope.at = span.Middle();
  return envelope;
}

}  // namespace KelIFC::building::idealising
