#include "kelifc/building/solid/plane_section.h"

#include <algorithm>

#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

PlaneSection::PlaneSection(const Mesh& someMesh, const Point3& point, const Vector3& unitNormal,
                           double tolerance)
    : mesh(someMesh),
      origin(point),
      normal(unitNormal),
      points(someMesh.points),
      heights(someMesh.points.size()),
      sides(someMesh.points.size()) {
  for (std::size_t i = 0; i < points.size(); ++i) {
    heights[i] = Dot(points[i] - origin, normal);
    const bool isIn = std::abs(heights[i]) <= tolerance;
    sides[i] = isIn ? std::int8_t{0} : static_cast<std::int8_t>(heights[i] < 0.0 ? -1 : 1);
    if (isIn) points[i] += normal * -heights[i];
  }
  for (std::size_t face = 0; face < mesh.FaceCount(); ++face) {
    for (const Mesh::Index p : mesh.LoopOf(face, 0)) {
      hasAbove = hasAbove || sides[p] > 0;
      hasBelow = hasBelow || sides[p] < 0;
    }
  }
}

std::uint32_t PlaneSection::Crossing(std::uint32_t a, std::uint32_t b) {
  if (a > b) std::swap(a, b);
  const std::uint64_t key = (std::uint64_t{a} << 32) | b;
  const auto [entry, isNew] = crossings.emplace(key, static_cast<std::uint32_t>(points.size()));
  if (isNew) {
    const double fraction = heights[a] / (heights[a] - heights[b]);
    points.push_back(Between(mesh.points[a], mesh.points[b], fraction));
  }
  return entry->second;
}

/// True if at least a part of the edge is below the plane.
bool PlaneSection::IsBelow(std::uint32_t from, std::uint32_t to) const {
  return sides[from] < 0 || sides[to] < 0;
}

/// The first point of a loop that is not below the plane; the number of its points if all are.
std::size_t PlaneSection::FirstOutside(const Mesh::Loop& loop) const {
  std::size_t i = 0;
  while (i < loop.size() && sides[loop[i]] < 0) ++i;
  return i;
}

void PlaneSection::AddLoop(const Mesh::Loop& loop, std::vector<PointLoop>& loops) {
  const std::size_t first = FirstOutside(loop);
  if (first == loop.size()) {
    loops.emplace_back(loop.begin(), loop.end());
    return;
  }
  const std::size_t firstChain = chains.size();
  AddChains(loop, first);
  if (chains.size() > firstChain) CloseLoop(firstChain, loops);
}

/// Adds the pieces of a loop below the plane. The loop begins at a point that is not below.
void PlaneSection::AddChains(const Mesh::Loop& loop, std::size_t first) {
  const std::size_t count = loop.size();
  bool isOpen = false;
  for (std::size_t k = 0; k < count; ++k) {
    const std::uint32_t from = loop[(first + k) % count];
    const std::uint32_t to = loop[(first + k + 1) % count];
    if (sides[from] == 0) inPlane.push_back(from);
    if (!IsBelow(from, to)) {
      isOpen = false;
      continue;
    }
    if (!isOpen) {
      chains.emplace_back();
      chains.back().points.push_back(sides[from] > 0 ? Crossing(from, to) : from);
    }
    chains.back().points.push_back(sides[to] > 0 ? Crossing(from, to) : to);
    isOpen = sides[to] <= 0;
  }
}

/// If the last chain of a loop ends where the first one starts, they are one chain, or the loop
/// only touches the plane.
void PlaneSection::CloseLoop(std::size_t firstChain, std::vector<PointLoop>& loops) {
  PointLoop& last = chains.back().points;
  PointLoop& first = chains[firstChain].points;
  if (last.back() != first.front()) return;
  if (chains.size() == firstChain + 1) {
    last.pop_back();
    loops.push_back(std::move(last));
  } else {
    last.insert(last.end(), first.begin() + 1, first.end());
    first = std::move(last);
  }
  chains.pop_back();
}

