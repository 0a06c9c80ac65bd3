#include "kelifc/building/build/idealise_direct.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_box.h"
#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_ends.h"
#include "kelifc/building/build/idealise_profile.h"
#include "kelifc/building/build/idealise_surface.h"
#include "kelifc/building/build/idealise_taper.h"

namespace KelIFC::building::idealising {
namespace {

// The profile of an extrusion and its axes in space: x of the frame is y of the profile.
struct PlacedInSpace {
  PlacedProfile placed;
  PlaneFrame frame;
};

std::optional<PlacedInSpace> PlaceProfile(Subject& subject, const ProfilePointer& facts,
                                          const StraightExtrusion& straight) {
  MadeProfiles own;
  MadeProfiles& profiles = subject.profiles != nullptr ? *subject.profiles : own;
  const std::optional<PlacedProfile>& placed = profiles.Get(facts, straight.scale);
  if (!placed) return std::nullopt;
  PlacedInSpace result{*placed, straight.frame};
  if (!straight.isMirrored) return result;
  result.frame.y = -result.frame.y;
  result.placed.offset.y = -result.placed.offset.y;
  MirrorProfile(result.placed.profile);
  return result;
}

void SetMemberSizes(const Subject& subject, const Outline& section, double length,
                    Reading& reading) {
  const Proportions proportions = ProportionsOfMember(section, length);
  reading.kind = ElementKind::kMember;
  reading.suitability = SuitabilityOfMember(subject.role, proportions);
  reading.size = length / std::max(proportions.slenderness, 1e-9);
}

// Moves the ends of the axis to the planes in which the body ends.
bool SetCutEnds(Subject& subject, const Vector3& x, double area, MemberAxis& axis) {
  for (const int k : {0, 1}) {
    const FoundEnd end = FindEnd(subject.boundary, k == 0 ? -x : x, area);
    const double slope = Dot(end.normal, x);
    if (std::fabs(slope) < 1e-3) return false;
    Point3& point = axis.points[static_cast<std::size_t>(k)];
    point += (Dot(end.point - point, end.normal) / slope) * x;
    if (!end.isSquare) axis.ends[static_cast<std::size_t>(k)] = EndPlane{point, end.normal};
  }
  return Dot(axis.points[1] - axis.points[0], x) > 1e-6;
}

std::optional<Reading> ReadStraightMember(Subject& subject, const StraightExtrusion& straight,
                                          const PlacedInSpace& profile, bool isCut) {
  Reading reading;
  SetMemberSizes(subject, profile.placed.profile.outline, straight.depth, reading);
  reading.member.points = {straight.frame.origin,
                           straight.frame.origin + straight.depth * straight.along};
  reading.member.y = profile.frame.x;
  reading.member.offset = profile.placed.offset;
  reading.profile = profile.placed.profile;
  if (isCut && !SetCutEnds(subject, straight.along, reading.profile.area, reading.member)) {
    return std::nullopt;
  }
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

std::optional<Reading> ReadTaperedMember(Subject& subject, const StraightExtrusion& straight,
                                         const PlacedInSpace& start, const ProfilePointer& facts) {
  std::optional<PlacedInSpace> end = PlaceProfile(subject, facts, straight);
  if (!end) return std::nullopt;
  Reading reading;
  SetMemberSizes(subject, start.placed.profile.outline, straight.depth, reading);
  const auto centroidOf = [&](const PlacedInSpace& profile) {
    return Lift(profile.frame, {-profile.placed.offset.x, -profile.placed.offset.y});
  };
  SetTaperedAxis(reading.member, centroidOf(start),
                 centroidOf(*end) + straight.depth * straight.along, straight.along, start.frame.x);
  reading.profile = start.placed.profile;
  reading.endProfile = std::move(end->placed.profile);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

// The outline of an extrusion with its arcs, as a surface square to the extrusion.
std::optional<Reading> ReadStraightSurface(Subject& subject, const StraightExtrusion& straight,
                                           const ProfileFacts& facts) {
  const std::vector<Region> regions = RegionsOf(Scaled(facts, straight.scale));
  if (regions.size() != 1) return std::nullopt;
  std::optional<FlatRegion> flat = Flatten(regions[0]);
  if (!flat) return std::nullopt;
  Contour outline = regions[0].outer;
  const bool isCounterClockwise = AreaOf(Flatten(outline)) > 0.0;
  const PlaneFrame& plane = straight.frame;
  if (!isCounterClockwise) {
    const std::size_t count = outline.points.size();
    std::reverse(outline.points.begin(), outline.points.end());
    for (ContourArc& arc : outline.arcs) arc.edge = (2 * count - 2 - arc.edge) % count;
    std::sort(outline.arcs.begin(), outline.arcs.end(),
              [](const ContourArc& a, const ContourArc& b) { return a.edge < b.edge; });
  }
  const Vector3 normal = NormalOf(plane);
  Span span;
  span.Add(At(plane.origin, normal));
  span.Add(At(plane.origin + straight.depth * straight.along, normal));
  Reading reading = MakeSurface(subject, plane, outline, flat->holes, span);
  if (!Measure(subject, reading)) return std::nullopt;
  return reading;
}

std::optional<Reading> ReadExtrusion(Subject& subject, const Extrusion& extrusion,
                                     const Transform3& toLocal, bool isCut) {
  const std::optional<StraightExtrusion> straight = MakeStraight(extrusion, toLocal);
  if (!straight || !extrusion.profile) return std::nullopt;
  const std::optional<PlacedInSpace> profile = PlaceProfile(subject, extrusion.profile, *straight);
  if (!profile) return std::nullopt;
  if (extrusion.endProfile) {
    if (isCut) return std::nullopt;
    return ReadTaperedMember(subject, *straight, *profile, extrusion.endProfile);
  }
  const BuildingProfile& shape = profile->placed.profile;
  const double asMember =
      SuitabilityOfMember(subject.role, ProportionsOfMember(shape.outline, straight->depth));
  const double asSurface = SuitabilityOfSurface(
      subject.role, ProportionsOfSurface(shape.outline, shape.holes, straight->depth));
  if (!isCut && IsRectangle(shape)) {
    const PlaneFrame centred{
        Lift(profile->frame, {-profile->placed.offset.x, -profile->placed.offset.y}),
        profile->frame.x, profile->frame.y};
    std::optional<Reading> box = ReadBox(
        subject, MakeBox(shape.outline, centred, straight->along, straight->depth), asMember);
    if (box) return box;
  }
  std::optional<Reading> best;
  if (asMember >= asSurface || isCut) {
    best = ReadStraightMember(subject, *straight, *profile, isCut);
    if (IsGood(best)) return best;
  }
  if (!isCut) KeepBetter(best, ReadStraightSurface(subject, *straight, *extrusion.profile));
  if (!isCut && asMember < asSurface && !IsGood(best)) {
    KeepBetter(best, ReadStraightMember(subject, *straight, *profile, isCut));
  }
  return best;
}

}  // namespace

std::optional<Reading> ReadDirect(Subject& subject, const SingleSolid& single) {
  if (single.solid == nullptr) return std::nullopt;
  Transform3 toLocal = single.transform;
  toLocal.origin = toLocal.origin + -subject.boundary.Centre();
  const auto& form = single.solid->form;
  if (const auto* extrusion = std::get_if<Extrusion>(&form)) {
    return ReadExtrusion(subject, *extrusion, toLocal, single.hasBoolean);
  }
  if (single.hasBoolean) return std::nullopt;
  if (const auto* revolution = std::get_if<Revolution>(&form)) {
    return ReadRevolution(subject, *revolution, toLocal);
  }
  if (const auto* disk = std::get_if<SweptDisk>(&form)) {
    return ReadSweptDisk(subject, *disk, toLocal);
  }
  if (const auto* curve = std::get_if<SweptCurve>(&form)) {
    return ReadSweptCurve(subject, *curve, toLocal);
  }
  return std::nullopt;
}

}  // namespace KelIFC::building::idealising
