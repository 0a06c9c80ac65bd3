#include "kelifc/server/ordered_work.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace KelIFC {
namespace {

using testing::ElementsAreArray;

/// Squares the numbers below a count.
class Squares : public OrderedWork {
 public:
  explicit Squares(std::size_t numbers) : count(numbers) {}

  std::vector<std::size_t> results;
  std::size_t stopAt = static_cast<std::size_t>(-1);
  std::size_t throwAt = static_cast<std::size_t>(-1);
  std::size_t throwFillAt = static_cast<std::size_t>(-1);
  bool isMergedByCaller = true;

 private:
  bool Fill(std::size_t slot) override {
    if (next == throwFillAt) throw std::out_of_range("fill");
    if (next == count) return false;
    numbers.resize(std::max(numbers.size(), slot + 1));
    numbers[slot] = next++;
    return true;
  }
  void Work(std::size_t slot) override {
    if (numbers[slot] == throwAt) throw std::runtime_error("work");
    numbers[slot] *= numbers[slot];
  }
  bool Merge(std::size_t slot) override {
    isMergedByCaller = isMergedByCaller && std::this_thread::get_id() == caller;
    results.push_back(numbers[slot]);
    return results.size() != stopAt;
  }

  std::thread::id caller = std::this_thread::get_id();
  std::size_t count;
  std::size_t next = 0;
  std::vector<std::size_t> numbers = std::vector<std::size_t>(64);
};

std::vector<std::size_t> SquaresBelow(std::size_t count) {
  std::vector<std::size_t> squares(count);
  std::iota(squares.begin(), squares.end(), 0U);
  for (std::size_t& number : squares) number *= number;
  return squares;
}

TEST(OrderedWork, MergesAllPiecesInOrderOnTheThreadOfTheCaller) {
  for (const unsigned threads : {1U, 2U, 5U}) {
    for (const std::size_t count : {0U, 1U, 7U, 1000U}) {
      Squares squares(count);
      EXPECT_TRUE(squares.Run(threads));
      EXPECT_THAT(squares.results, ElementsAreArray(SquaresBelow(count)));
      EXPECT_TRUE(squares.isMergedByCaller);
    }
  }
}

TEST(OrderedWork, EndsWhenAMergeEndsIt) {
  for (const unsigned threads : {1U, 3U}) {
    Squares squares(1000);
    squares.stopAt = 10;
    EXPECT_FALSE(squares.Run(threads));
    EXPECT_THAT(squares.results, ElementsAreArray(SquaresBelow(10)));
  }
}

TEST(OrderedWork, ThrowsWhatAStageThrowsInTheOrderOfThePieces) {
  for (const unsigned threads : {1U, 3U}) {
    Squares squares(1000);
    squares.throwAt = 20;
    squares.throwFillAt = 30;
    EXPECT_THROW(squares.Run(threads), std::runtime_error);
    EXPECT_THAT(squares.results, ElementsAreArray(SquaresBelow(20)));
    Squares others(1000);
    others.throwFillAt = 30;
    EXPECT_THROW(others.Run(threads), std::out_of_range);
    EXPECT_THAT(others.results, ElementsAreArray(SquaresBelow(30)));
  }
}

}  // namespace
}  // namespace KelIFC
