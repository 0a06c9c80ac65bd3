#ifndef KELIFC_BUILDING_SOLID_ARRANGEMENT_H_
#define KELIFC_BUILDING_SOLID_ARRANGEMENT_H_

#include <cstdint>
#include <utility>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/box_tree.h"
#include "kelifc/building/solid/loops.h"
#include "kelifc/building/solid/point_index.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

/// The faces and edges of two meshes in common coordinates, and all points in which they touch or
/// cross. A point that lies on an edge or a face within the tolerance is attached to it, once and
/// for all, so that faces which share an edge split it in the same points. Edges that both meshes
/// have are one edge.
class Arrangement {
 public:
  using Index = Mesh::Index;

  struct Edge {
    Index a = 0;
    Index b = 0;  ///< a < b
    bool isOf[2] = {false, false};
    std::vector<Index> attached;  ///< from a to b
  };

  struct Face {
    std::size_t operand = 0;  ///< 0 or 1
    std::vector<PointLoop> loops;
    std::vector<std::size_t> edges;
    Vector3 normal;
    Projection plane;
    BuildingBox box;
    std::vector<Index> inside;           ///< points attached to the face, but not to its edges
    std::vector<Index> on;               ///< all points of the face, by number
    std::vector<DirectedEdge> boundary;  ///< the loops, split in all points of the edges
    std::vector<DirectedEdge> segments;  ///< where the other mesh crosses the face; first < second
    std::vector<std::size_t> coplanar;   ///< faces of the other mesh in the same plane
  };

  /// Both meshes are moved by -`origin`.
  Arrangement(const Mesh& first, const Mesh& second, const Point3& origin, double tolerance);

  /// Finds all contacts. Returns false if that takes more than about 3000 steps for each edge.
  bool Build();

  const std::vector<Face>& Faces() const { return faces; }
  const Point3& At(Index point) const { return index.Points()[point]; }
  std::size_t PointCount() const { return index.Points().size(); }

  enum class Place { kOutside, kOn, kInside };
  /// Where a point of the plane of a face is.
  Place PlaceOf(const Point3& point, const Face& face);

 private:
  void AddMesh(const Mesh& mesh, const Point3& origin, std::size_t operand);
  void AddFace(std::vector<PointLoop> loops, std::size_t operand);
  void AddTriangles(const Face& face);
  double DeviationOf(const Face& face) const;
  void SplitBoundary(Face& face);
  void CollectEdges();
  std::size_t EdgeOf(Index a, Index b) const;
  void AttachVerticesToEdges();
  void CrossEdges();
  void CrossEdge(Edge& first, Edge& second);
  void CrossFaces();
  void CrossFace(Edge& edge, Face& face);
  void AttachVerticesToFaces();
  void SplitBoundaries();
  void CrossPlanes();
  void AddCommonSegments(Face& first, Face& second);
  void AddCoplanarEdges(Face& to, const Face& from);
  void AddSegment(Face& face, const DirectedEdge& segment, const Point3& middle);
  bool AreCoplanar(const Face& a, const Face& b) const;
  double HeightOf(const Point3& point, const Face& face) const {
    return Dot(point - face.plane.origin, face.normal);
  }
  void Attach(Edge& edge, Index point);
  bool Work(std::size_t amount) { return (work += amount) < mostWork; }

  double tolerance;
  PointIndex index;
  std::vector<Face> faces;
  std::vector<Edge> edges;
  BoxTree edgeTree;
  BoxTree faceTree;
  std::vector<bool> isOf[2];  // whether a point is a vertex of an operand
  std::size_t work = 0;
  std::size_t mostWork = 0;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_ARRANGEMENT_H_
