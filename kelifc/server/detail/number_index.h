#ifndef KELIFC_SERVER_DETAIL_NUMBER_INDEX_H_
#define KELIFC_SERVER_DETAIL_NUMBER_INDEX_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "kelifc/core/detail/prefetch.h"

namespace KelIFC::detail {

/// The ordered map from the number of an instance (the n of #n) to its position in the registry.
///
/// The numbers of most models are nearly consecutive, so most of the map is an array indexed by the
/// number. A number far above the count of numbers is an outlier. It is in a tree until the array
/// grows beyond it. Memory is proportional to the count of numbers, whatever the numbers are: a
/// slot of the array needs 4 bytes and a tree node about 64, so an array with 16 slots per number
/// needs no more than the tree would.
///
/// The map never contains the number 0.
class NumberIndex {
 public:
  /// The position that means "not found"; no registry is that large.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// Returns the position of a number, kNone if the number is not in the map. Takes constant time
  /// unless the number is an outlier.
  std::uint32_t Find(std::uint64_t number) const {
    if (number < dense.size()) return dense[static_cast<std::size_t>(number)];
    return outliers.empty() ? kNone : FindOutlier(number);
  }

  /// Prefetches the memory of a number.
  void PrefetchNumber(std::uint64_t number) const {
    if (number < dense.size()) Prefetch(&dense[static_cast<std::size_t>(number)]);
  }

  /// Sets the position of a number, also if it has one. The number 0 is ignored.
  void Set(std::uint64_t number, std::uint32_t position);

  /// Removes a number. Returns true if it was in the map.
  bool Erase(std::uint64_t number);

  /// Allocates memory for so many numbers.
  void Reserve(std::size_t numberCount);

  /// Removes all numbers and frees the memory.
  void Clear();

  std::size_t GetCount() const { return count; }

  /// Returns the highest number, 0 for an empty map. Takes constant time.
  std::uint64_t GetHighest() const;

  /// Returns the highest number below `limit`, 0 if there is none.
  std::uint64_t GetHighestBelow(std::uint64_t limit) const;

  /// Returns the lowest number above `number`, 0 if there is none. A loop from 0 returns the
  /// numbers in rising order, in linear time altogether; numbers can be added and removed during
  /// the loop.
  std::uint64_t GetNext(std::uint64_t number) const;

  /// Calls visit(number, position) for all numbers in rising order. The map must not change during
  /// the call.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (std::size_t number = 1; number < dense.size(); ++number) {
      if (dense[number] != kNone) visit(std::uint64_t{number}, dense[number]);
    }
    for (const auto& [number, position] : outliers) visit(number, position);
  }

  /// Returns the lowest number above 0 that is not in the map. It remembers the range without a
  /// gap, so that repeated use stays linear.
  std::uint64_t GetLowestFree();

 private:
  std::uint32_t FindOutlier(std::uint64_t number) const;
  void GrowDense(std::size_t size);
  void TrimDense();

  std::vector<std::uint32_t> dense;                 // by number; the last slot, if any, is in use
  std::map<std::uint64_t, std::uint32_t> outliers;  // each number is at or above dense.size()
  std::size_t count = 0;
  std::uint64_t lowestFreeFloor = 1;  // every number below this one, except 0, is in the map
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_NUMBER_INDEX_H_
