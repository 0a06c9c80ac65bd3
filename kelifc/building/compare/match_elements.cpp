#include "kelifc/building/compare/match_elements.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <tuple>
#include <unordered_map>

#include "kelifc/building/compare/element_change.h"

namespace KelIFC::building {
namespace {

Point3 CentreOf(const BuildingElement& element) {
  if (element.member && !element.member->points.empty()) {
    const Point3& start = element.member->points.front();
    return start + 0.5 * (element.member->points.back() - start);
  }
  return element.box.min + 0.5 * (element.box.max - element.box.min);
}

using Cell = std::array<std::int64_t, 3>;

struct CellHash {
  std::size_t operator()(const Cell& cell) const {
    std::uint64_t hash = 0;
    for (const std::int64_t part : cell) {
      hash = (hash ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15u;
      hash ^= hash >> 29;
    }
    return static_cast<std::size_t>(hash);
  }
};

std::int64_t CellOf(double coordinate, double size) {
  constexpr double kLargest = 1e15;  // converts to an integer without overflow
  return static_cast<std::int64_t>(std::floor(std::clamp(coordinate / size, -kLargest, kLargest)));
}

Cell CellOf(const Point3& point, double size) {
  return {CellOf(point.x, size), CellOf(point.y, size), CellOf(point.z, size)};
}

class Matcher {
 public:
  Matcher(const Building& oldBuilding, const Building& newBuilding)
      : oldBuilding(oldBuilding),
        newBuilding(newBuilding),
        isOldMatched(oldBuilding.elements.size()),
        isNewMatched(newBuilding.elements.size()) {}

  template <class KeyOf>
  void MatchByKey(MatchedBy matchedBy, KeyOf keyOf);
  void MatchByPlace(double largestDistance);

  std::vector<ElementMatch> Take() {
    std::sort(matches.begin(), matches.end(),
              [](const ElementMatch& a, const ElementMatch& b) { return a.oldIndex < b.oldIndex; });
    return std::move(matches);
  }

 private:
  struct Candidate {
    bool isOtherSection;
    double distance;
    std::size_t oldIndex;
    std::size_t newIndex;
  };
  using Grid = std::unordered_map<Cell, std::vector<std::size_t>, CellHash>;

  Grid MakeGrid(double size) const;
  void AddCandidates(std::size_t oldIndex, const Grid& grid, double largestDistance,
                     std::vector<Candidate>& candidates) const;
  void Match(std::size_t oldIndex, std::size_t newIndex, MatchedBy matchedBy) {
    matches.push_back({oldIndex, newIndex, matchedBy});
    isOldMatched[oldIndex] = true;
    isNewMatched[newIndex] = true;
  }

  const Building& oldBuilding;
  const Building& newBuilding;
  std::vector<bool> isOldMatched;
  std::vector<bool> isNewMatched;
  std::vector<ElementMatch> matches;
};

/// Matches elements with equal keys, in their order. An empty key matches nothing.
template <class KeyOf>
void Matcher::MatchByKey(MatchedBy matchedBy, KeyOf keyOf) {
  struct Bucket {
    std::vector<std::size_t> indices;
    std::size_t next = 0;
  };
  std::unordered_map<std::string, Bucket> buckets;
  for (std::size_t i = 0; i < newBuilding.elements.size(); ++i) {
    if (isNewMatched[i]) continue;
    std::string key = keyOf(newBuilding, newBuilding.elements[i]);
    if (!key.empty()) buckets[std::move(key)].indices.push_back(i);
  }
  for (std::size_t i = 0; i < oldBuilding.elements.size(); ++i) {
    if (isOldMatched[i]) continue;
    const auto found = buckets.find(keyOf(oldBuilding, oldBuilding.elements[i]));
    if (found == buckets.end()) continue;
    Bucket& bucket = found->second;
    if (bucket.next < bucket.indices.size()) Match(i, bucket.indices[bucket.next++], matchedBy);
  }
}

Matcher::Grid Matcher::MakeGrid(double size) const {
  Grid grid;
  for (std::size_t i = 0; i < newBuilding.elements.size(); ++i) {
    if (!isNewMatched[i]) grid[CellOf(CentreOf(newBuilding.elements[i]), size)].push_back(i);
  }
  return grid;
}

void Matcher::AddCandidates(std::size_t oldIndex, const Grid& grid, double largestDistance,
                            std::vector<Candidate>& candidates) const {
  // Many elements can be in one place. The limit keeps the time linear.
  constexpr std::size_t kMostVisited = 256;
  const BuildingElement& element = oldBuilding.elements[oldIndex];
  const Point3 centre = CentreOf(element);
  const Cell cell = CellOf(centre, largestDistance);
  std::size_t visited = 0;
  for (int neighbour = 0; neighbour < 27; ++neighbour) {
    const auto found = grid.find({cell[0] + neighbour % 3 - 1, cell[1] + neighbour / 3 % 3 - 1,
                                  cell[2] + neighbour / 9 - 1});
    if (found == grid.end()) continue;
    for (const std::size_t newIndex : found->second) {
      if (++visited > kMostVisited) return;
      const BuildingElement& other = newBuilding.elements[newIndex];
      const double distance = Length(CentreOf(other) - centre);
      if (other.className != element.className || !(distance <= largestDistance)) continue;
      const bool isSame = HaveSameSection(oldBuilding, element, newBuilding, other);
      candidates.push_back({!isSame, distance, oldIndex, newIndex});
    }
  }
}

void Matcher::MatchByPlace(double largestDistance) {
  if (!(largestDistance > 0.0)) return;
  const Grid grid = MakeGrid(largestDistance);
  std::vector<Candidate> candidates;
  for (std::size_t i = 0; i < oldBuilding.elements.size(); ++i) {
    if (!isOldMatched[i]) AddCandidates(i, grid, largestDistance, candidates);
  }
  const auto rank = [](const Candidate& c) {
    return std::tie(c.isOtherSection, c.distance, c.oldIndex, c.newIndex);
  };
  std::sort(candidates.begin(), candidates.end(),
            [&rank](const Candidate& a, const Candidate& b) { return rank(a) < rank(b); });
  for (const Candidate& candidate : candidates) {
    if (isOldMatched[candidate.oldIndex] || isNewMatched[candidate.newIndex]) continue;
    Match(candidate.oldIndex, candidate.newIndex, MatchedBy::kGeometry);
  }
}

/// Class, section and the centre in millimetres.
std::string PlaceKey(const Building& building, const BuildingElement& element) {
  constexpr double kMillimetre = 1e-3;
  std::string key = element.className + '\n' + SectionText(building, element);
  for (const std::int64_t part : CellOf(CentreOf(element), kMillimetre)) {
    key += '\n' + std::to_string(part);
  }
  return key;
}

}  // namespace

std::vector<ElementMatch> MatchElements(const Building& oldBuilding, const Building& newBuilding,
                                        double largestDistance) {
  Matcher matcher(oldBuilding, newBuilding);
  matcher.MatchByKey(MatchedBy::kGuid,
                     [](const Building&, const BuildingElement& element) { return element.guid; });
  matcher.MatchByKey(MatchedBy::kGeometry, PlaceKey);
  matcher.MatchByPlace(largestDistance);
  return matcher.Take();
}

}  // namespace KelIFC::building
