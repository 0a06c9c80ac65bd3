#ifndef KELIFC_TESTS_FAULTS_FAILING_ALLOCATION_H_
#define KELIFC_TESTS_FAULTS_FAILING_ALLOCATION_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace KelIFC {

/// Which allocations fail, from the one that is told on.
enum class Shortage {
  kOne,   // that one alone: what comes after it goes well again
  kFrom,  // that one and all behind it
};

/// While it lives, allocations of this program fail with std::bad_alloc. One that is
/// made later ends the one before it.
class FailingAllocation {
 public:
  /// `nth` counts the allocations to come, from 1; 0 lets none fail and only counts them.
  FailingAllocation(std::size_t nth, Shortage shortage);
  ~FailingAllocation();
  FailingAllocation(const FailingAllocation&) = delete;
  FailingAllocation& operator=(const FailingAllocation&) = delete;

  /// The allocations that were asked for since it was made.
  static std::size_t GetCount();
};

/// The blocks of memory that this program has and has not given back.
std::size_t CountLiveBlocks();

/// Runs `act` without a failure, and then again and again with a failure that comes each time a
/// little later: some hundred runs, or one for each allocation where those are fewer. `act` makes
/// what it needs, tells nothing to the test while an allocation may fail, and lets no exception
/// out. Whatever failed, all memory must be given back; what is kept for later, such as an answer
/// about a class, is kept only once.
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
