#include "kelifc/platform/path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace KelIFC {
namespace {

TEST(Path, ReturnsTheLastComponentAsTheFileName) {
  EXPECT_EQ(GetFileName("house.ifc"), "house.ifc");
  EXPECT_EQ(GetFileName("a/b/house.ifc"), "house.ifc");
  EXPECT_EQ(GetFileName("c:\\a\\house.ifc"), "house.ifc");
  EXPECT_EQ(GetFileName("a\\b/house.ifc"), "house.ifc");
  EXPECT_EQ(GetFileName("a/b\\house.ifc"), "house.ifc");
  EXPECT_EQ(GetFileName("a/"), "");
  EXPECT_EQ(GetFileName(""), "");
}

TEST(Path, DistinguishesARegularFileFromEverythingElse) {
  const std::string folder = testing::TempDir();
  const std::string file = folder + "/kelifc_path_test.txt";
  std::ofstream(file) << "four";
  EXPECT_TRUE(IsRegularFile(file.c_str()));
  EXPECT_EQ(GetFileSize(file.c_str()), 4u);
  std::filesystem::remove(file);
  EXPECT_FALSE(IsRegularFile(file.c_str()));
  EXPECT_EQ(GetFileSize(file.c_str()), 0u);
  EXPECT_FALSE(IsRegularFile(folder.c_str()));
  EXPECT_FALSE(IsRegularFile(""));
}

}  // namespace
}  // namespace KelIFC
