#include "kelifc/building/build/idealise_measure.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "kelifc/building/build/point_match.h"

namespace KelIFC::building::idealising {
namespace {

// Points nearer than this, in metres, are the same point.
constexpr double kSamePoint = 1e-5;

// Cut-outs explain a difference only where most of the surface of the solid is left.
constexpr double kSmallestSharedSurface = 0.6;
constexpr double kLargestCutVolume = 1.35;

// Which points of a list have a partner in another one, and the largest distance of those.
struct Matches {
  std::vector<char> isMatched;
  std::size_t unmatched = 0;
  double largest = 0.0;
};

Matches MatchPoints(const std::vector<Point3>& points, const std::vector<Point3>& others,
                    const PointMatch& match) {
  Matches matches;
  matches.isMatched.resize(points.size(), 0);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const std::size_t found = match.Find(points[i], kSamePoint);
    if (found == PointMatch::kNone) {
      ++matches.unmatched;
      continue;
    }
    matches.isMatched[i] = 1;
    matches.largest = std::max(matches.largest, Length(others[found] - points[i]));
  }
  return matches;
}

// A point inside of a face: the middle of the first interval in which a line through the middle of
// the face crosses it. The line is square to the axis along which the face extends most.
class FaceInterior {
 public:
  FaceInterior(const Mesh& source, const Vector3& normal) : mesh(source) {
    const bool isSteep = std::fabs(normal.z) < 0.9;
    across = Unit(Cross(normal, isSteep ? Vector3(0.0, 0.0, 1.0) : Vector3(1.0, 0.0, 0.0)));
    along = Cross(normal, across);
  }

  Point3 Find(std::size_t face) {
    const double level = MiddleLevel(face);
    std::vector<std::pair<double, Point3>> crossings;
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      AddCrossings(mesh.LoopOf(face, loop), level, crossings);
    }
    if (crossings.size() < 2) return mesh.points[mesh.LoopOf(face, 0)[0]];
    std::sort(crossings.begin(), crossings.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    std::size_t widest = 0;
    for (std::size_t i = 2; i + 1 < crossings.size(); i += 2) {
      if (crossings[i + 1].first - crossings[i].first >
          crossings[widest + 1].first - crossings[widest].first) {
        widest = i;
      }
    }
    return crossings[widest].second +
           (crossings[widest + 1].second - crossings[widest].second) * 0.5;
  }

 private:
  // The middle of the widest gap between the levels of the points, so that the line meets none.
  double MiddleLevel(std::size_t face) const {
    std::vector<double> levels;
    for (const Mesh::Index i : mesh.LoopOf(face, 0)) levels.push_back(At(mesh.points[i], along));
    std::sort(levels.begin(), levels.end());
    std::size_t widest = 0;
    for (std::size_t i = 1; i + 1 < levels.size(); ++i) {
      if (levels[i + 1] - levels[i] > levels[widest + 1] - levels[widest]) widest = i;
    }
    return widest + 1 < levels.size() ? (levels[widest] + levels[widest + 1]) / 2 : levels[0];
  }

  void AddCrossings(const Mesh::Loop& loop, double level,
                    std::vector<std::pair<double, Point3>>& crossings) const {
    for (std::size_t i = 0; i < loop.size(); ++i) {
      const Point3& a = mesh.points[loop[i]];
      const Point3& b = mesh.points[loop[(i + 1) % loop.size()]];
      const double from = At(a, along);
      const double to = At(b, along);
      if ((from < level) == (to < level)) continue;
      const Point3 p = a + (b - a) * ((level - from) / (to - from));
      crossings.emplace_back(At(p, across), p);
    }
  }

  const Mesh& mesh;
  Vector3 across;
  Vector3 along;
};

// The faces of a body that lie inside of a solid, and how they are connected.
class InnerFaces {
 public:
  InnerFaces(Boundary& source, const SurfaceDistance& solid, const PointMatch& solidPoints,
             double distance)
      : boundary(source), mesh(source.Mesh()), surface(solid), onSurface(distance) {
    isOn.resize(mesh.points.size(), kUnknown);
    for (std::size_t i = 0; i < mesh.points.size(); ++i) {
      if (solidPoints.Find(mesh.points[i], kSamePoint) != PointMatch::kNone) isOn[i] = kYes;
    }
    for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
      if (IsOnSurface(face)) {
        sharedArea += boundary.Faces()[face].area;
      } else {
        inner.push_back(face);
      }
    }
  }

  double SharedArea() const { return sharedArea; }

  std::size_t CountGroups() const {
    const std::vector<std::size_t> welded = Weld(mesh.points, kSamePoint);
    std::vector<std::size_t> parent(mesh.points.size());
    std::iota(parent.begin(), parent.end(), std::size_t{0});
    std::vector<char> isUsed(mesh.points.size(), 0);
    for (const std::size_t face : inner) {
      const std::size_t first = welded[mesh.LoopOf(face, 0)[0]];
      for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
        for (const Mesh::Index i : mesh.LoopOf(face, loop)) {
          isUsed[welded[i]] = 1;
          parent[Root(parent, welded[i])] = Root(parent, first);
        }
      }
    }
    std::size_t count = 0;
    for (std::size_t i = 0; i < parent.size(); ++i) {
      if (isUsed[i] != 0 && Root(parent, i) == i) ++count;
    }
    return count;
  }

 private:
  enum State : char { kUnknown, kYes, kNo };

  static std::size_t Root(std::vector<std::size_t>& parent, std::size_t i) {
    while (parent[i] != i) {
      parent[i] = parent[parent[i]];
      i = parent[i];
    }
    return i;
  }

  bool IsPointOn(Mesh::Index i) {
    if (isOn[i] == kUnknown) isOn[i] = surface.To(mesh.points[i]) <= onSurface ? kYes : kNo;
    return isOn[i] == kYes;
  }

  bool IsOnSurface(std::size_t face) {
    const Boundary::Face& facts = boundary.Faces()[face];
    if (facts.area < 1e-10) return true;
    for (std::size_t loop = 0; loop < mesh.LoopCount(face); ++loop) {
      for (const Mesh::Index i : mesh.LoopOf(face, loop)) {
        if (!IsPointOn(i)) return false;
      }
    }
    return surface.To(FaceInterior(mesh, facts.normal).Find(face)) <= onSurface;
  }

  Boundary& boundary;
  const Mesh& mesh;
  const SurfaceDistance& surface;
  double onSurface;
  std::vector<char> isOn;
  std::vector<std::size_t> inner;
  double sharedArea = 0.0;
};

