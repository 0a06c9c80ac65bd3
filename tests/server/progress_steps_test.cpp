#include "kelifc/server/progress_steps.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A handler that notes what it receives, and that stops at a share of the work.
struct Notes {
  ProgressHandler Handler(std::uint64_t last = UINT64_MAX) {
    return [this, last](std::uint64_t amount, std::uint64_t /*total*/) {
      done.push_back(amount);
      return amount < last;
    };
  }

  std::vector<std::uint64_t> done;
};

TEST(ProgressSteps, ReportTheFirstPartEachStepAndTheLastPart) {
  Notes notes;
  const ProgressHandler handler = notes.Handler();
  ProgressSteps steps(handler, 10, 4);
  for (std::uint64_t done = 0; done <= 10; ++done) EXPECT_TRUE(steps.Reach(done));
  EXPECT_THAT(notes.done, ElementsAre(0, 4, 8, 10));
}

TEST(ProgressSteps, ReportTheEndOnceAndNeverMoreThanTheTotal) {
  Notes notes;
  const ProgressHandler handler = notes.Handler();
  ProgressSteps steps(handler, 10, 4);
  EXPECT_TRUE(steps.Reach(12));
  EXPECT_TRUE(steps.Reach(12));
  EXPECT_THAT(notes.done, ElementsAre(10));
}

TEST(ProgressSteps, CallNoHandlerAfterItHasStopped) {
  Notes notes;
  const ProgressHandler handler = notes.Handler(2);
  ProgressSteps steps(handler, 10, 1);
  EXPECT_TRUE(steps.Reach(1));
  EXPECT_FALSE(steps.IsStopped());
  EXPECT_FALSE(steps.Reach(2));
  EXPECT_FALSE(steps.Reach(3));
  EXPECT_TRUE(steps.IsStopped());
  EXPECT_THAT(notes.done, ElementsAre(1, 2));
}

TEST(ProgressSteps, ReportNothingIfThereIsNoWork) {
  Notes notes;
  const ProgressHandler handler = notes.Handler(0);
  ProgressSteps steps(handler, 0, 1);
  EXPECT_TRUE(steps.Reach(0));
  EXPECT_THAT(notes.done, IsEmpty());
}

TEST(ProgressSteps, GoOnWithoutAHandler) {
  const ProgressHandler empty;
  ProgressSteps steps(empty, 10, 1);
  EXPECT_TRUE(steps.Reach(10));
  EXPECT_TRUE(ProgressSteps().Reach(1));
}

}  // namespace
}  // namespace KelIFC
