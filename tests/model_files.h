#ifndef KELIFC_TESTS_MODEL_FILES_H_
#define KELIFC_TESTS_MODEL_FILES_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace KelIFC {

/// Returns the paths of the real models, sorted: all files `*.ifc` below the folder that the
/// environment variable KELIFC_TEST_DATA names. There are none if it is not set.
std::vector<std::filesystem::path> RealModels();

/// Returns the paths of the examples and of the real models, sorted.
std::vector<std::filesystem::path> ExamplesAndRealModels();

/// Returns the name of a test with a model file as its parameter: the name of the file, with
/// underscores for what the name of a test cannot have, and the position of the file.
std::string TestNameOf(const testing::TestParamInfo<std::filesystem::path>& info);

/// The message of a test that is skipped because there are no real models.
inline constexpr const char* kNoRealModels = "KELIFC_TEST_DATA names no folder of models";

}  // namespace KelIFC

#endif  // KELIFC_TESTS_MODEL_FILES_H_
