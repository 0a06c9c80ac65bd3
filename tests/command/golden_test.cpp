#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

/// The kept outputs for the shipped models. After an intended change `scripts/renew-goldens` writes
/// them again; review the difference before you commit it.
class Golden : public testing::TestWithParam<std::tuple<std::string, std::string>> {};

TEST_P(Golden, OutputEqualsTheKeptOne) {
  const auto& [command, model] = GetParam();
  const Outcome run = Kelifc({command, "--json", model + ".ifc"});
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string path =
      std::string(KelIFC::kSourceDir) + "/tests/command/golden/" + model + "." + command + ".json";
  if (std::getenv("KELIFC_RENEW_GOLDENS") != nullptr) {
    WriteFile(path, run.out);
    GTEST_SKIP() << "renewed " << path;
  }
  EXPECT_EQ(run.out, ReadFile(path));
}

INSTANTIATE_TEST_SUITE_P(Examples, Golden,
                         testing::Combine(testing::Values("structure", "info"),
                                          testing::Values("house", "office", "barn", "hall")),
                         [](const auto& info) {
                           return std::get<0>(info.param) + "_" + std::get<1>(info.param);
                         });

INSTANTIATE_TEST_SUITE_P(OldestExamples, Golden,
                         testing::Combine(testing::Values("info"),
                                          testing::Values("shed", "pavilion")),
                         [](const auto& info) { return std::get<1>(info.param); });

}  // namespace
}  // namespace command_test