// How far points of the solid lie from the surface of the body.
struct SolidDistances {
  double all = 0.0;         // of all points
  double protruding = 0.0;  // of the points inside of the body: there the solid lacks something
};

SolidDistances DistancesOfSolid(Boundary& boundary, const std::vector<Point3>& points,
                                const Matches& matches) {
  SolidDistances result;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (matches.isMatched[i] != 0) continue;
    const double distance = boundary.Distance().To(points[i]);
    result.all = std::max(result.all, distance);
    if (distance > result.protruding &&
        (distance <= kExactDeviation || boundary.Distance().Contains(points[i], 0.0))) {
      result.protruding = distance;
    }
  }
  return result;
}

bool IsVolumeExact(const Fit& fit) {
  return fit.ratio && std::fabs(*fit.ratio - 1.0) <= kExactVolume;
}

double LargestOutside(const Boundary& boundary, const Matches& matches,
                      const SurfaceDistance& solid) {
  double outside = 0.0;
  for (std::size_t i = 0; i < boundary.Points().size(); ++i) {
    if (matches.isMatched[i] != 0) continue;
    outside = std::max(outside, solid.Outside(boundary.Points()[i]));
  }
  return outside;
}

double SurfaceOf(const Mesh& mesh) {
  double area = 0.0;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    area += Length(AreaVectorOf(mesh, face));
  }
  return area;
}

void MeasureDifference(Boundary& boundary, const Mesh& solid, const PointMatch& solidPoints,
                       const Matches& ofBody, const Matches& ofSolid, double onSurface, Fit& fit) {
  const SurfaceDistance surface(solid);
  const double outside = LargestOutside(boundary, ofBody, surface);
  const SolidDistances distances = DistancesOfSolid(boundary, solid.points, ofSolid);
  fit.deviation = std::max({ofBody.largest, ofSolid.largest, outside, distances.all});
  const bool isContained = outside <= kExactDeviation && fit.ratio &&
                           *fit.ratio > 1.0 - kExactVolume && *fit.ratio < kLargestCutVolume;
  const bool isEqual =
      distances.all <= kExactDeviation && IsVolumeExact(fit) && std::fabs(*fit.ratio - 1.0) < 1e-4;
  if (!isContained || isEqual) return;
  const InnerFaces inner(boundary, surface, solidPoints, onSurface);
  // Solids side by side have faces between them, which the idealised solid lacks.
  const double area = boundary.SolidCount() > 1 ? SurfaceOf(solid) : boundary.Area();
  if (inner.SharedArea() < kSmallestSharedSurface * area) return;
  fit.cutouts = inner.CountGroups();
  if (fit.cutouts == 0) return;
  fit.deviation = std::max({ofBody.largest, ofSolid.largest, outside, distances.protruding});
}

// True if both lists hold the same points in the same order, as a body and a solid that were made
// in the same way do.
bool AreInSameOrder(const std::vector<Point3>& a, const std::vector<Point3>& b, double& largest) {
  if (a.size() != b.size()) return false;
  largest = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const double distance = Length(b[i] - a[i]);
    if (!(distance <= kSamePoint)) return false;
    largest = std::max(largest, distance);
  }
  return true;
}

bool IsSameVolume(const Fit& fit) { return !fit.ratio || std::fabs(*fit.ratio - 1.0) < 1e-4; }

void MeasurePoints(Boundary& boundary, const Mesh& solid, double onSurface, Fit& fit) {
  if (AreInSameOrder(boundary.Points(), solid.points, fit.deviation) && IsSameVolume(fit)) return;
  const PointMatch solidPoints(solid.points);
  const PointMatch bodyPoints(boundary.Points());
  const Matches ofBody = MatchPoints(boundary.Points(), solid.points, solidPoints);
  const Matches ofSolid = MatchPoints(solid.points, boundary.Points(), bodyPoints);
  fit.deviation = std::max(ofBody.largest, ofSolid.largest);
  if (ofBody.unmatched == 0 && ofSolid.unmatched == 0 && IsSameVolume(fit)) return;
  MeasureDifference(boundary, solid, solidPoints, ofBody, ofSolid, onSurface, fit);
}

}  // namespace

Fit MeasureFit(Boundary& boundary, const Mesh& solid, double onSurface) {
  Fit fit;
  fit.volume = VolumeOf(solid);
  if (const std::optional<double> volume = boundary.Volume()) fit.ratio = fit.volume / *volume;
  MeasurePoints(boundary, solid, onSurface, fit);
  const bool isExplained = IsVolumeExact(fit) || (fit.ratio && fit.cutouts > 0);
  fit.isApproximate = fit.deviation > kExactDeviation || !isExplained;
  return fit;
}

}  // namespace KelIFC::building::idealising
