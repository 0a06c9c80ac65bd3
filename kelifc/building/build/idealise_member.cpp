#include "kelifc/building/build/idealise_member.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/build/idealise_envelope.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_taper.h"

namespace KelIFC::building::idealising {
namespace {

// A section that holds over a smaller part of the length is not that of the member.
constexpr double kLeastPart = 0.1;

bool SetEnd(const FoundEnd& found, const Point3& onAxis, const Vector3& x, Point3& point,
            std::optional<EndPlane>& plane) {
  const double slope = Dot(found.normal, x);
  if (std::fabs(slope) < 1e-3) return false;
  point = onAxis + (Dot(found.point - onAxis, found.normal) / slope) * x;
  if (!found.isSquare) plane = EndPlane{point, found.normal};
  return true;
}

std::optional<Reading> ReadWithSection(Subject& subject, const PlaneFrame& plane,
                                       const Section& section) {
  if (section.regionCount != 1) return std::nullopt;
  FoundProfile found = FindProfile(section.region, plane, {});
  const Vector3 x = NormalOf(plane);
  Reading reading;
  reading.kind = ElementKind::kMember;
  reading.member.points.resize(2);
  reading.member.y = found.frame.x;
  const FoundEnd start = FindEnd(subject.boundary, -x, section.area);
  const FoundEnd end = FindEnd(subject.boundary, x, section.area);
  if (!SetEnd(start, found.frame.origin, x, reading.member.points[0], reading.member.ends[0]) ||
      !SetEnd(end, found.frame.origin, x, reading.member.points[1], reading.member.ends[1])) {
    return std::nullopt;
  }
  const double length = Dot(reading.member.points[1] - reading.member.points[0], x);
  if (!(length > 1e-6)) return std::nullopt;
  const Proportions proportions = ProportionsOfMember(found.profile.outline, length);
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = length / std::max(proportions.slenderness, 1e-9);
  reading.profile = std::move(found.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

}  // namespace

std::optional<Reading> ReadMember(Subject& subject, const Vector3& direction) {
  const PlaneFrame plane = FrameAcross(OrientAxis(subject, direction), {});
  const Span span = subject.boundary.Along(NormalOf(plane));
  if (!(span.Length() > 1e-6)) return std::nullopt;
  const std::vector<Section> sections = ScanSections(subject.boundary, plane, span);
  if (sections.empty()) return std::nullopt;
  std::optional<Reading> best = ReadWithSection(subject, plane, sections[0]);
  if (best && !best->fit.isApproximate) return best;
  const auto largest =
      std::max_element(sections.begin(), sections.end(), [&](const Section& a, const Section& b) {
        const bool isLongA = a.length >= kLeastPart * span.Length();
        const bool isLongB = b.length >= kLeastPart * span.Length();
        return isLongA != isLongB ? isLongB : a.area < b.area;
      });
  if (largest != sections.begin()) KeepBetter(best, ReadWithSection(subject, plane, *largest));
  if (best && !best->fit.isApproximate) return best;
  KeepBetter(best, ReadTapered(subject, plane, span));
  if (best && !best->fit.isApproximate && best->fit.cutouts == 0) return best;
  KeepBetter(best, ReadCutTaper(subject, plane, span));
  return best;
}

std::optional<Reading> ReadMemberAround(Subject& subject, const Vector3& direction) {
  const PlaneFrame plane = FrameAcross(OrientAxis(subject, direction), {});
  const std::optional<Section> envelope =
      EnvelopeOf(subject.boundary, plane, subject.boundary.Along(NormalOf(plane)));
  if (!envelope) return std::nullopt;
  return ReadWithSection(subject, plane, *envelope);
}

Vector3 OrientAxis(const Subject& subject, const Vector3& direction) {
  constexpr double kHorizontal = 0.02;  // the sine of the largest slope of a horizontal axis
  if (subject.product != nullptr && subject.product->axis &&
      subject.product->axis->points.size() >= 2) {
    const std::vector<Point3>& points = subject.product->axis->points;
    const Vector3 along = Unit(subject.product->placement(points.back() - points.front()));
    const double cosine = Dot(along, direction);
    if (std::fabs(cosine) > 0.5) return cosine < 0.0 ? -direction : direction;
  }
  double sign = direction.z;
  if (std::fabs(sign) < kHorizontal) {
    sign = std::fabs(direction.x) > kHorizontal ? direction.x : direction.y;
  }
  return sign < 0.0 ? -direction : direction;
}

}  // namespace KelIFC::building::idealising
