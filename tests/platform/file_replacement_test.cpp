#include "kelifc/platform/file_replacement.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/read_file.h"

namespace KelIFC {
namespace {

namespace fs = std::filesystem;

/// Creates a folder with a target file, and removes it after the test.
class FileReplacementTest : public testing::Test {
 protected:
  FileReplacementTest() {
    fs::remove_all(folder);
    fs::create_directory(folder);
  }
  ~FileReplacementTest() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }

  static void Write(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }

  std::size_t CountFiles() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

  // Tests may run side by side, so each has a folder of its own.
  const fs::path folder =
      fs::path(testing::TempDir()) /
      (std::string("kelifc_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(FileReplacementTest, ReplacesTheTargetWhenItIsCommitted) {
  Write(Path("a.ifc"), "old");
  {
    FileReplacement replacement(Path("a.ifc").c_str());
    ASSERT_TRUE(replacement.IsGood());
    Write(replacement.GetPath(), "new");
    EXPECT_EQ(ReadFile(Path("a.ifc")), "old");
    EXPECT_TRUE(replacement.Commit());
    EXPECT_EQ(ReadFile(Path("a.ifc")), "new");
  }
  EXPECT_EQ(ReadFile(Path("a.ifc")), "new");
  EXPECT_EQ(CountFiles(), 1U);
}

TEST_F(FileReplacementTest, LeavesTheTargetUnchangedWithoutACommit) {
  Write(Path("a.ifc"), "old");
  { Write(FileReplacement(Path("a.ifc").c_str()).GetPath(), "new"); }
  EXPECT_EQ(ReadFile(Path("a.ifc")), "old");
}

TEST_F(FileReplacementTest, LeavesNoFileBehindWithoutACommit) {
  { const FileReplacement replacement(Path("a.ifc").c_str()); }
  EXPECT_EQ(CountFiles(), 0U);
}

TEST_F(FileReplacementTest, CreatesAMissingTarget) {
  FileReplacement replacement(Path("a.ifc").c_str());
  Write(replacement.GetPath(), "new");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_EQ(ReadFile(Path("a.ifc")), "new");
}

TEST_F(FileReplacementTest, KeepsThePermissionsOfTheTarget) {
  Write(Path("a.ifc"), "old");
  const fs::perms rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(Path("a.ifc"), rights);
  FileReplacement replacement(Path("a.ifc").c_str());
  Write(replacement.GetPath(), "new");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_EQ(fs::status(Path("a.ifc")).permissions(), rights);
}

TEST_F(FileReplacementTest, FollowsSymbolicLinks) {
  fs::create_directory(folder / "inner");
  Write(Path("inner/a.ifc"), "old");
  fs::create_symlink("inner/a.ifc", Path("link1"));
  fs::create_symlink(Path("link1"), Path("link2"));
  FileReplacement replacement(Path("link2").c_str());
  Write(replacement.GetPath(), "new");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_TRUE(fs::is_symlink(Path("link2")));
  EXPECT_FALSE(fs::is_symlink(Path("inner/a.ifc")));
  EXPECT_EQ(ReadFile(Path("inner/a.ifc")), "new");
}

TEST_F(FileReplacementTest, CreatesTheFileThatALinkLeadsTo) {
  fs::create_symlink("b.ifc", Path("link"));
  FileReplacement replacement(Path("link").c_str());
  Write(replacement.GetPath(), "new");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_EQ(ReadFile(Path("b.ifc")), "new");
}

TEST_F(FileReplacementTest, WritesADeviceDirectly) {
  if (!fs::exists("/dev/null")) GTEST_SKIP() << "no such device on this system";
  FileReplacement replacement("/dev/null");
  EXPECT_EQ(replacement.GetPath(), "/dev/null");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

#ifdef __linux__
TEST_F(FileReplacementTest, WritesAnOpenFileWithoutANameDirectly) {
  Write(Path("a.ifc"), "old");
  const std::ifstream open(Path("a.ifc"));
  std::string link;
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code error;
    if (fs::equivalent(entry.path(), Path("a.ifc"), error)) link = entry.path().string();
  }
  ASSERT_NE(link, "");
  {
    FileReplacement named(link.c_str());
    EXPECT_EQ(fs::path(named.GetPath()).parent_path(), folder);
  }
  fs::remove(Path("a.ifc"));
  FileReplacement replacement(link.c_str());
  ASSERT_TRUE(replacement.IsGood());
  EXPECT_EQ(replacement.GetPath(), link);
  Write(replacement.GetPath(), "new");
  EXPECT_TRUE(replacement.Commit());
  EXPECT_EQ(ReadFile(link), "new");
  EXPECT_EQ(CountFiles(), 0U);
}
#endif

TEST_F(FileReplacementTest, ReportsWhatCannotBeWritten) {
  EXPECT_EQ(FileReplacement(nullptr).GetFailure(), "No such file or directory");
  EXPECT_EQ(FileReplacement("").GetFailure(), "No such file or directory");
  EXPECT_EQ(FileReplacement(Path("none/a.ifc").c_str()).GetFailure(), "No such file or directory");
}

TEST_F(FileReplacementTest, LeavesTheTargetUnchangedIfTheTemporaryFileIsGone) {
  Write(Path("a.ifc"), "old");
  FileReplacement replacement(Path("a.ifc").c_str());
  fs::remove(replacement.GetPath());
  EXPECT_FALSE(replacement.Commit());
  EXPECT_EQ(replacement.GetFailure(), "No such file or directory");
  EXPECT_EQ(ReadFile(Path("a.ifc")), "old");
}

TEST_F(FileReplacementTest, SurvivesACycleOfLinks) {
  fs::create_symlink("two", Path("one"));
  fs::create_symlink("one", Path("two"));
  FileReplacement replacement(Path("one").c_str());
  if (replacement.IsGood()) {
    Write(replacement.GetPath(), "new");
    replacement.Commit();
  }
  EXPECT_LE(CountFiles(), 3U);
}

}  // namespace
}  // namespace KelIFC
