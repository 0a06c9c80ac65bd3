#include "export/solids/display_model.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "kelifc/building/element_solid.h"
#include "kelifc/building/mesh.h"
#include "kelifc/building/triangulation.h"

#include "export/report_progress.h"
#include "export/solids/display_loops.h"
#include "export/solids/drawn_edges.h"

namespace KelIFC::exporting {
namespace {

/// Beyond this, in metres, points are not shown: single precision and sums of squares would lose
/// all digits.
constexpr double kLargestCoordinate = 1e9;

/// How far the axes of a member may be from square unit vectors if it shares a mesh.
constexpr double kSquareTolerance = 1e-9;

constexpr std::size_t kElementsPerReport = 256;

bool IsUsable(double value) { return std::abs(value) <= kLargestCoordinate; }

bool IsUsable(const Point3& p) { return IsUsable(p.x) && IsUsable(p.y) && IsUsable(p.z); }

/// The centre of all elements with a usable box, in whole metres.
Point3 CentreOf(const Building& building) {
  BuildingBox all;
  for (const BuildingElement& element : building.elements) {
    const BuildingBox& box = element.box;
    if (box.IsEmpty() || !IsUsable(box.min) || !IsUsable(box.max)) continue;
    all.min = {std::min(all.min.x, box.min.x), std::min(all.min.y, box.min.y),
               std::min(all.min.z, box.min.z)};
    all.max = {std::max(all.max.x, box.max.x), std::max(all.max.y, box.max.y),
               std::max(all.max.z, box.max.z)};
  }
  if (all.IsEmpty()) return {};
  return {std::round((all.min.x + all.max.x) / 2), std::round((all.min.y + all.max.y) / 2),
          std::round((all.min.z + all.max.z) / 2)};
}

/// The size of an array as an index. Throws ExportError if it is too large for one.
std::uint32_t IndexOf(std::size_t size) {
  if (size >= std::numeric_limits<std::uint32_t>::max()) {
    throw ExportError(ExportFailure::kFile, "the model is too large to be shown");
  }
  return static_cast<std::uint32_t>(size);
}

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

/// The matrix of a straight member with square ends and one profile. None for other elements.
std::optional<DisplayMatrix> MatrixOfPrism(const BuildingElement& element) {
  if (!element.member) return std::nullopt;
  const MemberAxis& axis = *element.member;
  if (axis.curve != CurveForm::kLine || axis.points.size() < 2) return std::nullopt;
  if (axis.endProfile || axis.ends[0] || axis.ends[1]) return std::nullopt;
  const Point3& from = axis.points.front();
  const Point3& to = axis.points.back();
  if (!IsUsable(from) || !IsUsable(to)) return std::nullopt;
  const Vector3 along = to - from;
  const double length = Length(along);
  if (!(length > 0.0)) return std::nullopt;
  const Vector3 unit = along / length;
  const bool isSquare = std::abs(Dot(unit, axis.y)) < kSquareTolerance &&
                        std::abs(Length(axis.y) - 1.0) < kSquareTolerance;
  if (!isSquare || !IsUsable(axis.offset.x) || !IsUsable(axis.offset.y)) return std::nullopt;
  const Vector3 z = Cross(unit, axis.y);
  return DisplayMatrix{along, axis.y, z, from + -(axis.offset.x * axis.y + axis.offset.y * z)};
}

/// A member from x = 0 to x = 1 with a profile.
BuildingElement UnitPrism(std::size_t profile) {
  BuildingElement element;
  element.member.emplace();
  element.member->points = {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}};
  element.member->y = {0.0, 1.0, 0.0};
  element.member->profile = profile;
  return element;
}

class DisplayModelMaker {
 public:
  DisplayModelMaker(const Building& someBuilding, const ExportOptions& someOptions)
      : building(someBuilding), options(someOptions) {}

  DisplayModel Make() {
    const std::size_t count = building.elements.size();
    IndexOf(count);
    model.origin = CentreOf(building);
    model.elementMesh.assign(count, kNoDisplayMesh);
    model.elementMatrix.resize(count);
    prisms.resize(building.profiles.size());
    for (std::size_t i = 0; i < count; ++i) {
      if (i % kElementsPerReport == 0) ReportProgress(options, i, 2 * count);
      AddElement(i);
      AddLines(i);
    }
    return std::move(model);
  }

