#include "kelifc/building/build/first_use.h"

#include <gtest/gtest.h>

namespace KelIFC::building {
namespace {

TEST(FirstUse, KeepsTheFirstOfEqualThingsInTheOrderOfUse) {
  FirstUse<std::string> list;
  EXPECT_EQ(list.Add("b", "first"), 0u);
  EXPECT_EQ(list.Add("a", "second"), 1u);
  EXPECT_EQ(list.Add("b", "third"), 0u);
  EXPECT_EQ(list.Take(), (std::vector<std::string>{"first", "second"}));
}

}  // namespace
}  // namespace KelIFC::building
