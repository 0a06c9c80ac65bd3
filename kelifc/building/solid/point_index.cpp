#include "kelifc/building/solid/point_index.h"

#include <array>
#include <cmath>

namespace KelIFC::building {

namespace {

constexpr Mesh::Index kNone = 0xFFFFFFFF;

struct Cell {
  std::int64_t x;
  std::int64_t y;
  std::int64_t z;
};

std::int64_t CellOf(double coordinate, double cellsPerMetre) {
  const double cell = std::floor(coordinate * cellsPerMetre);
  if (!(std::abs(cell) < 4e18)) return 0;
  return static_cast<std::int64_t>(cell);
}

/// The other cell that a point within half a cell may be in.
std::int64_t NeighbourOf(double coordinate, double cellsPerMetre, std::int64_t cell) {
  const double inside = coordinate * cellsPerMetre - static_cast<double>(cell);
  return inside < 0.5 ? cell - 1 : cell + 1;
}

std::uint64_t Mix(std::uint64_t value) {
  value ^= value >> 32;
  value *= 0x9E3779B97F4A7C15ULL;
  value ^= value >> 29;
  value *= 0xBF58476D1CE4E5B9ULL;
  return value ^ (value >> 32);
}

double SquareDistance(const Point3& a, const Point3& b) { return Dot(b - a, b - a); }

}  // namespace

PointIndex::PointIndex(double weldDistance, std::size_t expectedPoints)
    : distance(weldDistance), cellsPerMetre(0.5 / weldDistance) {
  std::size_t count = 16;
  while (count < expectedPoints * 2 && count < (std::size_t{1} << 28)) count *= 2;
  slots.assign(count, kNone);
  points.reserve(expectedPoints);
  next.reserve(expectedPoints);
}

std::size_t PointIndex::SlotOf(std::int64_t x, std::int64_t y, std::int64_t z) const {
  const std::uint64_t hash =
      Mix(static_cast<std::uint64_t>(x) +
          Mix(static_cast<std::uint64_t>(y) + Mix(static_cast<std::uint64_t>(z))));
  return hash & (slots.size() - 1);
}

Mesh::Index PointIndex::Add(const Point3& point) {
  const Cell cell = {CellOf(point.x, cellsPerMetre), CellOf(point.y, cellsPerMetre),
                     CellOf(point.z, cellsPerMetre)};
  const Cell other = {NeighbourOf(point.x, cellsPerMetre, cell.x),
                      NeighbourOf(point.y, cellsPerMetre, cell.y),
                      NeighbourOf(point.z, cellsPerMetre, cell.z)};
  Mesh::Index nearest = kNone;
  double best = distance * distance;
  for (int corner = 0; corner < 8; ++corner) {
    const std::size_t slot =
        SlotOf((corner & 1) != 0 ? other.x : cell.x, (corner & 2) != 0 ? other.y : cell.y,
               (corner & 4) != 0 ? other.z : cell.z);
    for (Mesh::Index i = slots[slot]; i != kNone; i = next[i]) {
      const double square = SquareDistance(points[i], point);
      if (square < best || (square == best && i < nearest)) {
        best = square;
        nearest = i;
      }
    }
  }
  if (nearest != kNone) return nearest;
  if (points.size() * 2 >= slots.size()) Grow();
  const std::size_t slot = SlotOf(cell.x, cell.y, cell.z);
  const auto number = static_cast<Mesh::Index>(points.size());
  points.push_back(point);
  next.push_back(slots[slot]);
  slots[slot] = number;
  return number;
}

void PointIndex::Grow() {
  slots.assign(slots.size() * 2, kNone);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point3& p = points[i];
    const std::size_t slot =
        SlotOf(CellOf(p.x, cellsPerMetre), CellOf(p.y, cellsPerMetre), CellOf(p.z, cellsPerMetre));
    next[i] = slots[slot];
    slots[slot] = static_cast<Mesh::Index>(i);
  }
}

}  // namespace KelIFC::building
