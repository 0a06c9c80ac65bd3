#include "export/output_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "export/export.h"
#include "tests/export/test_path.h"
#include "tests/read_file.h"

namespace KelIFC::exporting {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
  Files() { fs::create_directory(folder); }
  ~Files() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return (folder / name).string(); }

  std::size_t CountFiles() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }

 private:
  fs::path folder = PathOfTest();
};

TEST_F(Files, AreReplacedByCommit) {
  const std::string path = Path("a.txt");
  std::ofstream(path) << "old";
  OutputFile file(path);
  file.Write("new ");
  file.Write("text");
  EXPECT_EQ(ReadFile(path), "old");
  file.Commit();
  EXPECT_EQ(ReadFile(path), "new text");
  EXPECT_EQ(CountFiles(), 1U);
}

TEST_F(Files, StayAsTheyWereWithoutCommit) {
  const std::string path = Path("a.txt");
  std::ofstream(path) << "old";
  { OutputFile(path).Write(std::string(3 << 20, 'x')); }
  EXPECT_EQ(ReadFile(path), "old");
  EXPECT_EQ(CountFiles(), 1U);
}

TEST_F(Files, HoldMoreThanTheBuffer) {
  const std::string path = Path("a.txt");
  OutputFile file(path);
  for (int i = 0; i < 300; i++) file.Write(std::string(10'000, 'x'));
  file.Commit();
  EXPECT_EQ(fs::file_size(path), 3'000'000U);
}

TEST_F(Files, ThatCannotBeCreatedAreReported) {
  try {
    OutputFile file(Path("missing/a.txt"));
    FAIL();
  } catch (const ExportError& error) {
    EXPECT_EQ(error.failure, ExportFailure::kFile);
    EXPECT_NE(std::string(error.what()).find("missing/a.txt"), std::string::npos);
  }
}

TEST_F(Files, ReportAFullDisk) {
  if (!fs::exists("/dev/full")) GTEST_SKIP();
  OutputFile file("/dev/full");
  file.Write("text");
  EXPECT_THROW(file.Commit(), ExportError);
}

TEST_F(Files, CanBeWrittenByOthersAtAPath) {
  const std::string path = Path("a.txt");
  std::ofstream(path) << "old";
  OutputPath output(path);
  std::ofstream(output.GetPath()) << "new";
  EXPECT_EQ(ReadFile(path), "old");
  output.Commit();
  EXPECT_EQ(ReadFile(path), "new");
  EXPECT_EQ(CountFiles(), 1U);
}

TEST_F(Files, AreInFoldersThatAreMade) {
  for (int i = 0; i < 2; ++i) {
    OutputFolder folder(Path("a/b"));
    EXPECT_TRUE(fs::is_directory(Path("a/b")));
    folder.Commit();
  }
  EXPECT_TRUE(fs::is_directory(Path("a/b")));
}

TEST_F(Files, LeaveNoFolderThatWasMadeForThemWithoutCommit) {
  fs::create_directory(Path("a"));
  { const OutputFolder folder(Path("a/b/c")); }
  EXPECT_FALSE(fs::exists(Path("a/b")));
  EXPECT_TRUE(fs::exists(Path("a")));
}

TEST_F(Files, LeaveAFolderThatHasOtherFilesWithoutCommit) {
  {
    const OutputFolder folder(Path("a/b"));
    std::ofstream(Path("a/other")) << "text";
  }
  EXPECT_FALSE(fs::exists(Path("a/b")));
  EXPECT_EQ(ReadFile(Path("a/other")), "text");
}

TEST_F(Files, AreNotTakenForFolders) {
  std::ofstream(Path("a")) << "text";
  EXPECT_THROW(OutputFolder(Path("a")), ExportError);
  EXPECT_THROW(OutputFolder(Path("a/b")), ExportError);
}

}  // namespace
}  // namespace KelIFC::exporting
