#include "kelifc/building/build/idealise_slices.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/build/idealise_curved.h"
#include "kelifc/building/build/idealise_directions.h"
#include "kelifc/building/build/idealise_member.h"
#include "kelifc/building/build/idealise_surface.h"

namespace KelIFC::building::idealising {
namespace {

// Each trial slices the boundary several times, so only the most promising ones are made. Of a body
// of several parts that has more faces than kFewFaces, fewer are made.
constexpr std::size_t kMostTrials = 8;
constexpr std::size_t kMostTrialsOfSeveral = 3;
constexpr std::size_t kFewFaces = 500;
constexpr double kLeastPromise = 0.03;

struct Trial {
  ElementKind kind = ElementKind::kMember;
  Vector3 direction;
  double suitability = 0.0;  // by the box of the boundary
  double promise = 0.0;
};

// A plane across a direction, turned towards another direction that lies in it.
PlaneFrame AlignedFrame(const std::vector<Direction>& directions, const Vector3& across) {
  constexpr double kInPlane = 0.01;  // the sine of the largest angle out of the plane
  const Direction* best = nullptr;
  for (const Direction& direction : directions) {
    if (std::fabs(Dot(direction.vector, across)) > kInPlane) continue;
    if (best == nullptr || direction.length > best->length) best = &direction;
  }
  PlaneFrame frame = FrameAcross(across, {});
  if (best == nullptr) return frame;
  frame.x = Unit(best->vector - Dot(best->vector, across) * across);
  frame.y = Cross(across, frame.x);
  return frame;
}

Outline BoxAcross(const Boundary& boundary, const PlaneFrame& frame) {
  Extent2 extent;
  for (const Point3& p : boundary.Points()) extent.Add(Project(frame, p));
  return {{extent.x.from, extent.y.from},
          {extent.x.to, extent.y.from},
          {extent.x.to, extent.y.to},
          {extent.x.from, extent.y.to}};
}

// The part of the surface that runs along a direction or is square to it promises a prism. A
// boundary of very many faces is sliced only along directions that promise much.
double PrismPart(Subject& subject, const Direction& direction) {
  constexpr std::size_t kManyFaces = 2000;
  constexpr double kMuch = 0.25;
  const double area = std::max(subject.boundary.Area(), 1e-12);
  const double part = std::min(1.0, (direction.beside + direction.across) / area);
  if (part < kMuch && subject.boundary.Faces().size() > kManyFaces) return 0.0;
  return 0.3 + 0.7 * part;
}

std::vector<Trial> MakeTrials(Subject& subject, const std::vector<Direction>& directions) {
  std::vector<Trial> trials;
  for (const Direction& direction : directions) {
    const Outline box = BoxAcross(subject.boundary, AlignedFrame(directions, direction.vector));
    const double extent = subject.boundary.Along(direction.vector).Length();
    const double prism = PrismPart(subject, direction);
    Trial trial;
    trial.direction = direction.vector;
    trial.suitability = SuitabilityOfMember(subject.role, ProportionsOfMember(box, extent));
    trial.promise = trial.suitability * prism;
    trials.push_back(trial);
    trial.kind = ElementKind::kSurface;
    trial.suitability = SuitabilityOfSurface(subject.role, ProportionsOfSurface(box, {}, extent));
    trial.promise = trial.suitability * prism + PreferenceOf(subject, direction.vector);
    trials.push_back(trial);
  }
  std::stable_sort(trials.begin(), trials.end(),
                   [](const Trial& a, const Trial& b) { return a.promise > b.promise; });
  return trials;
}

bool MayBeCurvedWall(Subject& subject) {
  return (subject.role == ElementRole::kWall || subject.role == ElementRole::kOther) &&
         subject.boundary.Faces().size() >= 8;
}

// The directions that may be square to the plane of a bend: those that were found, those that are
// parallel to two of the largest planes, such as both ends of a pipe, and that of most edges, such
// as those between the chords.
std::vector<Vector3> NormalsOfBends(Subject& subject, const std::vector<Direction>& directions) {
  constexpr std::size_t kMostPlanes = 4;
  constexpr double kSameNormal = 1e-4;  // the sine of the angle between equal normals
  std::vector<Vector3> normals;
  normals.reserve(directions.size() + kMostPlanes * kMostPlanes);
  for (const Direction& direction : directions) normals.push_back(direction.vector);
  const auto add = [&](const Vector3& normal) {
    const bool isKnown = std::any_of(normals.begin(), normals.end(), [&](const Vector3& known) {
      return Length(Cross(known, normal)) < kSameNormal;
    });
    if (!isKnown) normals.push_back(normal);
  };
  const std::vector<Vector3> planes = LargestNormals(subject.boundary, kMostPlanes);
  for (std::size_t i = 0; i < planes.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) add(Unit(Cross(planes[i], planes[k])));
  }
  if (const std::optional<Vector3> edges = MainEdgeDirection(subject.boundary)) add(*edges);
  return normals;
}

// Reads curved walls that do not stand upright, and curved members.
void ReadBends(Subject& subject, const std::vector<Direction>& directions,
               std::optional<Reading>& best) {
  constexpr std::size_t kLeastFaces = 8;  // two ends, and a triangular profile beside a bend
  if (subject.boundary.Faces().size() < kLeastFaces) return;
  for (const Vector3& normal : NormalsOfBends(subject, directions)) {
    KeepBetter(best, MayBeCurvedWall(subject) ? ReadCurvedWall(subject, normal)
                                              : ReadBentMember(subject, normal));
    if (IsGood(best)) return;
  }
}

// Reads bodies that pieces were cut off from everywhere, in the most promising directions.
void ReadEnvelopes(Subject& subject, const std::vector<Trial>& trials,
                   std::optional<Reading>& best) {
  constexpr double kLeastSuitability = 0.2;
  constexpr std::size_t kMostEnvelopes = 2;
  std::size_t count = 0;
  for (const Trial& trial : trials) {
    if (trial.suitability < kLeastSuitability) continue;
    if (++count > kMostEnvelopes) return;
    KeepBetter(best, trial.kind == ElementKind::kMember
                         ? ReadMemberAround(subject, trial.direction)
                         : ReadSurfaceAround(subject, trial.direction));
    if (IsGood(best)) return;
  }
}

}  // namespace

