#include "kelifc/platform/program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
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

// The signals end a process of their own, so that this one goes on.
TEST(CatchInterrupts, MakesTheFirstCtrlCAFlag) {
  const auto interrupt = [] {
    CatchInterrupts();
    if (IsInterrupted()) std::_Exit(1);
    std::raise(SIGINT);
    std::_Exit(IsInterrupted() ? 0 : 2);
  };
  EXPECT_EXIT(interrupt(), testing::ExitedWithCode(0), "");
}

TEST(CatchInterrupts, LetsTheSecondCtrlCEndTheProgram) {
  const auto interruptTwice = [] {
    CatchInterrupts();
    std::raise(SIGINT);
    std::raise(SIGINT);
    std::_Exit(0);
  };
  EXPECT_EXIT(interruptTwice(), testing::KilledBySignal(SIGINT), "");
}

TEST(CatchInterrupts, KeepsCtrlCIgnored) {
  const auto ignore = [] {
    std::signal(SIGINT, SIG_IGN);
    CatchInterrupts();
    std::raise(SIGINT);
    std::raise(SIGINT);
    std::_Exit(IsInterrupted() ? 1 : 0);
  };
  EXPECT_EXIT(ignore(), testing::ExitedWithCode(0), "");
}

TEST(PathOfArgument, KeepsTheBytesOfAName) {
  for (const char* name : {"", "model.ifc", "a folder/B\xC3\xBCro.ifc", "not UTF-8 \xFC.ifc"}) {
    EXPECT_EQ(PathOfArgument(name).string(), name);
  }
}

}  // namespace
}  // namespace KelIFC
