#include "kelifc/building/read/shells.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/read/curves.h"
#include "kelifc/building/read/placements.h"

namespace KelIFC::building {
namespace {

using Loop = std::vector<Mesh::Index>;

struct Bound {
  Loop loop;
  bool isOuter = false;
};

class ShellReader {
 public:
  ShellReader(ReadContext& reading, Mesh& target, Unreadable& fault)
      : context(reading), mesh(target), why(fault) {}

  bool Read(const Instance& shell);

 private:
  bool Fail(LossReason reason, const Instance& at) {
    why = {reason, at.Number()};
    return false;
  }

  bool ReadFace(const Instance& face);
  bool ReadLoop(const Instance& loop, Loop& target);
  bool ReadPolyLoop(const Instance& loop, Loop& target);
  bool ReadEdgeLoop(const Instance& loop, Loop& target);
  bool ReadEdge(const Instance& edge, Path& path);
  bool ReadVertex(const Instance& edge, Attribute attribute, Point3& point);
  void AddFace(std::vector<Bound>& bounds);
  Vector3 AreaOf(const Loop& loop) const;

  ReadContext& context;
  Mesh& mesh;
  Unreadable& why;
  NumberMap<Mesh::Index> indices;  // of points, by number
  std::size_t used = 0;            // points and indices
};

bool ShellReader::Read(const Instance& shell) {
  const Value faces = shell.Get(Attribute::kFaces);
  for (std::size_t i = 0; i < faces.Size(); ++i) {
    const Instance face = faces[i].Target();
    if (!face) return Fail(LossReason::kDangling, shell);
    if (!context.Spend(1)) return Fail(LossReason::kLimit, shell);
    if (!ReadFace(face)) return false;
  }
  return true;
}

bool ShellReader::ReadFace(const Instance& face) {
  if (face.GetEntity() != Entity::kFace && face.GetEntity() != Entity::kFaceSurface) {
    return Fail(LossReason::kUnsupportedItem, face);
  }
  const Value surface = face.Get(Attribute::kBasisSurface);
  if (surface.IsSet() && surface.Target().GetEntity() != Entity::kPlane) {
    return Fail(LossReason::kUnsupportedItem, face);
  }
  const Value list = face.Get(Attribute::kBounds);
  std::vector<Bound> bounds;
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const Instance at = list[i].Target();
    if (!at) return Fail(LossReason::kDangling, face);
    const Instance loop = Follow(at, Attribute::kBound, why);
    if (!loop) return false;
    Bound bound;
    if (!ReadLoop(loop, bound.loop)) return false;
    if (bound.loop.size() < 3) continue;
    if (!at.Get(Attribute::kOrientation).Truth(true)) {
      std::reverse(bound.loop.begin(), bound.loop.end());
    }
    bound.isOuter = at.GetEntity() == Entity::kFaceOuterBound;
    bounds.push_back(std::move(bound));
  }
  if (!bounds.empty()) AddFace(bounds);
  return true;
}

bool ShellReader::ReadLoop(const Instance& loop, Loop& target) {
  if (loop.GetEntity() == Entity::kPolyLoop) return ReadPolyLoop(loop, target);
  if (loop.GetEntity() == Entity::kEdgeLoop) return ReadEdgeLoop(loop, target);
  return Fail(LossReason::kUnsupportedItem, loop);
}

bool ShellReader::ReadPolyLoop(const Instance& loop, Loop& target) {
  const Value list = loop.Get(Attribute::kPoints);
  const std::size_t count = list.Size();
  used += count;
  if (used > 8 * context.options.maxBodyPoints || !context.Spend(count)) {
    return Fail(LossReason::kLimit, loop);
  }
  target.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const Value reference = list[i];
    const auto [found, isNew] =
        indices.try_emplace(reference.TargetNumber(), static_cast<Mesh::Index>(mesh.points.size()));
    if (isNew) {
      const Instance at = reference.Target();
      if (!at) return Fail(LossReason::kDangling, loop);
      const std::optional<Point3> point = ReadPoint(context, at, why);
      if (!point) return false;
      if (mesh.points.size() >= context.options.maxBodyPoints) {
        return Fail(LossReason::kLimit, loop);
      }
      mesh.points.push_back(*point);
    }
    if (target.empty() || target.back() != found->second) target.push_back(found->second);
  }
  while (target.size() > 1 && target.back() == target.front()) target.pop_back();
  return true;
}

bool ShellReader::ReadVertex(const Instance& edge, Attribute attribute, Point3& point) {
  const Instance vertex = Follow(edge, attribute, why);
  if (!vertex) return false;
  const Instance at = Follow(vertex, Attribute::kVertexGeometry, why);
  if (!at) return false;
  const std::optional<Point3> read = ReadPoint(context, at, why);
  if (read) point = *read;
  return read.has_value();
}

