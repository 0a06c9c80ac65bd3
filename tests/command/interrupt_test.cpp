#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/command/process.h"

namespace command_test {
namespace {

namespace fs = std::filesystem;

constexpr int kInterrupted = 130;

/// Starts `kelifc info -` with its temporary files in `folder`. Standard input is the reading end
/// of `input`.
pid_t StartReading(const TemporaryFolder& folder, const int (&input)[2]) {
  const pid_t child = fork();
  if (child != 0) return child;
  close(input[1]);
  dup2(input[0], STDIN_FILENO);
  setenv("TMPDIR", folder.Path("").c_str(), 1);
  execl(KELIFC_COMMAND, KELIFC_COMMAND, "info", "-", nullptr);
  _exit(127);
}

/// Waits until the folder has a file, but not for ever.
bool HasFileSoon(const std::string& folder) {
  constexpr int kTries = 3000;
  for (int i = 0; i < kTries; ++i) {
    if (!fs::is_empty(folder)) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

TEST(CtrlC, EndsWith130AndLeavesNoTemporaryFile) {
  const TemporaryFolder folder;
  int input[2] = {};
  ASSERT_EQ(pipe2(input, O_CLOEXEC), 0);
  const pid_t child = StartReading(folder, input);
  ASSERT_GT(child, 0);
  close(input[0]);
  EXPECT_TRUE(HasFileSoon(folder.Path("")));
  EXPECT_EQ(kill(child, SIGINT), 0);
  close(input[1]);  // if the signal came before the command waited for input
  int state = 0;
  waitpid(child, &state, 0);
  ASSERT_TRUE(WIFEXITED(state));
  EXPECT_EQ(WEXITSTATUS(state), kInterrupted);
  EXPECT_TRUE(fs::is_empty(folder.Path("")));
}

}  // namespace
}  // namespace command_test
