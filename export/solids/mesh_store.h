#ifndef EXPORT_SOLIDS_MESH_STORE_H_
#define EXPORT_SOLIDS_MESH_STORE_H_

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/triangulation.h"
#include "kelifc/geometry/point.h"

#include "export/solids/display_model.h"

namespace KelIFC::exporting {

/// Beyond this, in metres, points are not shown: single precision and sums of squares would lose
/// all digits.
constexpr double kLargestCoordinate = 1e9;

/// True if all coordinates are finite and not beyond kLargestCoordinate.
bool IsUsable(const Point3& p);

/// Converts the size of an array to an index. Throws ExportError if it is too large for one.
std::uint32_t IndexOf(std::size_t size);

/// Adds meshes to a display model. A mesh that equals an earlier one is not added again.
class MeshStore {
 public:
  /// The model must outlive the store.
  explicit MeshStore(DisplayModel& someModel) : model(someModel) {}

  /// Where the zero point of a mesh is.
  enum class Origin {
    kZero,   ///< where it is in the mesh that is added
    kMiddle  ///< in the middle of the triangles
  };

  /// Adds a mesh with its edges and returns its number; kNoDisplayMesh if it has no triangles.
  /// `place` becomes its zero point. The edges of `wires` are added to those of the mesh.
  std::uint32_t Add(const Mesh& mesh, bool isClosed, Origin origin, Point3& place,
                    const std::vector<Mesh>& wires = {});

 private:
  /// A mesh with vertices and indices of its own.
  struct Content {
    std::vector<float> positions;
    std::vector<std::uint32_t> triangles;
    std::vector<std::uint32_t> edges;
    std::vector<std::uint32_t> roundEdges;
    bool isClosed = false;
  };

  void Fill(const Mesh& mesh, const std::vector<MeshTriangle>& triangles, const Point3& origin);
  void AddWire(const Mesh& wire, const Point3& origin);
  std::uint32_t VertexOf(const Mesh& mesh, Mesh::Index point, const Point3& origin);
  bool IsEqual(const DisplayMesh& mesh) const;
  std::uint32_t Append();

  DisplayModel& model;
  Content content;                     // of the mesh that is added
  std::vector<std::uint32_t> numbers;  // by point of this mesh: its vertex
  std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> meshesOf;  // by hash
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_MESH_STORE_H_
