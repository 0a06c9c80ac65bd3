#include <algorithm>
#include <cmath>
#include <numeric>

#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

bool HasUnusablePoint(const Mesh& mesh) {
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      for (const Mesh::Index p : mesh.LoopOf(face, i)) {
        if (p < mesh.points.size() && !IsUsable(mesh.points[p])) return true;
      }
    }
  }
  return false;
}

/// The mesh with the loop of the largest area first in each face, and holes against it.
Mesh WithOrderedLoops(const Mesh& mesh) {
  Mesh result;
  result.points = mesh.points;
  std::vector<Mesh::Index> points;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    std::size_t outer = 0;
    Vector3 normal = AreaVectorOf(mesh, mesh.LoopOf(face, 0));
    for (std::size_t i = 1; i < mesh.LoopCount(face); ++i) {
      const Vector3 area = AreaVectorOf(mesh, mesh.LoopOf(face, i));
      if (Dot(area, area) <= Dot(normal, normal) * (1.0 + 1e-9)) continue;
      normal = area;
      outer = i;
    }
    result.BeginFace();
    for (std::size_t k = 0; k < mesh.LoopCount(face); ++k) {
      const std::size_t i = k == 0 ? outer : (k <= outer ? k - 1 : k);
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      const double along = Dot(AreaVectorOf(mesh, loop), normal);
      points.assign(loop.begin(), loop.end());
      if (k > 0 && along > 0.0) std::reverse(points.begin(), points.end());
      result.AddLoop(points);
    }
  }
  return result;
}

/// Two faces that share an edge which no other face has.
struct Neighbours {
  Mesh::Index face = 0;
  Mesh::Index other = 0;
  bool agree = false;  ///< they use the edge in opposite directions
};

/// A mesh with all faces of a connected part turned alike, and each part turned outwards.
class Orienter {
 public:
  explicit Orienter(const Mesh& someMesh) : mesh(someMesh), part(someMesh.FaceCount(), kNone) {
    FindNeighbours();
    for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
      if (part[face] == kNone) Spread(face);
    }
  }

  Mesh Result() {
    Measure();
    TurnParts();
    Mesh result;
    result.points = mesh.points;
    std::vector<Mesh::Index> points;
    for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
      result.BeginFace();
      for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
        const Mesh::Loop loop = mesh.LoopOf(face, i);
        points.assign(loop.begin(), loop.end());
        if (isTurned[face] != parts[part[face]].isTurned) {
          std::reverse(points.begin(), points.end());
        }
        result.AddLoop(points);
      }
    }
    return result;
  }

 private:
  struct Part {
    double volume = 0.0;
    BuildingBox box;
    bool isTurned = false;
  };

  void FindNeighbours() {
    const std::vector<EdgeUse> edges = SortedEdgesOf(mesh);
    const auto isSame = [](const EdgeUse& a, const EdgeUse& b) {
      return (a.from == b.from && a.to == b.to) || (a.from == b.to && a.to == b.from);
    };
    for (std::size_t i = 0; i < edges.size();) {
      std::size_t end = i + 1;
      while (end < edges.size() && isSame(edges[i], edges[end])) ++end;
      if (end - i == 2 && edges[i].face != edges[i + 1].face) {
        const bool agree = edges[i].from != edges[i + 1].from;
        neighbours.push_back({edges[i].face, edges[i + 1].face, agree});
        neighbours.push_back({edges[i + 1].face, edges[i].face, agree});
      }
      i = end;
    }
    std::sort(neighbours.begin(), neighbours.end(), [](const Neighbours& a, const Neighbours& b) {
      return std::pair(a.face, a.other) < std::pair(b.face, b.other);
    });
    isTurned.assign(mesh.FaceCount(), false);
  }

  /// Gives all faces that can be reached from one over edges of two faces the same part.
  void Spread(std::size_t start) {
    std::vector<std::size_t> open = {start};
    part[start] = parts.size();
    while (!open.empty()) {
      const std::size_t face = open.back();
      open.pop_back();
      auto entry =
          std::lower_bound(neighbours.begin(), neighbours.end(), face,
                           [](const Neighbours& n, std::size_t value) { return n.face < value; });
      for (; entry != neighbours.end() && entry->face == face; ++entry) {
        if (part[entry->other] != kNone) continue;
        part[entry->other] = parts.size();
        isTurned[entry->other] = isTurned[face] == entry->agree;
        open.push_back(entry->other);
      }
    }
    parts.emplace_back();
  }

  void Measure() {
    const Point3 centre = CentreOf(BoxOf(mesh));
    for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
      Part& own = parts[part[face]];
      for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
        const Mesh::Loop loop = mesh.LoopOf(face, i);
        const double share = Dot(mesh.points[loop[0]] - centre, AreaVectorOf(mesh, loop)) / 6.0;
        own.volume += isTurned[face] ? -share : share;
      }
      for (const Mesh::Index p : mesh.LoopOf(face, 0)) Extend(own.box, mesh.points[p]);
    }
  }

  /// The whole turns outwards. A part against it stays if it is a cavity: the boundary of a hollow
  /// inside of a larger part.
  void TurnParts() {
    double total = 0.0;
    for (const Part& one : parts) total += one.volume;
    const double sign = total < 0.0 ? -1.0 : 1.0;
    std::size_t largest = 0;
    for (std::size_t i = 1; i < parts.size(); ++i) {
      if (std::abs(parts[i].volume) > std::abs(parts[largest].volume)) largest = i;
    }
    for (Part& one : parts) {
      one.isTurned = sign < 0.0;
      if (one.volume * sign < 0.0 && !IsInside(one.box, parts[largest].box)) {
        one.isTurned = !one.isTurned;
      }
    }
  }

  static bool IsInside(const BuildingBox& inner, const BuildingBox& outer) {
    return inner.min.x > outer.min.x && inner.max.x < outer.max.x && inner.min.y > outer.min.y &&
           inner.max.y < outer.max.y && inner.min.z > outer.min.z && inner.max.z < outer.max.z;
  }

  const Mesh& mesh;
  std::vector<std::size_t> part;  // of each face
  std::vector<bool> isTurned;
  std::vector<Neighbours> neighbours;
  std::vector<Part> parts;
};

