#include "kelifc/platform/program.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

namespace KelIFC {
namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

TEST(IsTerminal, IsFalseForAFile) {
  const File file(std::tmpfile(), &std::fclose);
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(IsTerminal(file.get()));
}

TEST(IsTerminal, IsTrueForATerminal) {
  const File terminal(std::fopen("/dev/ptmx", "r+"), &std::fclose);
  if (terminal == nullptr) GTEST_SKIP() << "this system has no pseudo-terminals";
  EXPECT_TRUE(IsTerminal(terminal.get()));
}

TEST(PathOfArgument, KeepsTheBytesOfAName) {
  for (const char* name : {"", "model.ifc", "a folder/B\xC3\xBCro.ifc", "not UTF-8 \xFC.ifc"}) {
    EXPECT_EQ(PathOfArgument(name).string(), name);
  }
}

}  // namespace
}  // namespace KelIFC
