#ifndef KELIFC_GEO_SECTION_INDEX_H_
#define KELIFC_GEO_SECTION_INDEX_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// The kind and the sizes of a section, in metres. Elements whose sections have the same kind and
/// equal sizes share one section.
struct SectionSizes {
  static constexpr std::size_t kMost = 4;

  LONG kind = 0;
  std::size_t count = 0;
  std::array<double, kMost> values = {};

  SectionSizes() = default;

  template <class... Values>
  explicit SectionSizes(LONG kind, Values... values)
      : kind(kind), count(sizeof...(Values)), values{values...} {}
};

/// Finds a section by its kind and sizes in constant time. The index divides the space of sizes
/// into cells that are twice as wide as the tolerance.
class SectionIndex {
 public:
  /// Sizes are equal if they differ by less than a millimetre.
  static constexpr double kTolerance = 0.001;

  /// Returns the lowest number of a section with these sizes, or nothing. A size that is not finite
  /// is equal to no size.
  std::optional<std::size_t> Find(const SectionSizes& sizes) const;

  /// Adds a section. Its number must be higher than those before.
  void Add(const SectionSizes& sizes, std::size_t number);

  void Clear() { cells.clear(); }

 private:
  struct Entry {
    SectionSizes sizes;
    std::size_t number;
  };
  struct Cell {
    LONG kind;
    std::array<double, SectionSizes::kMost> steps;
    bool operator==(const Cell&) const = default;
  };
  struct CellHash {
    std::size_t operator()(const Cell& cell) const;
  };

  static Cell CellOf(const SectionSizes& sizes);
  void FindInCell(const Cell& cell, const SectionSizes& sizes,
                  std::optional<std::size_t>& lowest) const;

  std::unordered_map<Cell, std::vector<Entry>, CellHash> cells;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_SECTION_INDEX_H_
