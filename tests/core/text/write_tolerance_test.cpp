#include "kelifc/core/text/write_tolerance.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(WriteTolerance, IsAThousandthUntilItIsSet) {
  EXPECT_EQ(GetWriteTolerance(), 0.001);
  SetWriteTolerance(0.5);
  EXPECT_EQ(GetWriteTolerance(), 0.5);
  SetWriteTolerance(0.001);
}

}  // namespace
}  // namespace KelIFC
