#include "kelifc/core/mvector.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace KelIFC {
namespace {

TEST(Mvector, HoldsWhatIsPushed) {
  Mvector<std::string> vector;
  EXPECT_TRUE(vector.empty());
  vector.push_back("a");
  vector.push_back("b");
  const Mvector<std::string>& same = vector;
  EXPECT_EQ(same.size(), 2U);
  EXPECT_EQ(same[1], "b");
  vector[1] = "c";
  EXPECT_EQ(same[1], "c");
  EXPECT_EQ(same.data() + 2, same.end());
}

TEST(Mvector, FillsNewElementsWithAGivenValueOrZero) {
  Mvector<int> vector;
  vector.resize(2, 7);
  vector.resize(3);
  EXPECT_EQ(std::vector<int>(vector.begin(), vector.end()), (std::vector<int>{7, 7, 0}));
  vector.resize(1);
  EXPECT_EQ(vector.size(), 1U);
  EXPECT_EQ(vector[0], 7);
  vector.clear();
  EXPECT_EQ(vector.size(), 0U);
}

TEST(Mvector, CopiesElementByElement) {
  Mvector<int> vector;
  vector.push_back(1);
  Mvector<int> copy;
  copy = vector;
  copy[0] = 2;
  EXPECT_EQ(vector[0], 1);
}

TEST(Mvector, FillsWithNullPointersByDefault) {
  Mvector<const int*> vector;
  vector.resize(2);
  EXPECT_EQ(vector[1], nullptr);
}

using MvectorDeathTest = testing::Test;

TEST(MvectorDeathTest, EndsTheProcessWhenItIsReadOutOfRange) {
  Mvector<int> vector;
  vector.push_back(1);
  const Mvector<int>& same = vector;
  EXPECT_DEATH(vector[1] = 2, "KelIFC: an Mvector was read out of range");
  EXPECT_DEATH(static_cast<void>(same[~std::size_t{0}]), "out of range");
}

void Throw(const char* message) { throw std::runtime_error(message); }
void Return(const char* /*message*/) {}

TEST(InvalidParameter, IsReportedToTheHandlerOfTheHost) {
  EXPECT_EQ(SetInvalidParameterHandler(&Throw), nullptr);
  Mvector<int> vector;
  EXPECT_THROW(static_cast<void>(vector[0]), std::runtime_error);
  EXPECT_EQ(SetInvalidParameterHandler(nullptr), &Throw);
}

TEST(InvalidParameterDeathTest, EndsTheProcessWhenTheHandlerReturns) {
  EXPECT_DEATH(
      {
        SetInvalidParameterHandler(&Return);
        FailInvalidParameter("x");
      },
      "");
}

}  // namespace
}  // namespace KelIFC
