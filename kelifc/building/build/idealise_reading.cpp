#include "kelifc/building/build/idealise_reading.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC::building::idealising {
namespace {

// Divisors are at least this size, in metres, so that proportions stay finite.
constexpr double kLeastSize = 1e-6;

// Solids whose volume is not in this range of that of the body are not measured.
constexpr double kLeastVolume = 0.7;
constexpr double kMostVolume = 1.5;

/// A limit of slenderness or flatness, and the suitability from there on.
struct Grade {
  double limit = 0.0;
  double suitability = 0.0;
};

template <std::size_t n>
double GradeOf(const Grade (&grades)[n], double value) {
  for (const Grade& grade : grades) {
    if (value >= grade.limit) return grade.suitability;
  }
  return 0.0;
}

// Grades by falling limit. The last one holds for all values: a prism is read as what it is,
// whatever its proportions.
constexpr Grade kMemberAsMember[] = {{3.0, 1.0}, {1.2, 0.8}, {0.8, 0.3}, {0.0, 0.1}};
constexpr Grade kPlaneAsMember[] = {{3.0, 0.5}, {2.5, 0.4}, {1.2, 0.15}, {0.0, 0.1}};
constexpr Grade kPlaneAsSurface[] = {{3.0, 1.0}, {1.5, 0.8}, {1.0, 0.45}, {0.5, 0.2}, {0.0, 0.1}};
constexpr Grade kMemberAsSurface[] = {{3.0, 0.5}, {1.5, 0.2}, {0.0, 0.1}};
constexpr Grade kFootingAsMember[] = {{2.5, 0.95}, {1.2, 0.3}, {0.0, 0.1}};
constexpr Grade kFootingAsSurface[] = {{2.5, 0.9}, {1.0, 0.6}, {0.7, 0.35}, {0.0, 0.1}};
constexpr Grade kAnything[] = {{3.0, 0.9}, {2.0, 0.6}, {1.2, 0.3}, {0.0, 0.1}};

// A reading that is exact is better than any other one, even if its proportions are unusual.
enum Rank : int { kUnacceptable, kApproximate, kExact };

Rank RankOf(const Reading& reading) {
  if (!IsAcceptable(reading)) return kUnacceptable;
  return reading.fit.isApproximate ? kApproximate : kExact;
}

bool FollowsAnArc(const Reading& reading) {
  if (reading.kind == ElementKind::kMember) return reading.member.curve == CurveForm::kArc;
  return reading.surface.sweep && reading.surface.sweep->curve == CurveForm::kArc;
}

// The factor if the element is flat rather than slender, or the other way round.
constexpr double kOtherKindIsNearer = 0.6;

}  // namespace

double SuitabilityOfMember(ElementRole role, const Proportions& proportions) {
  const double slenderness = proportions.slenderness;
  switch (role) {
    case ElementRole::kMember:
      return GradeOf(kMemberAsMember, slenderness);
    case ElementRole::kWall:
    case ElementRole::kSlab:
    case ElementRole::kPlate:
      return GradeOf(kPlaneAsMember, slenderness);
    case ElementRole::kFooting:
      return GradeOf(kFootingAsMember, slenderness) *
             (2.0 * slenderness < proportions.flatness ? kOtherKindIsNearer : 1.0);
    case ElementRole::kOther:
      break;
  }
  return GradeOf(kAnything, slenderness) *
         (slenderness < proportions.flatness ? kOtherKindIsNearer : 1.0);
}

double SuitabilityOfSurface(ElementRole role, const Proportions& proportions) {
  const double flatness = proportions.flatness;
  switch (role) {
    case ElementRole::kMember:
      return GradeOf(kMemberAsSurface, flatness);
    case ElementRole::kWall:
    case ElementRole::kSlab:
    case ElementRole::kPlate:
      return GradeOf(kPlaneAsSurface, flatness);
    case ElementRole::kFooting:
      return GradeOf(kFootingAsSurface, flatness);
    case ElementRole::kOther:
      break;
  }
  return GradeOf(kAnything, flatness) *
         (flatness <= proportions.slenderness ? kOtherKindIsNearer : 1.0);
}

double PreferenceOf(const Subject& subject, const Vector3& normal) {
  switch (subject.role) {
    case ElementRole::kWall: {
      if (std::fabs(normal.z) > 0.1) return 0.0;
      if (subject.product == nullptr) return 0.02;
      const Vector3 side = Unit(subject.product->placement.y);
      return std::fabs(Dot(side, normal)) > 0.999 ? 0.03 : 0.02;
    }
    case ElementRole::kSlab:
    case ElementRole::kFooting:
      return std::fabs(normal.z) > 0.5 ? 0.03 : 0.0;
    default:
      return 0.0;
  }
}

