#include "kelifc/platform/memory_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace KelIFC {
namespace {

TEST(MemoryFile, KeepsWhatIsWrittenToItsPath) {
  const MemoryFile file;
  if (file.GetPath().empty()) GTEST_SKIP() << "the system has no files in memory";
  EXPECT_EQ(std::filesystem::file_size(file.GetPath()), 0U);
  std::ofstream(file.GetPath(), std::ios::binary) << "first, and longer";
  std::ofstream(file.GetPath(), std::ios::binary) << "second";
  std::ifstream in(file.GetPath(), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "second");
}

TEST(MemoryFile, IsAnotherFileForEachObject) {
  const MemoryFile first;
  const MemoryFile second;
  if (first.GetPath().empty()) GTEST_SKIP() << "the system has no files in memory";
  EXPECT_NE(first.GetPath(), second.GetPath());
}

}  // namespace
}  // namespace KelIFC
