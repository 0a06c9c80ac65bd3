#include "kelifc/server/file_output.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

TEST(FileOutput, WritesPiecesOfAnySizeInOrder) {
  const TempFile temp;
  std::string expected;
  {
    FileOutput file(temp.GetPath());
    ASSERT_TRUE(file.IsOpen());
    for (int i = 0; i < 3000; ++i) {
      const std::string piece(static_cast<std::size_t>(i % 701), static_cast<char>('a' + i % 26));
      file.GetStream() << piece;
      file.GetStream().put('|');
      expected += piece + '|';
    }
    const std::string large(2000000, 'x');
    file.GetStream() << large << 42 << std::flush;
    expected += large + "42";
    EXPECT_TRUE(file.Close());
  }
  EXPECT_TRUE(temp.Read() == expected);
}

TEST(FileOutput, EmptiesAnExistingFile) {
  const TempFile temp("old text");
  FileOutput file(temp.GetPath());
  EXPECT_EQ(temp.Read(), "");
}

TEST(FileOutput, ReportsThatAFileCannotBeCreated) {
  EXPECT_FALSE(FileOutput("/no/such/folder/file.ifc").IsOpen());
  EXPECT_FALSE(FileOutput(testing::TempDir()).IsOpen());
}

TEST(FileOutput, WritesNumbersWithoutTheGroupingOfTheProcessLocale) {
  struct Grouping : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new Grouping));
  const TempFile temp;
  FileOutput file(temp.GetPath());
  file.GetStream() << 1234567;
  EXPECT_TRUE(file.Close());
  std::locale::global(before);
  EXPECT_EQ(temp.Read(), "1234567");
}

TEST(FileOutput, ReportsThatAFileCannotBeWrittenToItsEnd) {
  FileOutput file("/dev/full");
  if (!file.IsOpen()) GTEST_SKIP() << "no full device on this system";
  file.GetStream() << "text";
  EXPECT_EQ(file.GetFailure(), "");
  EXPECT_FALSE(file.Close());
  EXPECT_EQ(file.GetFailure(), "No space left on device");
}

}  // namespace
}  // namespace KelIFC
