#include <algorithm>
#include <array>
#include <cmath>

#include "kelifc/building/solid/arrangement.h"
#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/distance.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/select_faces.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Finds points that lie on a straight line between the only two points that they are joined to.
class StraightPoints {
 public:
  StraightPoints(const Mesh& someMesh, double someTolerance)
      : mesh(someMesh), tolerance(someTolerance), joined(someMesh.points.size(), {kNone, kNone}) {
    for (const EdgeUse& edge : SortedEdgesOf(mesh)) {
      Join(edge.from, edge.to);
      Join(edge.to, edge.from);
    }
  }

  bool Has(Mesh::Index point) const {
    const auto [a, b] = joined[point];
    if (a >= kMany || b >= kMany) return false;
    const Vector3 u = mesh.points[point] - mesh.points[a];
    const Vector3 v = mesh.points[b] - mesh.points[point];
    return Dot(u, v) > 0.0 && Length(Cross(u, v)) <= tolerance * Length(u + v);
  }

 private:
  static constexpr Mesh::Index kNone = 0xFFFFFFFF;
  static constexpr Mesh::Index kMany = 0xFFFFFFFE;

  void Join(Mesh::Index point, Mesh::Index other) {
    auto& [a, b] = joined[point];
    if (a == other || b == other || a == kMany) return;
    if (a == kNone) {
      a = other;
    } else if (b == kNone) {
      b = other;
    } else {
      a = kMany;
    }
  }

  const Mesh& mesh;
  double tolerance;
  std::vector<std::array<Mesh::Index, 2>> joined;
};

Mesh WithoutStraightPoints(const Mesh& mesh, double tolerance) {
  const StraightPoints straight(mesh, tolerance);
  Mesh result;
  result.points = mesh.points;
  std::vector<Mesh::Index> loop;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      loop.clear();
      for (const Mesh::Index p : mesh.LoopOf(face, i)) {
        if (!straight.Has(p)) loop.push_back(p);
      }
      if (loop.size() < 3 && i == 0) break;
      if (i == 0) result.BeginFace();
      if (loop.size() > 2) result.AddLoop(loop);
    }
  }
  return result;
}

bool IsPlausible(double first, double second, double result, BooleanOperation operation) {
  const double slack = 1e-5 * (std::abs(first) + std::abs(second)) + 1e-9;
  switch (operation) {
    case BooleanOperation::kUnion:
      return result >= std::max(first, second) - slack && result <= first + second + slack;
    case BooleanOperation::kIntersection:
      return result >= -slack && result <= std::min(first, second) + slack;
    case BooleanOperation::kDifference:
      break;
  }
  return result >= std::max(0.0, first - second) - slack && result <= first + slack;
}

bool TryCombine(const Mesh& first, const Mesh& second, BooleanOperation operation, double tolerance,
                bool& isTooLarge, Mesh& result) {
  const Point3 origin = CentreOf(BoxOf(first));
  Arrangement arrangement(first, second, origin, tolerance);
  isTooLarge = !arrangement.Build();
  if (isTooLarge) return false;
  Transform3 toLocal;
  toLocal.origin = ToPoint(-ToVector(origin));
  const Mesh localFirst = Moved(first, toLocal);
  const Mesh localSecond = Moved(second, toLocal);
  const SurfaceDistance inFirst(localFirst);
  const SurfaceDistance inSecond(localSecond);
  Mesh mesh = SelectFaces(arrangement, inFirst, inSecond, operation);
  if (!IsBalanced(mesh)) return false;
  Mesh smooth = WithoutStraightPoints(mesh, tolerance);
  if (IsBalanced(smooth)) mesh = std::move(smooth);
  if (!IsPlausible(VolumeOf(first), VolumeOf(second), VolumeOf(mesh), operation)) return false;
  for (Point3& p : mesh.points) p += ToVector(origin);
  result = Weld(mesh, tolerance / 100.0);
  return true;
}

