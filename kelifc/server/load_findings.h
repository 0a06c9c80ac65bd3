#ifndef KELIFC_SERVER_LOAD_FINDINGS_H_
#define KELIFC_SERVER_LOAD_FINDINGS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace KelIFC {

/// A position in a file. Lines and columns count from 1, and columns count bytes.
struct SourcePlace {
  std::uint64_t line = 1;
  std::uint64_t column = 1;

  friend bool operator==(const SourcePlace& a, const SourcePlace& b) {
    return a.line == b.line && a.column == b.column;
  }
};

/// What a load can find wrong in a file that it loads all the same.
enum class LoadFinding {
  kBadEscape,            ///< an escape in a string that cannot be read; the place of its backslash
  kStatementWithoutEnd,  ///< a statement, string or comment that does not end; where it begins
  kRepeatedNumber,       ///< a statement whose number an earlier one has; where it begins
};

/// Collects what a load finds: how often each kind occurs, and where it occurs first.
class LoadFindings {
 public:
  /// So many places are kept of each kind.
  static constexpr std::size_t kMostPlaces = 100;

  void Note(LoadFinding kind, const SourcePlace& place) {
    Row& row = rows[static_cast<std::size_t>(kind)];
    ++row.count;
    if (row.places.size() < kMostPlaces) row.places.push_back(place);
  }

  std::uint64_t GetCount(LoadFinding kind) const { return RowOf(kind).count; }

  /// The first places, in the order in which they were noted.
  const std::vector<SourcePlace>& GetPlaces(LoadFinding kind) const { return RowOf(kind).places; }

 private:
  struct Row {
    std::uint64_t count = 0;
    std::vector<SourcePlace> places;
  };
  static constexpr std::size_t kKinds = static_cast<std::size_t>(LoadFinding::kRepeatedNumber) + 1;

  const Row& RowOf(LoadFinding kind) const { return rows[static_cast<std::size_t>(kind)]; }

  std::array<Row, kKinds> rows;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_FINDINGS_H_