// An edge with an arc runs on its circle from its start to its end.
bool ShellReader::ReadEdge(const Instance& edge, Path& path) {
  Point3 start;
  Point3 end;
  if (!ReadVertex(edge, Attribute::kEdgeStart, start)) return false;
  if (!ReadVertex(edge, Attribute::kEdgeEnd, end)) return false;
  const Instance curve = edge.Get(Attribute::kEdgeGeometry).Target();
  path.AddPoint(start, 0.0);
  if (!curve || curve.GetEntity() == Entity::kLine) {
    path.AddPoint(end, 1.0);
    return true;
  }
  const std::optional<Path> whole = ReadCurve(context, curve, why);
  if (!whole) return false;
  const double first = NearestParameter(*whole, start);
  double last = NearestParameter(*whole, end);
  const bool isForward = edge.Get(Attribute::kSameSense).Truth(true);
  const double width = WidthOf(*whole);
  Path turns = *whole;
  double begin = first;
  if (IsClosed(*whole)) {
    Append(turns, *whole);
    if (isForward && last <= begin) last += width;
    if (!isForward && last >= begin) begin += width;
  }
  const std::optional<Path> part = Cut(turns, begin, last);
  if (!part) return Fail(LossReason::kDegenerate, edge);
  const std::vector<Point3> points = Flatten(*part);
  for (std::size_t i = 1; i + 1 < points.size(); ++i) path.AddPoint(points[i], 1.0);
  path.AddPoint(end, 1.0);
  return true;
}

bool ShellReader::ReadEdgeLoop(const Instance& loop, Loop& target) {
  const Value list = loop.Get(Attribute::kEdges);
  Path path;
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const Instance oriented = list[i].Target();
    if (!oriented) return Fail(LossReason::kDangling, loop);
    const bool isOriented = oriented.GetEntity() == Entity::kOrientedEdge;
    const Instance edge = isOriented ? Follow(oriented, Attribute::kEdgeElement, why) : oriented;
    if (!edge) return false;
    Path part;
    if (!ReadEdge(edge, part)) return false;
    if (isOriented && !oriented.Get(Attribute::kOrientation).Truth(true)) Reverse(part);
    used += part.points.size();
    if (used > 8 * context.options.maxBodyPoints || !context.Spend(part.points.size())) {
      return Fail(LossReason::kLimit, loop);
    }
    Append(path, part);
  }
  if (IsClosed(path)) path.points.pop_back();
  for (const Point3& point : path.points) {
    target.push_back(static_cast<Mesh::Index>(mesh.points.size()));
    mesh.points.push_back(point);
  }
  if (mesh.points.size() > context.options.maxBodyPoints) return Fail(LossReason::kLimit, loop);
  return true;
}

// Twice the area as a vector along the normal.
Vector3 ShellReader::AreaOf(const Loop& loop) const {
  Vector3 area;
  const Point3& origin = mesh.points[loop[0]];
  for (std::size_t i = 1; i + 1 < loop.size(); ++i) {
    area = area + Cross(mesh.points[loop[i]] - origin, mesh.points[loop[i + 1]] - origin);
  }
  return area;
}

// Without a bound that the file calls the outer one, it is the largest.
void ShellReader::AddFace(std::vector<Bound>& bounds) {
  std::size_t outer = 0;
  if (bounds.size() > 1) {
    double largest = -1.0;
    for (std::size_t i = 0; i < bounds.size(); ++i) {
      const double area = Length(AreaOf(bounds[i].loop));
      const bool isLarger = bounds[i].isOuter == bounds[outer].isOuter && area > largest;
      if ((bounds[i].isOuter && !bounds[outer].isOuter) || isLarger) {
        outer = i;
        largest = area;
      }
    }
  }
  mesh.BeginFace();
  mesh.AddLoop(bounds[outer].loop);
  const Vector3 normal = bounds.size() > 1 ? AreaOf(bounds[outer].loop) : Vector3();
  for (std::size_t i = 0; i < bounds.size(); ++i) {
    if (i == outer) continue;
    Loop& hole = bounds[i].loop;
    if (Dot(AreaOf(hole), normal) > 0.0) std::reverse(hole.begin(), hole.end());
    mesh.AddLoop(hole);
  }
}

}  // namespace

std::optional<Mesh> ReadFaces(ReadContext& context, const std::vector<Instance>& shells,
                              Unreadable& why) {
  Mesh mesh;
  ShellReader reader(context, mesh, why);
  for (const Instance& shell : shells) {
    if (!reader.Read(shell)) return std::nullopt;
  }
  return mesh;
}

}  // namespace KelIFC::building
