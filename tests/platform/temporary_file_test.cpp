#include "kelifc/platform/temporary_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "kelifc/platform/path.h"

namespace KelIFC {
namespace {

TEST(TemporaryFile, IsAnEmptyFileThatCanBeWritten) {
  const TemporaryFile file;
  ASSERT_NE(file.GetPath(), "");
  EXPECT_TRUE(IsRegularFile(file.GetPath().c_str()));
  EXPECT_EQ(GetFileSize(file.GetPath().c_str()), 0U);
  std::ofstream(file.GetPath()) << "text";
  EXPECT_EQ(GetFileSize(file.GetPath().c_str()), 4U);
}

TEST(TemporaryFile, IsAnotherOneEachTime) {
  const TemporaryFile first;
  const TemporaryFile second;
  EXPECT_NE(first.GetPath(), second.GetPath());
}

TEST(TemporaryFile, IsGoneAtTheEnd) {
  std::string path;
  {
    const TemporaryFile file;
    path = file.GetPath();
  }
  EXPECT_FALSE(FileExists(path.c_str()));
}

}  // namespace
}  // namespace KelIFC
