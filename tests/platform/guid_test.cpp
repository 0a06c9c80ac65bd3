#include "kelifc/platform/guid.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(Guid, HasSixteenBytesWithoutGaps) { EXPECT_EQ(sizeof(_GUID), 16u); }

TEST(Guid, IsNullIfAllBytesAreZero) {
  _GUID guid = {};
  EXPECT_TRUE(IsNullGuid(guid));
  guid.Data4[7] = 1;
  EXPECT_FALSE(IsNullGuid(guid));
}

}  // namespace
}  // namespace KelIFC
