#include "kelifc/building/build/idealise.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kelifc/building/build/idealise_direct.h"
#include "kelifc/building/build/idealise_parts.h"
#include "kelifc/building/build/idealise_reading.h"
#include "kelifc/building/build/idealise_slices.h"
#include "kelifc/building/build/idealise_surface.h"
#include "kelifc/building/build/reading_cache.h"
#include "kelifc/building/build/reading_key.h"

namespace KelIFC::building {
namespace {

using namespace idealising;

// Bodies of more faces are not sliced: they are no prisms, and slices of them are costly.
constexpr std::size_t kMostFaces = 200'000;

Idealisation AsBody(const EvaluatedBody& body) {
  Idealisation result;
  result.box = body.box;
  result.volume = body.volume;
  if (body.isClosed) result.volumeRatio = 1.0;
  result.isApproximate = !body.isClosed || !body.isExact;
  return result;
}

void Move(std::vector<Point3>& points, const Vector3& by) {
  for (Point3& p : points) p += by;
}

void MoveMember(MemberAxis& member, const Vector3& by) {
  Move(member.points, by);
  for (std::optional<EndPlane>& end : member.ends) {
    if (end) end->point += by;
  }
}

void MoveSurface(SurfaceRegion& surface, const Vector3& by) {
  Move(surface.outline, by);
  for (OutlineArc& arc : surface.arcs) arc.through += by;
  for (std::vector<Point3>& hole : surface.holes) Move(hole, by);
  if (surface.sweep) Move(surface.sweep->points, by);
}

void Take(Reading reading, const BuildingBox& box, const Subject& subject,
          const SingleSolid& single, Idealisation& result) {
  const Vector3& centre = subject.boundary.Centre();
  result.kind = reading.kind;
  result.box = box;
  result.box.min += centre;
  result.box.max += centre;
  result.volume = reading.fit.volume;
  result.deviation = reading.fit.deviation;
  result.volumeRatio = reading.fit.ratio;
  result.isApproximate = result.isApproximate || reading.fit.isApproximate;
  result.cutouts = reading.fit.cutouts;
  if (reading.kind == ElementKind::kMember) {
    MoveMember(reading.member, centre);
    result.member = std::move(reading.member);
    result.profile = std::move(reading.profile);
    result.endProfile = std::move(reading.endProfile);
    return;
  }
  FinishSurface(subject, ProfilePlaneOf(single, reading.surface.normal), centre, reading.surface);
  MoveSurface(reading.surface, centre);
  result.surface = std::move(reading.surface);
}

FoundReading Search(Subject& subject, const EvaluatedBody& body, const SingleSolid& single) {
  FoundReading found;
  found.best = ReadDirect(subject, single);
  if (!IsGood(found.best) && body.mesh.FaceCount() <= kMostFaces) {
    const Parts parts = CountParts(subject.boundary);
    found.isSeveral = parts.solids > 1;
    KeepBetter(found.best, ReadBySlices(subject, DirectionsOf(single), parts.IsSeveral()));
  }
  if (!found.best) return found;
  found.box = BoxOf(found.best->solid);
  found.best->solid = Mesh();
  return found;
}

// The same, from the cache if the subject is equal to an earlier one.
FoundReading SearchOnce(Subject& subject, const EvaluatedBody& body, const SingleSolid& single,
                        ReadingCache* readings) {
  if (readings == nullptr) return Search(subject, body, single);
  std::string& key = readings->Buffer();
  if (!MakeReadingKey(subject, body, single, key)) return Search(subject, body, single);
  if (const FoundReading* known = readings->Find(key)) return *known;
  FoundReading found = Search(subject, body, single);
  readings->Keep(key, found);
  return found;
}

}  // namespace

Idealisation Idealise(const IdealisationInput& input) {
  if (input.body == nullptr) return {};
  const EvaluatedBody& body = *input.body;
  const SingleSolid single =
      input.product != nullptr ? FindSingleSolid(*input.product) : SingleSolid();
  Idealisation result = AsBody(body);
  result.source = SourceOf(input.product, single, body);
  Boundary boundary(body);
  if (!boundary.IsUsable()) return result;
  result.isApproximate = !body.isExact;
  Subject subject{boundary, input.product, input.role, input.profiles};
  FoundReading found = SearchOnce(subject, body, single, input.readings);
  if (found.best && IsAcceptable(*found.best)) {
    Take(std::move(*found.best), found.box, subject, single, result);
    return result;
  }
  const BodySource source = found.isSeveral ? BodySource::kMulti : result.source;
  result = AsBody(body);
  result.source = source;
  return result;
}

}  // namespace KelIFC::building
