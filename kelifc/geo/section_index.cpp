#include "kelifc/geo/section_index.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace KelIFC {

namespace {

/// Twice the tolerance: equal sizes are in the same cell or in adjacent cells, even after rounding.
constexpr double kCellSize = 2 * SectionIndex::kTolerance;

/// At this size adjacent doubles differ by more than the tolerance, so a size is equal only to
/// itself. The size itself then identifies its cell: its quotient could be infinite.
constexpr double kLonelySize = 0x1p44;

/// Above this size the rounding of a quotient is no longer small against a cell.
constexpr double kCoarseSize = 0x1p24;

bool AreFinite(const SectionSizes& sizes) {
  return std::all_of(sizes.values.begin(), sizes.values.end(),
                     [](double value) { return std::isfinite(value); });
}

double StepOf(double size) {
  return std::abs(size) < kLonelySize ? std::floor(size / kCellSize) : size;
}

/// The positions, in one dimension, of the cells that can contain an equal size.
struct Steps {
  std::array<double, 3> at = {};
  int count = 1;  // the cell of the size itself comes first
};

/// Equal sizes differ by less than half a cell. So only the nearer adjacent cell can contain one,
/// unless the size is in the middle of its cell.
Steps StepsAround(double size) {
  constexpr double kSlack = 0.01;
  Steps steps;
  const double own = StepOf(size);
  steps.at[0] = own;
  const double part = size / kCellSize - own;
  const bool isCoarse = !(std::abs(size) < kCoarseSize);
  if (isCoarse || part < 0.5 + kSlack) steps.at[steps.count++] = own - 1;
  if (isCoarse || part > 0.5 - kSlack) steps.at[steps.count++] = own + 1;
  return steps;
}

bool AreEqual(const SectionSizes& a, const SectionSizes& b) {
  for (std::size_t i = 0; i < a.count; ++i) {
    if (!(std::abs(a.values[i] - b.values[i]) < SectionIndex::kTolerance)) return false;
  }
  return true;
}

}  // namespace

std::size_t SectionIndex::CellHash::operator()(const Cell& cell) const {
  std::size_t hash = std::hash<LONG>()(cell.kind);
  for (const double step : cell.steps) {
    hash = hash * 0x9E3779B97F4A7C15ull + std::hash<double>()(step);
  }
  return hash ^ (hash >> 32);
}

SectionIndex::Cell SectionIndex::CellOf(const SectionSizes& sizes) {
  Cell cell = {sizes.kind, {}};
  for (std::size_t i = 0; i < sizes.count; ++i) {
    cell.steps[i] = StepOf(sizes.values[i]);
  }
  return cell;
}

void SectionIndex::FindInCell(const Cell& cell, const SectionSizes& sizes,
                              std::optional<std::size_t>& lowest) const {
  const auto found = cells.find(cell);
  if (found == cells.end()) return;
  for (const Entry& entry : found->second) {
    if (lowest && *lowest <= entry.number) return;  // the numbers in a cell ascend
    if (AreEqual(entry.sizes, sizes)) lowest = entry.number;
  }
}

std::optional<std::size_t> SectionIndex::Find(const SectionSizes& sizes) const {
  std::optional<std::size_t> lowest;
  if (!AreFinite(sizes)) return lowest;
  std::array<Steps, SectionSizes::kMost> around;
  int neighbours = 1;
  for (std::size_t i = 0; i < sizes.count; ++i) {
    around[i] = StepsAround(sizes.values[i]);
    neighbours *= around[i].count;
  }
  for (int n = 0; n < neighbours; ++n) {
    Cell cell = {sizes.kind, {}};
    int code = n;
    for (std::size_t i = 0; i < sizes.count; ++i) {
      cell.steps[i] = around[i].at[static_cast<std::size_t>(code % around[i].count)];
      code /= around[i].count;
    }
    FindInCell(cell, sizes, lowest);
  }
  return lowest;
}

void SectionIndex::Add(const SectionSizes& sizes, std::size_t number) {
  if (AreFinite(sizes)) cells[CellOf(sizes)].push_back({sizes, number});
}

}  // namespace KelIFC
