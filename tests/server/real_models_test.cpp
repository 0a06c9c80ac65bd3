#include <gtest/gtest.h>

#include <filesystem>

#include "kelifc/server/ifc_server.h"

#include "tests/model_files.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

TEST(SavedRealModels, KeepTheirNumbersThroughASave) {
  if (RealModels().empty()) GTEST_SKIP() << kNoRealModels;
  for (const std::filesystem::path& path : RealModels()) {
    SCOPED_TRACE(path.string());
    IfcServer server;
    ASSERT_EQ(server.LoadIfcFile(path.string().c_str()), 0);
    EXPECT_GT(server.GetNumberCount(), 0u);
    const TempFile saved;
    ASSERT_EQ(server.SaveIfcFile(saved.GetPath()), 0);
    IfcServer again;
    ASSERT_EQ(again.LoadIfcFile(saved.GetPath()), 0);
    EXPECT_EQ(again.GetRelease(), server.GetRelease());
    // The second model has all numbers of the first, and can have more: parsing can add instances.
    for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
      ASSERT_EQ(again.GetNextNumber(n - 1), n);
    }
  }
}

}  // namespace
}  // namespace KelIFC
