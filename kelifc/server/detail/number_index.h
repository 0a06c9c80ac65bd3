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
/// The numbers of a model are nearly dense, so most of the map is an array indexed by the number.
/// A number far above the count of numbers is an outlier and stands in a tree until the array
/// grows past it. Memory is proportional to the count of numbers, whatever the numbers are: a slot
/// of the array costs 4 bytes and a tree node about 64, so the array may hold 16 slots per number
/// and cost no more than the tree would.
///
/// The number 0 is none and never stands in the map.
class NumberIndex {
 public:
  /// The position that stands for "not there"; no registry comes near it.
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;

  /// The position under a number, kNone if the number is not there. Constant time unless the
  /// number is an outlier.
  std::uint32_t Find(std::uint64_t number) const {
    if (number < dense.size()) return dense[static_cast<std::size_t>(number)];
    return outliers.empty() ? kNone : FindOutlier(number);
  }

  /// Asks for the memory of a number that is needed soon.
  void PrefetchNumber(std::uint64_t number) const {
    if (number < dense.size()) Prefetch(&dense[static_cast<std::size_t>(number)]);
  }

  /// Puts a position under a number, over the one that stands there. The number 0 is refused.
  void Set(std::uint64_t number, std::uint32_t position);

  /// Takes a number out. True if it was there.
  bool Erase(std::uint64_t number);

  /// Makes room for so many numbers ahead of time.
  void Reserve(std::size_t numberCount) { dense.reserve(numberCount); }

  /// Takes all numbers out and gives the memory back.
  void Clear();

  std::size_t GetCount() const { return count; }

  /// The highest number, 0 in an empty map. Constant time.
  std::uint64_t GetHighest() const;

  /// The highest number below `limit`, 0 if there is none.
  std::uint64_t GetHighestBelow(std::uint64_t limit) const;

  /// The lowest number above `number`, 0 if there is none. A walk from 0 on gives the numbers in
  /// rising order, in linear time on the whole; numbers may come and go during the walk.
  std::uint64_t GetNext(std::uint64_t number) const;

  /// The lowest number above 0 that is not there. Remembers how far the numbers are known to be
  /// without a gap, so that taking the lowest number again and again stays linear.
  std::uint64_t GetLowestFree();

 private:
  std::uint32_t FindOutlier(std::uint64_t number) const;
  void GrowDense(std::size_t size);
  void TrimDense();

  std::vector<std::uint32_t> dense;                 // by number; the last slot, if any, is in use
  std::map<std::uint64_t, std::uint32_t> outliers;  // each number is at or above dense.size()
  std::size_t count = 0;
  std::uint64_t lowestFreeFloor = 1;  // every number below this one, but 0, is there
};

}  // namespace KelIFC::detail

#endif  // KELIFC_SERVER_DETAIL_NUMBER_INDEX_H_
