#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "kelifc/server/block_size.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/load_text.h"
#include "tests/server/threads/model_text.h"

// Real models on one thread and on several.

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

std::string TextOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Expects the same results with one thread and with three.
void ExpectSame(const std::string& text, STEP_DIALECT dialect) {
  LoadOptions options = OptionsFor(dialect);
  options.threads = 1;
  const LoadedModel expected = LoadText(text, options);
  options.threads = 3;
  const LoadedModel model = LoadText(text, options);
  EXPECT_EQ(FirstDifference(Describe(model), Describe(expected)), "");
  EXPECT_EQ(FirstDifference(SavedData(*model.server, true), SavedData(*expected.server, true)),
            "");
}

TEST(ThreadsOnRealModels, LoadTheSame) {
  const char* const folder = std::getenv("KELIFC_TEST_DATA");
  if (folder == nullptr) GTEST_SKIP() << "KELIFC_TEST_DATA names no folder of models";
  const BlockSizeScope scope(std::size_t{16} * 1024);
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() != ".ifc") continue;
    const std::string text = TextOf(entry.path());
    SCOPED_TRACE(entry.path().filename().string());
    ExpectSame(text, STEP_DIALECT_CLASSIC);
    ExpectSame(text, STEP_DIALECT_ISO);
  }
}

}  // namespace
}  // namespace KelIFC
