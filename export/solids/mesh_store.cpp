#include "export/solids/mesh_store.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>

#include "export/export.h"
#include "export/solids/drawn_edges.h"
#include "export/solids/round_edges.h"

namespace KelIFC::exporting {
namespace {

constexpr std::uint32_t kNoVertex = 0xFFFFFFFF;

/// Coordinates are rounded to multiples of 1 micrometre, so that equal solids at different places
/// have equal meshes although their coordinates differ in the last digits.
constexpr double kStepsPerMetre = 1e6;

/// With how many meshes of the same hash a mesh is compared.
constexpr std::size_t kMostCompared = 8;

/// The middle of the points of the triangles, near which single precision is exact.
Point3 MiddleOf(const Mesh& mesh, const std::vector<MeshTriangle>& triangles) {
  Point3 min = mesh.points[triangles[0].corners[0]];
  Point3 max = min;
  for (const MeshTriangle& triangle : triangles) {
    for (const Mesh::Index corner : triangle.corners) {
      const Point3& p = mesh.points[corner];
      min = {std::min(min.x, p.x), std::min(min.y, p.y), std::min(min.z, p.z)};
      max = {std::max(max.x, p.x), std::max(max.y, p.y), std::max(max.z, p.z)};
    }
  }
  return {(min.x + max.x) / 2, (min.y + max.y) / 2, (min.z + max.z) / 2};
}

/// The sum of 0 turns a negative zero into zero, which has other bits.
float OnGrid(double value) {
  return static_cast<float>(std::round(value * kStepsPerMetre) / kStepsPerMetre + 0.0);
}

/// A hash of the FNV kind.
class Hash {
 public:
  void Add(std::uint64_t number) {
    value ^= number;
    value *= 0x100000001B3;
    value ^= value >> 29U;
  }
  void Add(const std::vector<std::uint32_t>& list) {
    Add(list.size());
    for (const std::uint32_t number : list) Add(std::uint64_t{number});
  }
  void Add(const std::vector<float>& list) {
    Add(list.size());
    for (const float number : list) Add(std::uint64_t{std::bit_cast<std::uint32_t>(number)});
  }
  std::uint64_t Get() const { return value; }

