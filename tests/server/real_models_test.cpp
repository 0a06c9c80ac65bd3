#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "kelifc/server/ifc_server.h"

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

TEST(RealModels, KeepTheirNumbersThroughASave) {
  const char* folder = std::getenv("KELIFC_TEST_DATA");
  if (folder == nullptr) GTEST_SKIP() << "KELIFC_TEST_DATA names no folder of models";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() != ".ifc") continue;
    SCOPED_TRACE(entry.path().string());
    IfcServer server;
    ASSERT_EQ(server.LoadIfcFile(entry.path().string().c_str()), 0);
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
