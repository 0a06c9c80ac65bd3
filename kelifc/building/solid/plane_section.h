#ifndef KELIFC_BUILDING_SOLID_PLANE_SECTION_H_
#define KELIFC_BUILDING_SOLID_PLANE_SECTION_H_

#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

#include "kelifc/building/mesh.h"
#include "kelifc/building/solid/loops.h"

namespace KelIFC::building {

/// Which part of a mesh is below a plane, that is on the side that its normal points away from. The
/// side of each point, and the point where each edge crosses, are decided once for all faces, so
/// that the parts of neighbouring faces fit.
class PlaneSection {
 public:
  /// Points within `tolerance` of the plane are in it. With a negative tolerance no point is: those
  /// in the plane count as above it.
  PlaneSection(const Mesh& mesh, const Point3& point, const Vector3& unitNormal, double tolerance);

  bool HasAbove() const { return hasAbove; }
  bool HasBelow() const { return hasBelow; }

  /// True if a face has points on both sides of the plane.
  bool Crosses(std::size_t face) const;

  /// The part of a face below the plane, as loops of Points(); the loops are in no order. Adds to
  /// `cap` the edges along the plane, directed such that what the plane closes is to the left of
  /// them, seen against the normal.
  void AddFace(std::size_t face, std::vector<PointLoop>& loops, std::vector<DirectedEdge>& cap);

  /// The points of the mesh, and the crossings after them.
  const std::vector<Point3>& Points() const { return points; }

 private:
  /// A piece of a loop below the plane, both ends in the plane.
  struct Chain {
    PointLoop points;
    std::size_t next = 0;
  };
  /// The place of an end of a chain along the line in which the face meets the plane, and the
  /// chain.
  using End = std::pair<double, std::size_t>;

  std::uint32_t Crossing(std::uint32_t a, std::uint32_t b);
  void AddLoop(const Mesh::Loop& loop, std::vector<PointLoop>& loops);
  void AddChains(const Mesh::Loop& loop, std::size_t first);
  void CloseLoop(std::size_t firstChain, std::vector<PointLoop>& loops);
  std::size_t FirstOutside(const Mesh::Loop& loop) const;
  bool IsBelow(std::uint32_t from, std::uint32_t to) const;
  void SortEnds(const Vector3& along);
  void LinkChains(std::vector<PointLoop>& loops);
  void JoinChains(const Vector3& along, std::vector<PointLoop>& loops,
                  std::vector<DirectedEdge>& cap);
  void AddBetween(const Vector3& along, std::uint32_t from, std::uint32_t to,
                  PointLoop& line) const;

  const Mesh& mesh;
  Point3 origin;
  Vector3 normal;
  std::vector<Point3> points;
  std::vector<double> heights;
  std::vector<std::int8_t> sides;
  std::unordered_map<std::uint64_t, std::uint32_t> crossings;
  bool hasAbove = false;
  bool hasBelow = false;

  // Of the face at hand.
  std::vector<Chain> chains;
  std::vector<End> starts;
  std::vector<End> ends;
  std::vector<std::uint32_t> inPlane;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_PLANE_SECTION_H_