 private:
  std::uint64_t value = 0xCBF29CE484222325;
};

/// True if a list equals the part of an array that begins with an item of `size` numbers.
template <class Number>
bool IsPart(const std::vector<Number>& list, const std::vector<Number>& array, std::size_t first,
            std::size_t count, std::size_t size) {
  if (list.size() != count * size) return false;
  return std::equal(list.begin(), list.end(),
                    array.begin() + static_cast<std::ptrdiff_t>(first * size));
}

template <class Number>
void AppendTo(std::vector<Number>& array, const std::vector<Number>& list) {
  array.insert(array.end(), list.begin(), list.end());
}

}  // namespace

bool IsUsable(const Point3& p) {
  return std::abs(p.x) <= kLargestCoordinate && std::abs(p.y) <= kLargestCoordinate &&
         std::abs(p.z) <= kLargestCoordinate;
}

std::uint32_t IndexOf(std::size_t size) {
  if (size >= std::numeric_limits<std::uint32_t>::max()) {
    throw ExportError(ExportFailure::kFile, "the model is too large to be shown");
  }
  return static_cast<std::uint32_t>(size);
}

std::uint32_t MeshStore::Add(const Mesh& mesh, bool isClosed, Origin origin, Point3& place,
                             const std::vector<Mesh>& wires) {
  std::vector<MeshTriangle> triangles = TrianglesOf(mesh);
  triangles.erase(std::remove_if(triangles.begin(), triangles.end(),
                                 [&](const MeshTriangle& triangle) {
                                   return std::any_of(
                                       triangle.corners.begin(), triangle.corners.end(),
                                       [&](Mesh::Index p) { return !IsUsable(mesh.points[p]); });
                                 }),
                  triangles.end());
  if (triangles.empty()) return kNoDisplayMesh;
  place = origin == Origin::kMiddle ? MiddleOf(mesh, triangles) : Point3();
  content = {};
  content.isClosed = isClosed;
  Fill(mesh, triangles, place);
  for (const Mesh& wire : wires) AddWire(wire, place);
  Hash hash;
  hash.Add(content.positions);
  hash.Add(content.triangles);
  hash.Add(content.edges);
  std::vector<std::uint32_t>& candidates = meshesOf[hash.Get()];
  for (const std::uint32_t candidate : candidates) {
    if (IsEqual(model.meshes[candidate])) return candidate;
  }
  const std::uint32_t number = Append();
  if (candidates.size() < kMostCompared) candidates.push_back(number);
  return number;
}

void MeshStore::Fill(const Mesh& mesh, const std::vector<MeshTriangle>& triangles,
                     const Point3& origin) {
  numbers.assign(mesh.points.size(), kNoVertex);
  for (const MeshTriangle& triangle : triangles) {
    for (const Mesh::Index corner : triangle.corners) {
      content.triangles.push_back(VertexOf(mesh, corner, origin));
    }
  }
  for (const MeshEdge& edge : DrawnEdgesOf(mesh)) {
    if (!IsUsable(mesh.points[edge[0]]) || !IsUsable(mesh.points[edge[1]])) continue;
    for (const Mesh::Index end : edge) content.edges.push_back(VertexOf(mesh, end, origin));
  }
  for (const RoundEdge& edge : RoundEdgesOf(mesh, triangles, content.isClosed)) {
    for (const Mesh::Index point : {edge.ends[0], edge.ends[1], edge.beside[0], edge.beside[1]}) {
      content.roundEdges.push_back(VertexOf(mesh, point, origin));
    }
  }
}

void MeshStore::AddWire(const Mesh& wire, const Point3& origin) {
  if (!std::all_of(wire.points.begin(), wire.points.end(),
                   [](const Point3& p) { return IsUsable(p); })) {
    return;
  }
  numbers.assign(wire.points.size(), kNoVertex);
  for (const MeshEdge& edge : DrawnEdgesOf(wire)) {
    for (const Mesh::Index end : edge) content.edges.push_back(VertexOf(wire, end, origin));
  }
}

/// The number of a point in its mesh. Points are added at their first use.
std::uint32_t MeshStore::VertexOf(const Mesh& mesh, Mesh::Index point, const Point3& origin) {
  std::uint32_t& number = numbers[point];
  if (number == kNoVertex) {
    number = IndexOf(content.positions.size() / 3);
    const Vector3 v = mesh.points[point] - origin;
    for (const double value : {v.x, v.y, v.z}) content.positions.push_back(OnGrid(value));
  }
  return number;
}

bool MeshStore::IsEqual(const DisplayMesh& mesh) const {
  return content.isClosed == mesh.isClosed &&
         IsPart(content.positions, model.positions, mesh.firstVertex, mesh.vertexCount, 3) &&
         IsPart(content.triangles, model.triangles, mesh.firstTriangle, mesh.triangleCount, 3) &&
         IsPart(content.edges, model.edges, mesh.firstEdge, mesh.edgeCount, 2) &&
         IsPart(content.roundEdges, model.roundEdges, mesh.firstRoundEdge, mesh.roundEdgeCount, 4);
}

std::uint32_t MeshStore::Append() {
  DisplayMesh mesh;
  mesh.firstVertex = IndexOf(model.positions.size() / 3);
  mesh.vertexCount = IndexOf(content.positions.size() / 3);
  mesh.firstTriangle = IndexOf(model.triangles.size() / 3);
  mesh.triangleCount = IndexOf(content.triangles.size() / 3);
  mesh.firstEdge = IndexOf(model.edges.size() / 2);
  mesh.edgeCount = IndexOf(content.edges.size() / 2);
  mesh.firstRoundEdge = IndexOf(model.roundEdges.size() / 4);
  mesh.roundEdgeCount = IndexOf(content.roundEdges.size() / 4);
  mesh.isClosed = content.isClosed;
  AppendTo(model.positions, content.positions);
  AppendTo(model.triangles, content.triangles);
  AppendTo(model.edges, content.edges);
  AppendTo(model.roundEdges, content.roundEdges);
  model.meshes.push_back(mesh);
  return IndexOf(model.meshes.size() - 1);
}

}  // namespace KelIFC::exporting
