#include "kelifc/building/solid/mesh_tools.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <optional>
#include <tuple>
#include <utility>

#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/point_index.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

constexpr Mesh::Index kNone = 0xFFFFFFFF;

/// Most bodies have no more points. For them a table of all edges is small.
constexpr std::size_t kFewPoints = 32;

/// The new loop; empty if it has fewer than three points.
void RenumberLoop(const Mesh::Loop& loop, const std::vector<Mesh::Index>& numbers,
                  std::vector<Mesh::Index>& result) {
  result.clear();
  for (const Mesh::Index point : loop) {
    if (point >= numbers.size() || numbers[point] == kNone) {
      result.clear();
      return;
    }
    if (result.empty() || result.back() != numbers[point]) result.push_back(numbers[point]);
  }
  while (result.size() > 1 && result.back() == result.front()) result.pop_back();
  if (result.size() < 3) result.clear();
}

/// Copies the faces of a mesh with other numbers for their points; kNone drops the face.
void CopyFaces(const Mesh& mesh, const std::vector<Mesh::Index>& numbers, Mesh& result) {
  std::vector<Mesh::Index> loop;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      RenumberLoop(mesh.LoopOf(face, i), numbers, loop);
      if (loop.empty() && i == 0) break;
      if (loop.empty()) continue;
      if (i == 0) result.BeginFace();
      result.AddLoop(loop);
    }
  }
}

std::vector<EdgeUse> EdgesOf(const Mesh& mesh) {
  std::vector<EdgeUse> edges;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      for (std::size_t k = 0; k < loop.size(); ++k) {
        const Mesh::Index to = loop[k + 1 < loop.size() ? k + 1 : 0];
        if (loop[k] != to) edges.push_back({loop[k], to, static_cast<Mesh::Index>(face)});
      }
    }
  }
  return edges;
}

std::pair<Mesh::Index, Mesh::Index> EndsOf(const EdgeUse& edge) {
  return {std::min(edge.from, edge.to), std::max(edge.from, edge.to)};
}

}  // namespace

Mesh Weld(const Mesh& mesh, double distance) {
  std::vector<bool> isUsed(mesh.points.size(), false);
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      for (const Mesh::Index point : mesh.LoopOf(face, i)) {
        if (point < isUsed.size()) isUsed[point] = true;
      }
    }
  }
  PointIndex index(distance, mesh.points.size());
  std::vector<Mesh::Index> numbers(mesh.points.size(), kNone);
  for (std::size_t i = 0; i < mesh.points.size(); ++i) {
    if (isUsed[i] && IsUsable(mesh.points[i])) numbers[i] = index.Add(mesh.points[i]);
  }
  Mesh result;
  result.points = index.Points();
  CopyFaces(mesh, numbers, result);
  return result;
}

Mesh Flip(const Mesh& mesh) {
  Mesh result;
  result.points = mesh.points;
  std::vector<Mesh::Index> loop;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    result.BeginFace();
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop source = mesh.LoopOf(face, i);
      loop.assign(source.begin(), source.end());
      std::reverse(loop.begin(), loop.end());
      result.AddLoop(loop);
    }
  }
  return result;
}

void Append(Mesh& mesh, Mesh other) {
  if (mesh.points.empty() && mesh.IsEmpty()) {
    mesh = std::move(other);
    return;
  }
  const auto first = static_cast<Mesh::Index>(mesh.points.size());
  mesh.points.insert(mesh.points.end(), other.points.begin(), other.points.end());
  std::vector<Mesh::Index> loop;
  for (std::size_t face = 0; face < other.FaceCount(); ++face) {
    mesh.BeginFace();
    for (std::size_t i = 0; i < other.LoopCount(face); ++i) {
      loop.clear();
      for (const Mesh::Index point : other.LoopOf(face, i)) loop.push_back(first + point);
      mesh.AddLoop(loop);
    }
  }
}

Mesh Moved(Mesh mesh, const Transform3& map) {
  Mesh result = map.Determinant() < 0.0 ? Flip(mesh) : std::move(mesh);
  for (Point3& point : result.points) point = map(point);
  return result;
}

std::vector<Mesh> PartsOf(const Mesh& mesh) {
  // Points that a face joins have one root.
  std::vector<Mesh::Index> roots(mesh.points.size());
  std::iota(roots.begin(), roots.end(), Mesh::Index{0});
  const auto rootOf = [&](Mesh::Index p) {
    while (roots[p] != p) p = roots[p] = roots[roots[p]];
    return p;
  };
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    const Mesh::Index first = rootOf(mesh.LoopOf(face, 0)[0]);
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      for (const Mesh::Index p : mesh.LoopOf(face, i)) roots[rootOf(p)] = rootOf(first);
    }
  }
  std::vector<Mesh::Index> parts(mesh.points.size(), kNone);
  std::vector<Mesh::Index> numbers(mesh.points.size());
  std::vector<Mesh> result;
  std::vector<Mesh::Index> loop;
  for (Mesh::Index p = 0; p < mesh.points.size(); ++p) {
    Mesh::Index& part = parts[rootOf(p)];
    if (part == kNone) {
      part = static_cast<Mesh::Index>(result.size());
      result.emplace_back();
    }
    numbers[p] = static_cast<Mesh::Index>(result[part].points.size());
    result[part].points.push_back(mesh.points[p]);
  }
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    Mesh& part = result[parts[rootOf(mesh.LoopOf(face, 0)[0])]];
    part.BeginFace();
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      loop.clear();
      for (const Mesh::Index p : mesh.LoopOf(face, i)) loop.push_back(numbers[p]);
      part.AddLoop(loop);
    }
  }
  std::erase_if(result, [](const Mesh& part) { return part.IsEmpty(); });
  return result;
}

