#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "kelifc/server/block_size.h"
#include "kelifc/server/ifc_server.h"

#include "tests/model_files.h"
#include "tests/read_file.h"
#include "tests/server/load_text.h"
#include "tests/server/threads/model_text.h"

// Real models on one thread and on several.

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

/// Expects the same results with one thread and with three.
void ExpectSame(const std::string& text, STEP_DIALECT dialect) {
  LoadOptions options = OptionsFor(dialect);
  options.threads = 1;
  const LoadedModel expected = LoadText(text, options);
  options.threads = 3;
  const LoadedModel model = LoadText(text, options);
  EXPECT_EQ(FirstDifference(Describe(model), Describe(expected)), "");
  for (const bool faithful : {false, true}) {
    EXPECT_EQ(FirstDifference(SavedData(*model.server, faithful, 3),
                              SavedData(*expected.server, faithful)),
              "");
  }
}

TEST(ThreadsOnRealModels, LoadAndSaveTheSame) {
  const std::vector<fs::path> models = RealModels();
  if (models.empty()) GTEST_SKIP() << kNoRealModels;
  const BlockSizeScope scope(std::size_t{16} * 1024);
  for (const fs::path& path : models) {
    const std::string text = ReadFile(path);
    SCOPED_TRACE(path.filename().string());
    ExpectSame(text, STEP_DIALECT_CLASSIC);
    ExpectSame(text, STEP_DIALECT_ISO);
  }
}

}  // namespace
}  // namespace KelIFC
