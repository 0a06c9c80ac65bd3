#ifndef TESTS_EXPORT_TEST_PATH_H_
#define TESTS_EXPORT_TEST_PATH_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace KelIFC::exporting {

/// A path for the files of the running test. Tests can run in parallel, so it contains their name.
inline std::filesystem::path PathOfTest() {
  const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string("kelifc_") + test->test_suite_name() + "_" + test->name();
  std::replace(name.begin(), name.end(), '/', '_');
  return std::filesystem::path(testing::TempDir()) / name;
}

}  // namespace KelIFC::exporting

#endif  // TESTS_EXPORT_TEST_PATH_H_