std::vector<EdgeUse> SortedEdgesOf(const Mesh& mesh) {
  const auto isBefore = [](const EdgeUse& a, const EdgeUse& b) {
    return std::tuple(EndsOf(a), a.face, a.from) < std::tuple(EndsOf(b), b.face, b.from);
  };
  std::vector<EdgeUse> edges = EdgesOf(mesh);
  const std::size_t count = mesh.points.size();
  const bool isValid = std::all_of(edges.begin(), edges.end(),
                                   [&](const EdgeUse& edge) { return EndsOf(edge).first < count; });
  if (!isValid) {
    std::sort(edges.begin(), edges.end(), isBefore);
    return edges;
  }
  // By the lower end first, without comparisons: few edges share it.
  std::vector<std::size_t> starts(count + 1, 0);
  for (const EdgeUse& edge : edges) ++starts[EndsOf(edge).first];
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<EdgeUse> sorted(edges.size());
  for (const EdgeUse& edge : edges) sorted[--starts[EndsOf(edge).first]] = edge;
  for (std::size_t end = 0; end < count; ++end) {
    std::sort(sorted.begin() + static_cast<std::ptrdiff_t>(starts[end]),
              sorted.begin() + static_cast<std::ptrdiff_t>(starts[end + 1]), isBefore);
  }
  return sorted;
}

namespace {

/// The same as IsBalanced for a mesh of few points; none if an index is beyond them.
std::optional<bool> IsBalancedByTable(const Mesh& mesh) {
  const std::size_t size = mesh.points.size();
  std::array<std::int32_t, kFewPoints * kFewPoints> table;  // by the two ends of an edge
  std::fill_n(table.begin(), size * size, 0);
  std::size_t open = 0;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      for (std::size_t k = 0; k < loop.size(); ++k) {
        const Mesh::Index from = loop[k];
        const Mesh::Index to = loop[k + 1 < loop.size() ? k + 1 : 0];
        if (from >= size || to >= size) return std::nullopt;
        if (from == to) continue;
        std::int32_t& balance = table[std::min(from, to) * size + std::max(from, to)];
        if (balance == 0) ++open;
        balance += from < to ? 1 : -1;
        if (balance == 0) --open;
      }
    }
  }
  return open == 0;
}

/// A use of an edge: its two ends in one number, and 1 if it leads to the higher end, otherwise -1.
struct DirectedUse {
  std::uint64_t ends = 0;
  std::int32_t direction = 0;
};

/// True if each edge is used as often in one direction as in the other. Sorts the uses.
bool AreBalanced(DirectedUse* begin, DirectedUse* end) {
  std::sort(begin, end, [](const DirectedUse& a, const DirectedUse& b) { return a.ends < b.ends; });
  while (begin != end) {
    const std::uint64_t ends = begin->ends;
    std::int32_t balance = 0;
    for (; begin != end && begin->ends == ends; ++begin) balance += begin->direction;
    if (balance != 0) return false;
  }
  return true;
}

}  // namespace

bool IsBalanced(const Mesh& mesh) {
  if (mesh.points.size() <= kFewPoints) {
    if (const std::optional<bool> isBalanced = IsBalancedByTable(mesh)) return *isBalanced;
  }
  const std::vector<EdgeUse> edges = EdgesOf(mesh);
  // By the lower end first, without comparisons: few edges share it. The last group is that of the
  // ends that are no points.
  const std::size_t count = mesh.points.size();
  const auto groupOf = [count](const EdgeUse& edge) {
    return std::min<std::size_t>(EndsOf(edge).first, count);
  };
  std::vector<std::size_t> starts(count + 2, 0);
  for (const EdgeUse& edge : edges) ++starts[groupOf(edge)];
  std::partial_sum(starts.begin(), starts.end(), starts.begin());
  std::vector<DirectedUse> uses(edges.size());
  for (const EdgeUse& edge : edges) {
    const auto [lower, upper] = EndsOf(edge);
    const std::int32_t direction = edge.from < edge.to ? 1 : -1;
    uses[--starts[groupOf(edge)]] = {std::uint64_t{lower} << 32 | upper, direction};
  }
  for (std::size_t group = 0; group <= count; ++group) {
    DirectedUse* const first = uses.data() + starts[group];
    if (!AreBalanced(first, uses.data() + starts[group + 1])) return false;
  }
  return true;
}

BuildingBox BoxOf(const Mesh& mesh) {
  BuildingBox box;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (const Mesh::Index point : mesh.LoopOf(face, 0)) {
      if (point < mesh.points.size()) Extend(box, mesh.points[point]);
    }
  }
  return box;
}

double VolumeOf(const Mesh& mesh) {
  // About the centre of the box: far from the origin the products would lose their digits.
  const Point3 centre = CentreOf(BoxOf(mesh));
  double sum = 0.0;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      const Mesh::Loop loop = mesh.LoopOf(face, i);
      if (loop.size() < 3) continue;
      sum += Dot(mesh.points[loop[0]] - centre, AreaVectorOf(mesh, loop));
    }
  }
  return sum / 6.0;
}

bool IsClosed(const Mesh& mesh) {
  if (mesh.IsEmpty()) return false;
  return IsBalanced(mesh) || IsBalanced(Weld(mesh, kWeldDistance));
}

}  // namespace KelIFC::building
