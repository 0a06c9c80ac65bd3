#ifndef KELIFC_TESTS_FAULTS_FAILING_ALLOCATION_H_
#define KELIFC_TESTS_FAULTS_FAILING_ALLOCATION_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace KelIFC {

/// Which allocations fail.
enum class Shortage {
  kOne,   ///< only the given one
  kFrom,  ///< the given one and all later ones
};

/// As long as this object lives, some allocations of the program throw std::bad_alloc, or return
/// null from the forms of operator new that do not throw. Only one object works at a time: a new
/// one replaces an older one.
class FailingAllocation {
 public:
  /// `nth` is the number of the allocation that fails, counted from 1 from now on. With 0 no
  /// allocation fails; they are only counted.
  FailingAllocation(std::size_t nth, Shortage shortage);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  /// Returns the number of allocations since the last object was made, failed ones included.
  static std::size_t GetCount();
};

/// Returns the number of blocks of memory that are allocated and not yet freed.
std::size_t CountLiveBlocks();

/// Runs `act` without a failure, and then many times with a failure that comes a little later in
/// each run: one run for each allocation, but at most 400 or so for each kind of shortage. Expects
/// that every run frees all memory that it allocates. Memory that the library keeps on purpose,
/// such as an entry of a cache, is allocated only once; so a run that keeps memory is repeated, and
/// the second attempt counts.
///
/// `act` creates all objects that it needs. It must not use assertions of the test while
/// allocations fail, because these allocate, and must not throw.
template <class Act>
void SweepFailures(Act act) {
  constexpr std::size_t kMostRuns = 400;
  act();
  std::size_t count = 0;
  {
    const FailingAllocation none(0, Shortage::kOne);
    act();
    count = FailingAllocation::GetCount();
  }
  ASSERT_GT(count, 0u);
  const std::size_t step = std::max<std::size_t>(1, count / kMostRuns);
  for (const Shortage shortage : {Shortage::kOne, Shortage::kFrom}) {
    for (std::size_t nth = 1; nth <= count; nth += step) {
      std::size_t kept = 1;
      for (int attempt = 0; attempt < 2 && kept != 0; ++attempt) {
        const std::size_t before = CountLiveBlocks();
        const FailingAllocation failing(nth, shortage);
        act();
        kept = CountLiveBlocks() - before;
      }
      ASSERT_EQ(kept, 0u) << "allocation " << nth << " failed";
    }
  }
}

}  // namespace KelIFC

#endif  // KELIFC_TESTS_FAULTS_FAILING_ALLOCATION_H_
