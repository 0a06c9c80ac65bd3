#include "kelifc/core/text/enumerator.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(Enumerator, IsReadByTheRulesOfEnumWithoutACopy) {
  const char* text = "*,.A.";
  EnumText read = ReadEnumText(text);
  EXPECT_FALSE(read.exists);
  EXPECT_EQ(read.next, text + 2);
  read = ReadEnumText(text + 2);
  EXPECT_TRUE(read.exists);
  EXPECT_EQ(read.text.data(), text + 3);
  EXPECT_EQ(read.text, "A");
  EXPECT_EQ(read.next, nullptr);
}

}  // namespace
}  // namespace KelIFC
