#include "kelifc/building/solid/arrangement.h"

#include <algorithm>
#include <cmath>

#include "kelifc/building/solid/arrangement_tools.h"
#include "kelifc/building/solid/mesh_tools.h"
#include "kelifc/building/solid/triangulate.h"

namespace KelIFC::building {

namespace {

// A face whose area is smaller than that of a strip along its size, this many tolerances wide, has
// no plane that can be relied on.
constexpr double kLeastWidth = 1e-3;

// Faces whose points lie farther from their plane, in tolerances, are cut into triangles.
constexpr double kLargestWarp = 0.5;

// The most steps of a search for contacts: a fixed number, so many for each edge, and a limit for
// very large meshes.
constexpr std::size_t kFixedWork = 1'000'000;
constexpr std::size_t kWorkOfEdge = 3000;
constexpr std::size_t kMostWork = 400'000'000;

/// A loop without repeated points.
PointLoop Renumber(const Mesh::Loop& loop, const std::vector<Mesh::Index>& numbers) {
  PointLoop result;
  for (const Mesh::Index p : loop) {
    if (result.empty() || result.back() != numbers[p]) result.push_back(numbers[p]);
  }
  while (result.size() > 1 && result.front() == result.back()) result.pop_back();
  if (result.size() < 3) result.clear();
  return result;
}

}  // namespace

Arrangement::Arrangement(const Mesh& first, const Mesh& second, const Point3& origin,
                         double someTolerance)
    : tolerance(someTolerance), index(someTolerance, first.points.size() + second.points.size()) {
  AddMesh(first, origin, 0);
  AddMesh(second, origin, 1);
  CollectEdges();
}

void Arrangement::AddMesh(const Mesh& mesh, const Point3& origin, std::size_t operand) {
  std::vector<Index> numbers;
  for (const Point3& p : mesh.points) numbers.push_back(index.Add(ToPoint(p - origin)));
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    std::vector<PointLoop> loops;
    for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) {
      PointLoop loop = Renumber(mesh.LoopOf(face, i), numbers);
      if (loop.empty() && i == 0) break;
      if (!loop.empty()) loops.push_back(std::move(loop));
    }
    if (!loops.empty()) AddFace(std::move(loops), operand);
  }
}

void Arrangement::AddFace(std::vector<PointLoop> loops, std::size_t operand) {
  Vector3 area;
  BuildingBox box;
  const Point3& origin = At(loops[0][0]);
  for (const PointLoop& loop : loops) {
    for (std::size_t i = 0; i < loop.size(); ++i) {
      Extend(box, At(loop[i]));
      const Index to = loop[(i + 1) % loop.size()];
      area = area + Cross(At(loop[i]) - origin, At(to) - origin);
    }
  }
  const double size = SizeOf(box);
  // Without an area there is no plane. The neighbours of such a face meet in its edges.
  if (!(Length(area) > kLeastWidth * tolerance * size)) return;
  Face face{operand,
            std::move(loops),
            {},
            Unit(area),
            Projection(CentreOf(box), Unit(area)),
            box,
            {},
            {},
            {},
            {},
            {}};
  Vector3 sum;
  std::size_t count = 0;
  for (const PointLoop& loop : face.loops) {
    for (const Index p : loop) sum = sum + (At(p) - face.plane.origin);
    count += loop.size();
  }
  face.plane.origin += sum / static_cast<double>(count);
  const bool isTriangle = face.loops.size() == 1 && face.loops[0].size() == 3;
  if (!isTriangle && DeviationOf(face) > kLargestWarp * tolerance) {
    AddTriangles(face);
  } else {
    faces.push_back(std::move(face));
  }
}

/// The largest distance of a point of a face from its plane.
double Arrangement::DeviationOf(const Face& face) const {
  double deviation = 0.0;
  for (const PointLoop& loop : face.loops) {
    for (const Index p : loop) deviation = std::max(deviation, std::abs(HeightOf(At(p), face)));
  }
  return deviation;
}

void Arrangement::AddTriangles(const Face& face) {
  std::vector<Point2> points;
  std::vector<Index> numbers;
  std::vector<PointLoop> flat;
  for (const PointLoop& loop : face.loops) {
    PointLoop& result = flat.emplace_back();
    for (const Index p : loop) {
      result.push_back(static_cast<std::uint32_t>(points.size()));
      points.push_back(face.plane(At(p)));
      numbers.push_back(p);
    }
  }
  const std::vector<Triangle2> triangles = Triangulate(points, flat);
  for (std::size_t i = numbers.size(); i < points.size(); ++i) {
    const Vector3 v = face.plane.x * points[i].x + face.plane.y * points[i].y;
    numbers.push_back(index.Add(face.plane.origin + v));
  }
  for (const Triangle2& t : triangles) {
    const PointLoop loop = {numbers[t[0]], numbers[t[1]], numbers[t[2]]};
    if (loop[0] != loop[1] && loop[1] != loop[2] && loop[2] != loop[0]) {
      AddFace({loop}, face.operand);
    }
  }
}

void Arrangement::CollectEdges() {
  std::vector<std::pair<DirectedEdge, std::size_t>> uses;
  const auto forEach = [&](auto use) {
    for (Face& face : faces) {
      for (const PointLoop& loop : face.loops) {
        for (std::size_t i = 0; i < loop.size(); ++i) {
          use(face, Ordered(loop[i], loop[(i + 1) % loop.size()]));
        }
      }
    }
  };
  forEach([&](Face& face, const DirectedEdge& ends) { uses.emplace_back(ends, face.operand); });
  std::sort(uses.begin(), uses.end());
  for (const auto& [ends, operand] : uses) {
    if (edges.empty() || edges.back().a != ends.first || edges.back().b != ends.second) {
      edges.push_back({ends.first, ends.second, {false, false}, {}});
    }
    edges.back().isOf[operand] = true;
  }
  forEach([&](Face& face, const DirectedEdge& ends) {
    face.edges.push_back(EdgeOf(ends.first, ends.second));
  });
  for (auto& flags : isOf) flags.assign(PointCount(), false);
  for (const Face& face : faces) {
    for (const PointLoop& loop : face.loops) {
      for (const Index p : loop) isOf[face.operand][p] = true;
    }
  }
}

std::size_t Arrangement::EdgeOf(Index a, Index b) const {
  const auto entry = std::lower_bound(edges.begin(), edges.end(), Ordered(a, b),
                                      [](const Edge& edge, const DirectedEdge& ends) {
                                        return DirectedEdge(edge.a, edge.b) < ends;
                                      });
  return static_cast<std::size_t>(entry - edges.begin());
}

bool Arrangement::Build() {
  mostWork = std::min(kFixedWork + kWorkOfEdge * edges.size(), kMostWork);
  std::vector<BuildingBox> boxes;
  for (const Edge& edge : edges) boxes.push_back(BoxAround(At(edge.a), At(edge.b)));
  edgeTree = BoxTree(boxes);
  boxes.clear();
  for (const Face& face : faces) boxes.push_back(face.box);
  faceTree = BoxTree(boxes);
  AttachVerticesToEdges();
  CrossEdges();
  CrossFaces();
  AttachVerticesToFaces();
  if (!Work(0)) return false;
  SplitBoundaries();
  CrossPlanes();
  return Work(0);
}

}  // namespace KelIFC::building
