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

/// What makes two sections one: their kind and sizes, in metres.
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

/// Finds sections by their sizes, without a walk over all of them.
class SectionIndex {
 public:
  /// Two sizes that are closer are equal: a millimetre.
  static constexpr double kTolerance = 0.001;

  /// The lowest number of a section of these sizes; nothing if there is none. A size that is not
  /// finite is equal to none.
  std::optional<std::size_t> Find(const SectionSizes& sizes) const;

  /// Adds a section; numbers ascend.
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