/// Along the line a start and an end alternate, so that the nth start and the nth end belong
/// together.
void PlaneSection::SortEnds(const Vector3& along) {
  starts.clear();
  ends.clear();
  for (std::size_t i = 0; i < chains.size(); ++i) {
    starts.emplace_back(Dot(points[chains[i].points.front()] - origin, along), i);
    ends.emplace_back(Dot(points[chains[i].points.back()] - origin, along), i);
  }
  std::sort(starts.begin(), starts.end());
  std::sort(ends.begin(), ends.end());
}

/// Adds the points of the face in the plane between two points of the line, in order.
void PlaneSection::AddBetween(const Vector3& along, std::uint32_t from, std::uint32_t to,
                              PointLoop& line) const {
  const double low = Dot(points[from] - origin, along);
  const double high = Dot(points[to] - origin, along);
  line.push_back(from);
  const auto place = [&](std::uint32_t p) { return Dot(points[p] - origin, along); };
  auto entry = std::upper_bound(inPlane.begin(), inPlane.end(), low,
                                [&](double value, std::uint32_t p) { return value < place(p); });
  for (; entry != inPlane.end() && place(*entry) < high; ++entry) {
    if (*entry != from && *entry != to && line.back() != *entry) line.push_back(*entry);
  }
  if (from != to) line.push_back(to);
}

void PlaneSection::JoinChains(const Vector3& along, std::vector<PointLoop>& loops,
                              std::vector<DirectedEdge>& cap) {
  SortEnds(along);
  std::sort(inPlane.begin(), inPlane.end(), [&](std::uint32_t a, std::uint32_t b) {
    const double left = Dot(points[a] - origin, along);
    const double right = Dot(points[b] - origin, along);
    return left < right || (left == right && a < b);
  });
  PointLoop line;
  for (std::size_t i = 0; i < chains.size(); ++i) {
    line.clear();
    Chain& chain = chains[ends[i].second];
    AddBetween(along, chains[starts[i].second].points.front(), chain.points.back(), line);
    for (std::size_t k = 0; k + 1 < line.size(); ++k) cap.emplace_back(line[k], line[k + 1]);
    // Back along the line, without the ends that the chains have.
    for (std::size_t k = line.size(); k-- > 2;) chain.points.push_back(line[k - 1]);
    chain.next = starts[i].second;
  }
  LinkChains(loops);
}

void PlaneSection::LinkChains(std::vector<PointLoop>& loops) {
  for (Chain& start : chains) {
    PointLoop loop;
    for (Chain* chain = &start; !chain->points.empty(); chain = &chains[chain->next]) {
      loop.insert(loop.end(), chain->points.begin(), chain->points.end());
      chain->points.clear();
    }
    loop.erase(std::unique(loop.begin(), loop.end()), loop.end());
    while (loop.size() > 1 && loop.front() == loop.back()) loop.pop_back();
    if (loop.size() > 2) loops.push_back(std::move(loop));
  }
}

bool PlaneSection::Crosses(std::size_t face) const {
  bool isAbove = false;
  bool isBelow = false;
  for (const Mesh::Index p : mesh.LoopOf(face, 0)) {
    isAbove = isAbove || sides[p] > 0;
    isBelow = isBelow || sides[p] < 0;
  }
  return isAbove && isBelow;
}

void PlaneSection::AddFace(std::size_t face, std::vector<PointLoop>& loops,
                           std::vector<DirectedEdge>& cap) {
  chains.clear();
  inPlane.clear();
  bool isBelow = false;
  for (const Mesh::Index p : mesh.LoopOf(face, 0)) isBelow = isBelow || sides[p] < 0;
  // A face in the plane goes; the cap takes its place.
  if (!isBelow) return;
  for (std::size_t i = 0; i < mesh.LoopCount(face); ++i) AddLoop(mesh.LoopOf(face, i), loops);
  if (chains.empty()) return;
  JoinChains(Unit(Cross(normal, AreaVectorOf(mesh, face))), loops, cap);
}

}  // namespace KelIFC::building
