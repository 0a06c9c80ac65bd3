#include <algorithm>

#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/boolean.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/plane_section.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

/// Points in a plane with numbers from 0.
class FlatPoints {
 public:
  FlatPoints(const std::vector<Point3>& somePoints, const Projection& somePlane)
      : points(somePoints), plane(somePlane) {}

  std::uint32_t Add(std::uint32_t point) {
    original.push_back(point);
    flat.push_back(plane(points[point]));
    return static_cast<std::uint32_t>(flat.size() - 1);
  }

  std::vector<Point2> flat;
  std::vector<std::uint32_t> original;

 private:
  const std::vector<Point3>& points;
  const Projection plane;
};

void AddLoop(Mesh& mesh, const PointLoop& loop, const std::vector<std::uint32_t>& original) {
  std::vector<Mesh::Index> indices;
  for (const std::uint32_t p : loop) indices.push_back(original[p]);
  mesh.AddLoop(indices);
}

/// Adds loops that lie in a plane as faces with holes.
void AddFaces(Mesh& mesh, const FlatPoints& points, const std::vector<PointLoop>& loops) {
  bool isComplete = true;
  for (const NestedLoop& nested : NestLoops(points.flat, loops, isComplete)) {
    mesh.BeginFace();
    AddLoop(mesh, loops[nested.outer], points.original);
    for (const std::size_t hole : nested.holes) AddLoop(mesh, loops[hole], points.original);
  }
}

/// Adds the part of a face that is left.
void AddPart(Mesh& mesh, const Mesh& source, std::size_t face, const PlaneSection& section,
             const std::vector<PointLoop>& loops) {
  if (loops.size() == 1) {
    mesh.AddFace(loops[0]);
    return;
  }
  if (loops.empty()) return;
  const Projection plane(section.Points()[loops[0][0]], Unit(AreaVectorOf(source, face)));
  FlatPoints points(section.Points(), plane);
  std::vector<PointLoop> flat;
  for (const PointLoop& loop : loops) {
    PointLoop& numbers = flat.emplace_back();
    for (const std::uint32_t p : loop) numbers.push_back(points.Add(p));
  }
  AddFaces(mesh, points, flat);
}

void AddCap(Mesh& mesh, const PlaneSection& section, const Projection& plane,
            std::vector<DirectedEdge> edges) {
  CancelOpposite(edges);
  std::vector<std::uint32_t> ends;
  for (const auto& [from, to] : edges) ends.insert(ends.end(), {from, to});
  std::sort(ends.begin(), ends.end());
  ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
  FlatPoints points(section.Points(), plane);
  for (const std::uint32_t end : ends) points.Add(end);
  const auto number = [&](std::uint32_t end) {
    return static_cast<std::uint32_t>(std::lower_bound(ends.begin(), ends.end(), end) -
                                      ends.begin());
  };
  for (auto& [from, to] : edges) {
    from = number(from);
    to = number(to);
  }
  AddFaces(mesh, points, TraceLoops(points.flat, edges).loops);
}

/// The part below a plane, with a unit normal. Points within the tolerance count as in the plane.
Mesh CutWithin(const Mesh& mesh, const Point3& point, const Vector3& normal, double tolerance) {
  PlaneSection section(mesh, point, normal, tolerance);
  if (!section.HasAbove()) return mesh;
  Mesh result;
  if (!section.HasBelow()) return result;
  std::vector<PointLoop> loops;
  std::vector<DirectedEdge> cap;
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    loops.clear();
    section.AddFace(face, loops, cap);
    AddPart(result, mesh, face, section, loops);
  }
  AddCap(result, section, Projection(point, normal), std::move(cap));
  result.points = section.Points();
  return Weld(result, kWeldDistance / 10.0);
}

}  // namespace

Mesh CutByPlane(const Mesh& mesh, const Point3& point, const Vector3& normal) {
  const Vector3 unit = Unit(normal);
  if (Length(unit) == 0.0 || !IsUsable(point)) return mesh;
  const double tolerance = std::max(1e-8, 1e-9 * SizeOf(BoxOf(mesh)));
  Mesh result = CutWithin(mesh, point, unit, tolerance);
  if (IsBalanced(result) || !IsClosed(mesh)) return result;
  // Faces that are almost in the plane may leave gaps, which a plane beside them does not.
  for (const double wider : {1e-7, 1e-6, 1e-5, -1.0}) {
    Mesh other = CutWithin(mesh, point, unit, wider);
    if (IsBalanced(other)) return other;
  }
  return result;
}

}  // namespace KelIFC::building
