#ifndef EXPORT_SOLIDS_DISPLAY_MODEL_H_
#define EXPORT_SOLIDS_DISPLAY_MODEL_H_

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelifc/building/building.h"
#include "kelifc/geometry/point.h"

#include "export/export.h"
#include "export/solids/display_loops.h"

namespace KelIFC::exporting {

/// Stands for no mesh in DisplayModel::elementMesh.
constexpr std::uint32_t kNoDisplayMesh = 0xFFFFFFFF;

/// The parts of the arrays of a DisplayModel that a mesh uses. Each count is of items with 3, 3, 2
/// and 4 numbers.
struct DisplayMesh {
  std::uint32_t firstVertex = 0;     ///< in `positions`
  std::uint32_t vertexCount = 0;     ///< at least 3
  std::uint32_t firstTriangle = 0;   ///< in `triangles`
  std::uint32_t triangleCount = 0;   ///< at least 1
  std::uint32_t firstEdge = 0;       ///< in `edges`
  std::uint32_t edgeCount = 0;       ///< can be 0
  std::uint32_t firstRoundEdge = 0;  ///< in `roundEdges`
  std::uint32_t roundEdgeCount = 0;  ///< can be 0

  /// True if the triangles have no gaps, so that only their outer sides can be seen.
  bool isClosed = false;
};

/// A map from mesh coordinates to world coordinates: origin + p.x * x + p.y * y + p.z * z. It keeps
/// orientation.
struct DisplayMatrix {
  Vector3 x{1.0, 0.0, 0.0};  ///< the image of the x axis
  Vector3 y{0.0, 1.0, 0.0};  ///< the image of the y axis
  Vector3 z{0.0, 0.0, 1.0};  ///< the image of the z axis
  Point3 origin;             ///< the image of the zero point
};

/// A line of the idealisation: the axis of a member, an edge of the region of a surface, or the
/// outline of an opening.
struct DisplayLoop {
  std::uint32_t element = 0;     ///< the index in Building::elements
  std::uint32_t firstPoint = 0;  ///< in `loopPoints`
  std::uint32_t pointCount = 0;  ///< at least 2
  LineKind kind = LineKind::kAxis;
};

/// What is shown of the openings of elements.
enum class OpeningDisplay {
  kNone,  ///< solids are those of the idealisation
  kCut    ///< openings are cut out of the solids, or at least outlined, and have loops
};

/// What a building looks like: the solids of its elements as triangles, and the lines of the
/// idealisation. Lengths are in metres. All numbers are finite.
///
/// Straight members with square ends share a mesh for each profile: the profile from x = 0 to x =
/// 1. Their matrix scales x by the length. The matrix of another element only moves its mesh.
/// Elements with equal meshes share one of them.
struct DisplayModel {
  /// A point near the middle of all elements, in whole metres. `loopPoints` are relative to it.
  /// Matrices are not.
  Point3 origin;

  std::vector<float> positions;  ///< 3 for each vertex, in mesh coordinates

  /// 3 for each triangle: vertices, counted from the first vertex of the mesh. Counter-clockwise
  /// from outside.
  std::vector<std::uint32_t> triangles;

  /// 2 for each edge that a drawing shows: vertices, counted from the first vertex of the mesh.
  std::vector<std::uint32_t> edges;

  /// 4 for each edge between two faces of a round surface: the ends, and the third corners of the
  /// triangles on both sides. The triangle of the first one goes from the first end to the second.
  std::vector<std::uint32_t> roundEdges;

  std::vector<DisplayMesh> meshes;           ///< in the order of their first use
  std::vector<std::uint32_t> elementMesh;    ///< by element: its mesh, or kNoDisplayMesh
  std::vector<DisplayMatrix> elementMatrix;  ///< by element
  std::vector<DisplayLoop> loops;            ///< by rising element
  std::vector<float> loopPoints;             ///< 3 for each point
};

/// Makes the display model of a building. It reports progress as a share of 0 to 0.5 and throws
/// ExportError: if it is cancelled, and with ExportFailure::kFile if an array would have more than
/// 2^32 - 1 items.
DisplayModel MakeDisplayModel(const Building& building, const ExportOptions& options,
                              OpeningDisplay openings = OpeningDisplay::kNone);

}  // namespace KelIFC::exporting

#endif  // EXPORT_SOLIDS_DISPLAY_MODEL_H_
