#include "tools/schemac/diagnostics.h"

#include <gtest/gtest.h>

namespace schemac {
namespace {

TEST(DescriptionError, HasTheFormOfACompilerMessage) {
  const DescriptionError error({"kernel.schema", 12, 7}, "no such kind");
  EXPECT_STREQ(error.what(), "kernel.schema:12:7: error: no such kind");
}

}  // namespace
}  // namespace schemac