std::optional<Reading> ReadBySlices(Subject& subject, const std::vector<Vector3>& hints,
                                    bool isSeveral) {
  std::optional<Reading> best;
  if (MayBeCurvedWall(subject)) {
    best = ReadCurvedWall(subject, {0.0, 0.0, 1.0});
    if (IsGood(best)) return best;
  }
  const std::vector<Direction> directions = FindDirections(subject.boundary, hints);
  std::vector<Trial> trials = MakeTrials(subject, directions);
  const bool isLarge = isSeveral && subject.boundary.Faces().size() > kFewFaces;
  const std::size_t most = isLarge ? kMostTrialsOfSeveral : kMostTrials;
  if (trials.size() > most) trials.resize(most);
  for (const Trial& trial : trials) {
    if (trial.promise < kLeastPromise) break;
    if (best && !best->fit.isApproximate && ScoreOf(*best) >= trial.suitability) continue;
    KeepBetter(best, trial.kind == ElementKind::kMember ? ReadMember(subject, trial.direction)
                                                        : ReadSurface(subject, trial.direction));
    if (IsGood(best)) return best;
  }
  const bool isExact = best && !best->fit.isApproximate;
  if (!isSeveral && !(isExact && subject.role == ElementRole::kOther)) {
    ReadBends(subject, directions, best);
  }
  const bool isUnusual = isExact && best->suitability < kSuitable && best->fit.cutouts > 0;
  if (!isExact || isUnusual) ReadEnvelopes(subject, trials, best);
  return best;
}

}  // namespace KelIFC::building::idealising
