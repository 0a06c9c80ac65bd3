#include <gtest/gtest.h>

#include <filesystem>

#include "tests/geo/host.h"
#include "tests/geo/model_text.h"
#include "tests/model_files.h"
#include "tests/read_file.h"

namespace KelIFC {
namespace {

/// In bytes. Larger files are skipped, because they would make the tests slow.
constexpr std::uintmax_t kLargestFile = 20'000'000;

LONG CountStatements(const std::filesystem::path& path, const std::string& entity) {
  const std::string text = ReadFile(path);
  LONG count = 0;
  for (auto at = text.find(entity); at != std::string::npos; at = text.find(entity, at + 1))
    ++count;
  return count;
}

/// Expects that no storey is missing, that the levels ascend, and that the numbers have no gap.
void ExpectStoreys(IIFCServer& server, const std::filesystem::path& path) {
  const auto structure = GetObject(server, &IIFCServer::get_Structure);
  const auto storeys = GetObject(*structure, &IGeoStructure::get_Storeys);
  const LONG count = CountOf(*storeys);
  EXPECT_EQ(count, CountStatements(path, "IFCBUILDINGSTOREY("));
  ComPtr<IGeoStorey> below;
  for (LONG i = 1; i <= count; ++i) {
    ComPtr<IGeoStorey> storey;
    ASSERT_EQ(storeys->Item(i, storey.Put()), S_OK);
    EXPECT_FALSE(GetText(*storey, &IGeoStorey::get_Name).empty());
    if (below) {
      const double level = GetValue(*storey, &IGeoStorey::get_Level);
      const double levelBelow = GetValue(*below, &IGeoStorey::get_Level);
      EXPECT_LE(levelBelow, level);
      EXPECT_EQ(GetValue(*below, &IGeoStorey::get_Height), level - levelBelow);
      EXPECT_EQ(GetValue(*below, &IGeoStorey::get_Number) + 1,
                GetValue(*storey, &IGeoStorey::get_Number));
    }
    below = storey;
  }
}

class StoreysOfRealModels : public HostTest {};

TEST_F(StoreysOfRealModels, AreAllThereInOrder) {
  if (RealModels().empty()) GTEST_SKIP() << kNoRealModels;
  for (const std::filesystem::path& path : RealModels()) {
    if (std::filesystem::file_size(path) > kLargestFile) continue;
    SCOPED_TRACE(path.string());
    const auto server = Create<IIFCServer>(CLSID_CoIFCServer);
    if (FAILED(LoadFile(*server, path.string()))) continue;
    ExpectStoreys(*server, path);
  }
}

}  // namespace
}  // namespace KelIFC