/// A shell with welded points, its faces turned outwards.
Mesh MakeShell(const Mesh& shell, const Transform3& map) {
  const Mesh moved = WithOrderedLoops(Weld(Moved(shell, map), kWeldDistance));
  Mesh first = Orienter(moved).Result();
  if (IsBalanced(first)) return first;
  Mesh closed = CloseShell(moved);
  return closed.IsEmpty() ? first : closed;
}

}  // namespace

Mesh CloseShell(const Mesh& mesh) {
  for (const double distance : {kWeldDistance, 1e-6, 1e-5, 1e-4}) {
    const Mesh welded = Weld(mesh, distance);
    Mesh whole = Orienter(SplitEdges(welded, std::max(distance, 1e-6))).Result();
    if (!whole.IsEmpty() && IsBalanced(whole) && std::abs(VolumeOf(whole)) > 1e-15) return whole;
  }
  return Mesh();
}

MadeMesh MakeShells(const Shells& solid, const Transform3& map, std::size_t maxPoints) {
  MadeMesh result;
  std::size_t count = 0;
  for (const Mesh& shell : solid.shells) count += shell.points.size();
  if (count > maxPoints) return MadeMesh(LossReason::kLimit);
  for (std::size_t i = 0; i < solid.shells.size(); ++i) {
    if (HasUnusablePoint(solid.shells[i])) return MadeMesh(LossReason::kNotFinite);
    const Mesh shell = MakeShell(solid.shells[i], map);
    for (const Point3& p : shell.points) {
      if (!IsUsable(p)) return MadeMesh(LossReason::kNotFinite);
    }
    // The shells of a surface model are not voids of each other.
    const bool isVoid = i > 0 && !solid.isSurface;
    Append(result.mesh, isVoid ? Flip(shell) : shell);
  }
  if (result.mesh.IsEmpty()) return MadeMesh(LossReason::kDegenerate);
  // Shells of a surface model may share edges.
  if (solid.isSurface && solid.shells.size() > 1) {
    Mesh closed = CloseShell(result.mesh);
    result.mesh = closed.IsEmpty() ? Orienter(Weld(result.mesh, kWeldDistance)).Result() : closed;
  }
  // A closed boundary that encloses nothing is flat.
  if (IsClosed(result.mesh) && !(std::abs(VolumeOf(result.mesh)) > 1e-15)) {
    return MadeMesh(LossReason::kDegenerate);
  }
  return result;
}

}  // namespace KelIFC::building