/// The result for meshes that do not come near each other.
Mesh CombineApart(const Mesh& first, const Mesh& second, BooleanOperation operation) {
  if (operation == BooleanOperation::kIntersection) return Mesh();
  Mesh result = first;
  if (operation == BooleanOperation::kUnion) Append(result, second);
  return result;
}

/// Combines whole meshes. Cutters are flush with faces within the digits that a file has, mostly.
/// Where one tolerance leaves gaps, another one may not.
bool CombineWhole(const Mesh& first, const Mesh& second, BooleanOperation operation, Mesh& result) {
  if (first.IsEmpty() || second.IsEmpty() || !AreNear(BoxOf(first), BoxOf(second), 1e-5)) {
    result = CombineApart(first, second, operation);
    return true;
  }
  for (const double tolerance : {1e-6, 1e-5, 1e-7, 5e-5}) {
    bool isTooLarge = false;
    if (TryCombine(first, second, operation, tolerance, isTooLarge, result)) return true;
    if (isTooLarge) return false;
  }
  return false;
}

/// The closed parts of a mesh; none if one of them is a cavity or is not closed, or if there are
/// more than a few.
std::vector<Mesh> SolidPartsOf(const Mesh& mesh) {
  constexpr std::size_t kMostParts = 64;
  std::vector<Mesh> parts = PartsOf(Weld(mesh, kWeldDistance));
  const bool areSolid = std::all_of(parts.begin(), parts.end(), [](const Mesh& part) {
    return VolumeOf(part) > 0.0 && IsBalanced(part);
  });
  if (!areSolid || parts.size() > kMostParts) parts.clear();
  return parts;
}

/// True if some parts of a mesh come near each other, so that they may overlap. The whole would
/// have what both contain twice.
bool MayOverlap(const std::vector<Mesh>& parts) {
  std::vector<BuildingBox> boxes;
  boxes.reserve(parts.size());
  for (const Mesh& part : parts) boxes.push_back(BoxOf(part));
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      if (AreNear(boxes[i], boxes[k], 0.0)) return true;
    }
  }
  return false;
}

/// Combines meshes part by part. The result may have parts that overlap, as its operands do.
bool CombineParts(const Mesh& first, const std::vector<Mesh>& firstParts,
                  const std::vector<Mesh>& secondParts, BooleanOperation operation, Mesh& result) {
  if (firstParts.size() * secondParts.size() < 2) return false;
  Mesh sum;
  if (operation == BooleanOperation::kUnion) {
    sum = first;
    for (const Mesh& part : secondParts) {
      if (!CombineWhole(sum, part, operation, sum)) return false;
    }
    result = std::move(sum);
    return true;
  }
  for (const Mesh& own : firstParts) {
    Mesh left = own;
    for (const Mesh& other : secondParts) {
      Mesh part;
      const Mesh& from = operation == BooleanOperation::kDifference ? left : own;
      if (!CombineWhole(from, other, operation, part)) return false;
      if (operation == BooleanOperation::kDifference) {
        left = std::move(part);
      } else {
        Append(sum, part);
      }
    }
    if (operation == BooleanOperation::kDifference) Append(sum, left);
  }
  result = std::move(sum);
  return true;
}

}  // namespace

bool Combine(const Mesh& first, const Mesh& second, BooleanOperation operation, Mesh& result) {
  for (const Mesh* mesh : {&first, &second}) {
    for (const Point3& p : mesh->points) {
      if (!IsUsable(p)) return false;
    }
  }
  const std::vector<Mesh> firstParts = SolidPartsOf(first);
  const std::vector<Mesh> secondParts = SolidPartsOf(second);
  Mesh combined;
  const auto byParts = [&] {
    return CombineParts(first, firstParts, secondParts, operation, combined);
  };
  const auto asWhole = [&] { return CombineWhole(first, second, operation, combined); };
  const bool mayOverlap = MayOverlap(firstParts) || MayOverlap(secondParts);
  if (mayOverlap ? !byParts() && !asWhole() : !asWhole() && !byParts()) return false;
  result = std::move(combined);
  return true;
}

}  // namespace KelIFC::building
