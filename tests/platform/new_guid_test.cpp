#include "kelifc/platform/new_guid.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(NewGuid, IsNeverNull) {
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(IsNullGuid(NewGuid()));
}

TEST(NewGuid, DiffersFromCallToCall) { EXPECT_NE(NewGuid(), NewGuid()); }

TEST(NewGuid, HasTheBitsOfARandomIdentifier) {
  const _GUID guid = NewGuid();
  EXPECT_EQ(guid.Data3 >> 12, 4);
  EXPECT_EQ(guid.Data4[0] >> 6, 2);
}

}  // namespace
}  // namespace KelIFC