 private:
  void AddElement(std::size_t i) {
    const BuildingElement& element = building.elements[i];
    DisplayMatrix& matrix = model.elementMatrix[i];
    if (const std::optional<DisplayMatrix> shared = MatrixOfPrism(element)) {
      const std::size_t profile = element.member->profile;
      if (profile >= prisms.size()) return;
      if (!prisms[profile]) {
        DisplayMatrix unused;
        prisms[profile] =
            AddMesh(SolidOf(building, UnitPrism(profile)), true, Origin::kZero, unused);
      }
      if (*prisms[profile] != kNoDisplayMesh) matrix = *shared;
      model.elementMesh[i] = *prisms[profile];
      return;
    }
    const bool isBody = !element.member && !element.surface;
    if (isBody && element.body.mesh) {
      model.elementMesh[i] =
          AddMesh(*element.body.mesh, element.body.isClosed, Origin::kMiddle, matrix);
    } else {
      model.elementMesh[i] = AddMesh(SolidOf(building, element), true, Origin::kMiddle, matrix);
    }
  }

  enum class Origin { kZero, kMiddle };

  /// Adds a mesh and returns its number; kNoDisplayMesh if it has no triangles.
  std::uint32_t AddMesh(const Mesh& mesh, bool isClosed, Origin origin, DisplayMatrix& matrix) {
    const std::vector<MeshTriangle> triangles = TrianglesOf(mesh);
    if (triangles.empty()) return kNoDisplayMesh;
    if (origin == Origin::kMiddle) matrix.origin = MiddleOf(mesh, triangles);
    DisplayMesh& result = model.meshes.emplace_back();
    result.isClosed = isClosed;
    result.firstVertex = IndexOf(model.positions.size() / 3);
    result.firstTriangle = IndexOf(model.triangles.size() / 3);
    result.firstEdge = IndexOf(model.edges.size() / 2);
    numbers.assign(mesh.points.size(), kNoVertex);
    for (const MeshTriangle& triangle : triangles) {
      for (const Mesh::Index corner : triangle.corners) {
        model.triangles.push_back(VertexOf(mesh, corner, matrix.origin, result));
      }
    }
    result.triangleCount = IndexOf(triangles.size());
    for (const MeshEdge& edge : DrawnEdgesOf(mesh)) {
      if (!IsUsable(mesh.points[edge[0]]) || !IsUsable(mesh.points[edge[1]])) continue;
      for (const Mesh::Index end : edge) {
        model.edges.push_back(VertexOf(mesh, end, matrix.origin, result));
      }
      ++result.edgeCount;
    }
    return IndexOf(model.meshes.size() - 1);
  }

  /// The number of a point in its mesh. Points are added at their first use.
  std::uint32_t VertexOf(const Mesh& mesh, Mesh::Index point, const Point3& origin,
                         DisplayMesh& result) {
    std::uint32_t& number = numbers[point];
    if (number == kNoVertex) {
      number = result.vertexCount++;
      AddPoint(model.positions, mesh.points[point] - origin);
    }
    return number;
  }

  static void AddPoint(std::vector<float>& array, const Vector3& v) {
    for (const double value : {v.x, v.y, v.z}) array.push_back(static_cast<float>(value));
  }

  void AddLines(std::size_t i) {
    for (const IdealLine& line : IdealLinesOf(building.elements[i])) {
      const bool isUsable = std::all_of(line.points.begin(), line.points.end(),
                                        [](const Point3& p) { return IsUsable(p); });
      if (!isUsable || line.points.size() < 2) continue;
      model.loops.push_back({IndexOf(i), IndexOf(model.loopPoints.size() / 3),
                             IndexOf(line.points.size()), line.isClosed});
      for (const Point3& p : line.points) AddPoint(model.loopPoints, p - model.origin);
    }
  }

  static constexpr std::uint32_t kNoVertex = 0xFFFFFFFF;

  const Building& building;
  const ExportOptions& options;
  DisplayModel model;
  std::vector<std::optional<std::uint32_t>> prisms;  // by profile: its mesh
  std::vector<std::uint32_t> numbers;                // by point: its vertex in the mesh
};

}  // namespace

DisplayModel MakeDisplayModel(const Building& building, const ExportOptions& options) {
  return DisplayModelMaker(building, options).Make();
}

}  // namespace KelIFC::exporting
