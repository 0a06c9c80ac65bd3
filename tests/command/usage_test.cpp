#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/command/process.h"

namespace command_test {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr int kUsage = 64;

class WrongUsage : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(WrongUsage, EndsWith64AndOneLineOnStandardError) {
  const Outcome run = Kelifc(GetParam());
  EXPECT_EQ(run.status, kUsage);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, MatchesRegex("kelifc: [^\n]+\n"));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, WrongUsage,
    testing::Values(std::vector<std::string>{}, std::vector<std::string>{"draw"},
                    std::vector<std::string>{"structure"}, std::vector<std::string>{"info"},
                    std::vector<std::string>{"save", "in.ifc"},
                    std::vector<std::string>{"save", "in.ifc", "out.ifc", "more.ifc"},
                    std::vector<std::string>{"info", "in.ifc", "more.ifc"},
                    std::vector<std::string>{"info", "--output", "x", "in.ifc"},
                    std::vector<std::string>{"save", "--json", "in.ifc", "out.ifc"},
                    std::vector<std::string>{"structure", "--output"},
                    std::vector<std::string>{"structure", "in.ifc", "--output", ""},
                    std::vector<std::string>{"structure", "--no-such-option", "in.ifc"},
                    std::vector<std::string>{"structure", "--output", "a", "--output", "b", "c"}));

TEST(CommandLine, HelpNamesTheCommandsOnStandardOutput) {
  const Outcome run = Kelifc({"--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  for (const char* command : {"structure", "info", "save"})
    EXPECT_THAT(run.out, HasSubstr(command));
}

TEST(CommandLine, HelpOfACommandNamesItsOptions) {
  const Outcome run = Kelifc({"structure", "--help"});
  EXPECT_EQ(run.status, 0);
  for (const char* word : {"--json", "--output FILE", "MODEL.ifc"}) {
    EXPECT_THAT(run.out, HasSubstr(word));
  }
}

TEST(CommandLine, VersionIsOneLine) {
  const Outcome run = Kelifc({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, std::string("kelifc ") + KELIFC_VERSION + "\n");
}

TEST(CommandLine, AModelNamedLikeACommandIsAFile) {
  const Outcome run = Kelifc({"info", "info"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, StartsWith("kelifc: info: "));
}

TEST(CommandLine, TwoDashesEndTheOptions) {
  const Outcome run = Kelifc({"info", "--", "--json"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, StartsWith("kelifc: --json: "));
}

}  // namespace
}  // namespace command_test