bool Measure(Subject& subject, Reading& reading) {
  reading.solid = reading.kind == ElementKind::kMember
                      ? MakeMemberSolid(reading.member, reading.profile,
                                        reading.endProfile ? &*reading.endProfile : nullptr)
                      : MakeSurfaceSolid(reading.surface);
  if (reading.solid.IsEmpty()) return false;
  for (const Point3& p : reading.solid.points) {
    if (!IsFinite(FromOrigin(p))) return false;
  }
  if (const std::optional<double> volume = subject.boundary.Volume()) {
    const double ratio = VolumeOf(reading.solid) / *volume;
    if (!(ratio > kLeastVolume && ratio < kMostVolume)) return false;
  }
  reading.fit = MeasureFit(subject.boundary, reading.solid,
                           FollowsAnArc(reading) ? kOnCurvedSurface : kOnPlaneSurface);
  return reading.fit.volume > 0.0;
}

double ScoreOf(const Reading& reading) {
  if (reading.fit.isApproximate) {
    const double volumeError = reading.fit.ratio ? std::fabs(*reading.fit.ratio - 1.0) : 0.0;
    const double relative = reading.fit.deviation / std::max(reading.size, kLeastSize);
    return reading.suitability - 0.3 - std::min(1.0, relative) - std::min(1.0, volumeError);
  }
  // A few cut-outs are usual. Many, or large ones, hint at a better way to see the element.
  if (reading.fit.cutouts == 0) return reading.suitability;
  return reading.suitability - 0.03 - std::max(0.0, *reading.fit.ratio - 1.0);
}

bool IsAcceptable(const Reading& reading) {
  constexpr double kLeastSuitability = 0.2;
  constexpr double kLargestRelativeDeviation = 0.12;
  constexpr double kLargestVolumeError = 0.25;
  if (!reading.fit.isApproximate) return true;
  if (reading.suitability < kLeastSuitability) return false;
  return reading.fit.deviation <= kLargestRelativeDeviation * reading.size &&
         (!reading.fit.ratio || std::fabs(*reading.fit.ratio - 1.0) <= kLargestVolumeError);
}

void KeepBetter(std::optional<Reading>& best, std::optional<Reading> other) {
  if (!other) return;
  const int rank = best ? RankOf(*best) : kUnacceptable;
  const int otherRank = RankOf(*other);
  if (!best || otherRank > rank || (otherRank == rank && ScoreOf(*other) > ScoreOf(*best) + 1e-9)) {
    best = std::move(other);
  }
}

bool IsGood(const std::optional<Reading>& reading) {
  // A large cut may run along the whole element; then slices find a better section.
  constexpr double kLargestCut = 1.02;
  return reading && !reading->fit.isApproximate && ScoreOf(*reading) >= kSuitable &&
         (reading->fit.cutouts == 0 || *reading->fit.ratio < kLargestCut);
}

Proportions ProportionsOfMember(const Outline& section, double length) {
  const Extent2 extent = ExtentOf(section);
  const double larger = std::max({extent.x.Length(), extent.y.Length(), kLeastSize});
  const double smaller = std::max(std::min(extent.x.Length(), extent.y.Length()), kLeastSize);
  return {length / larger, std::min(length, larger) / smaller};
}

Proportions ProportionsOfSurface(const Outline& outline, const std::vector<Outline>& holes,
                                 double thickness) {
  const Extent2 extent = ExtentOf(outline);
  double area = std::fabs(AreaOf(outline));
  double perimeter = PerimeterOf(outline);
  for (const Outline& hole : holes) {
    // A small hole leaves the width as it is; a large one makes a frame of the surface.
    const double holeArea = std::fabs(AreaOf(hole));
    if (holeArea < 0.25 * area) continue;
    perimeter += PerimeterOf(hole);
    area -= holeArea;
  }
  const double larger = std::max(extent.x.Length(), extent.y.Length());
  double smaller = std::min(extent.x.Length(), extent.y.Length());
  // The width of a strip is twice its area by its perimeter, of a square four times.
  smaller = std::max(std::min(smaller, 4.0 * area / std::max(perimeter, kLeastSize)), kLeastSize);
  return {larger / smaller, smaller / std::max(thickness, kLeastSize)};
}

}  // namespace KelIFC::building::idealising
