#include "export/saf/node_list.h"

#include <cmath>
#include <functional>
#include <limits>

namespace KelIFC::exporting::saf {
namespace {

constexpr double kSmallestTolerance = 1e-9;
constexpr NodeList::Index kNoNode = std::numeric_limits<NodeList::Index>::max();

}  // namespace

NodeList::NodeList(double tolerance)
    : tolerance(std::isfinite(tolerance) && tolerance > kSmallestTolerance ? tolerance
                                                                           : kSmallestTolerance) {}

std::size_t NodeList::CellHash::operator()(const Cell& cell) const {
  const std::hash<double> hash;
  std::size_t value = hash(cell.x);
  value = value * 0x9e3779b97f4a7c15U + hash(cell.y);
  value = value * 0x9e3779b97f4a7c15U + hash(cell.z);
  return value ^ (value >> 29);
}

// The edges of a cell are a little longer than twice the tolerance, so the points near a point lie
// in at most eight cells, also if coordinates are rounded.
NodeList::Cell NodeList::CellOf(const Point3& point) const {
  const double size = 2.01 * tolerance;
  return {std::floor(point.x / size), std::floor(point.y / size), std::floor(point.z / size)};
}

void NodeList::Search(const Cell& cell, const Point3& point, Index& nearest,
                      double& distance) const {
  const auto at = cells.find(cell);
  if (at == cells.end()) return;
  for (Index node = at->second; node != kNoNode; node = next[node]) {
    const double length = Length(points[node] - point);
    if (length > distance || (length == distance && node > nearest)) continue;
    nearest = node;
    distance = length;
  }
}

NodeList::Index NodeList::FindNearest(const Point3& point) const {
  const Vector3 reach(tolerance, tolerance, tolerance);
  const Cell low = CellOf(point + -reach);
  const Cell high = CellOf(point + reach);
  Index nearest = kNoNode;
  double distance = tolerance;
  for (int corner = 0; corner < 8; ++corner) {
    // A corner that lies in the same cell as an earlier one is skipped.
    if (((corner & 1) && low.x == high.x) || ((corner & 2) && low.y == high.y) ||
        ((corner & 4) && low.z == high.z)) {
      continue;
    }
    Search({corner & 1 ? high.x : low.x, corner & 2 ? high.y : low.y, corner & 4 ? high.z : low.z},
           point, nearest, distance);
  }
  return nearest;
}

NodeList::Index NodeList::Add(const Point3& point) {
  const Index nearest = FindNearest(point);
  if (nearest != kNoNode) return nearest;
  const auto index = static_cast<Index>(points.size());
  const auto [at, isNew] = cells.emplace(CellOf(point), index);
  next.push_back(isNew ? kNoNode : at->second);
  at->second = index;
  points.push_back(point);
  return index;
}

void NodeList::Truncate(std::size_t count) {
  while (points.size() > count) {
    const auto at = cells.find(CellOf(points.back()));
    if (next.back() == kNoNode) {
      cells.erase(at);
    } else {
      at->second = next.back();
    }
    points.pop_back();
    next.pop_back();
  }
}

std::string NodeList::NamesOf(const std::vector<Index>& nodes) {
  std::string names;
  for (const Index node : nodes) {
    if (!names.empty()) names += "; ";
    names += NameOf(node);
  }
  return names;
}

}  // namespace KelIFC::exporting::saf
