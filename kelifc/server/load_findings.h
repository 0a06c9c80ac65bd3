#ifndef KELIFC_SERVER_LOAD_FINDINGS_H_
#define KELIFC_SERVER_LOAD_FINDINGS_H_

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace KelIFC {

/// A position in a file. Lines and columns count from 1, and columns count bytes.
struct SourcePlace {
  std::uint64_t line = 1;    ///< of the file
  std::uint64_t column = 1;  ///< of the line

  /// Returns true if both are the same line and column.
  friend bool operator==(const SourcePlace& a, const SourcePlace& b) {
    return a.line == b.line && a.column == b.column;
  }
};

/// What a load can find wrong in a file that it loads all the same.
enum class LoadFinding {
  kBadEscape,            ///< an escape in a string that cannot be read; the place of its backslash
  kStatementWithoutEnd,  ///< a statement, string or comment that does not end; where it begins
  kRepeatedNumber,       ///< a statement whose number an earlier one has; where it begins
  kDanglingReference,  ///< a reference to a number that no statement has; only CheckModel notes it
  kUnreadAttribute,    ///< a value that is not what the schema says; only CheckModel notes it
};

/// How many kinds of findings there are. Their values are the numbers from 0 on.
constexpr std::size_t kLoadFindingKinds =
    static_cast<std::size_t>(LoadFinding::kUnreadAttribute) + 1;

/// What a finding of a kind is, for people.
constexpr const char* GetFindingText(LoadFinding kind) {
  constexpr std::array<const char*, kLoadFindingKinds> kTexts = {
      "bad escape in a string", "statement without an end", "number used twice",
      "reference to a number that no statement has", "attribute that cannot be read"};
  return kTexts.at(static_cast<std::size_t>(kind));
}

/// The instance that a finding is about, as far as it is known.
struct FindingSubject {
  std::size_t number = 0;     ///< of the instance; 0 if it is not known
  std::string entity;         ///< in upper case; empty if it is not known
  std::size_t attribute = 0;  ///< the position in the statement, from 1; 0 if it is not known
  std::string name = {};      ///< of the attribute in the schema; empty if it is not known

  /// Returns true if both have the same number, entity and attribute. The name follows from these.
  friend bool operator==(const FindingSubject& a, const FindingSubject& b) {
    return a.number == b.number && a.entity == b.entity && a.attribute == b.attribute;
  }
};

/// Collects what a load finds: how often each kind occurs, and where it occurs first.
class LoadFindings {
 public:
  /// So many places are kept of each kind.
  static constexpr std::size_t kMostPlaces = 100;

  /// Counts a finding, and keeps its place and subject if fewer than kMostPlaces of its kind are
  /// kept.
  void Note(LoadFinding kind, const SourcePlace& place, FindingSubject subject = {}) {
    Row& row = rows[static_cast<std::size_t>(kind)];
    ++row.count;
    if (row.places.size() == kMostPlaces) return;
    row.subjects.push_back(std::move(subject));
    row.places.push_back(place);
  }

  /// Adds the findings of a later part of the same file.
  void Append(LoadFindings&& later) {
    for (std::size_t kind = 0; kind < rows.size(); ++kind) {
      Row& row = rows[kind];
      Row& added = later.rows[kind];
      row.count += added.count;
      for (std::size_t i = 0; i < added.places.size() && row.places.size() < kMostPlaces; ++i) {
        row.subjects.push_back(std::move(added.subjects[i]));
        row.places.push_back(added.places[i]);
      }
    }
  }

  /// Returns true if nothing was noted.
  bool IsEmpty() const {
    return std::all_of(rows.begin(), rows.end(), [](const Row& row) { return row.count == 0; });
  }

  /// Returns how often a kind was noted, including the findings whose places are not kept.
  std::uint64_t GetCount(LoadFinding kind) const { return RowOf(kind).count; }

  /// The first places, in the order in which they were noted.
  const std::vector<SourcePlace>& GetPlaces(LoadFinding kind) const { return RowOf(kind).places; }

  /// The instances that the places belong to, in the same order.
  const std::vector<FindingSubject>& GetSubjects(LoadFinding kind) const {
    return RowOf(kind).subjects;
  }

 private:
  struct Row {
    std::uint64_t count = 0;
    std::vector<SourcePlace> places;
    std::vector<FindingSubject> subjects;
  };

  const Row& RowOf(LoadFinding kind) const { return rows[static_cast<std::size_t>(kind)]; }

  std::array<Row, kLoadFindingKinds> rows;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_FINDINGS_H_
