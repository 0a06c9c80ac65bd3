#include "tools/schemac/text_files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <stdexcept>

namespace schemac {
namespace {

namespace fs = std::filesystem;

class TextFiles : public testing::Test {
 protected:
  void TearDown() override { fs::remove_all(folder); }

  const fs::path folder = fs::path(testing::TempDir()) / ("text-files-" + std::to_string(getpid()));
  const fs::path file = folder / "deep" / "file.txt";
};

TEST_F(TextFiles, AreWrittenWithTheFoldersAboveThem) {
  WriteIfChanged(file, "a\r\nb");
  EXPECT_EQ(ReadTextFile(file), "a\r\nb");
  WriteIfChanged(file, "");
  EXPECT_EQ(ReadTextFile(file), "");
}

TEST_F(TextFiles, KeepTheirTimeIfTheyHaveTheTextAlready) {
  WriteIfChanged(file, "text");
  const fs::file_time_type past = fs::file_time_type::clock::now() - std::chrono::hours(1);
  fs::last_write_time(file, past);
  WriteIfChanged(file, "text");
  EXPECT_EQ(fs::last_write_time(file), past);
  WriteIfChanged(file, "other");
  EXPECT_GT(fs::last_write_time(file), past);
}

TEST_F(TextFiles, ThatCannotBeReadOrWrittenAreNamed) {
  try {
    ReadTextFile(file);
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), file.string() + ": error: cannot be read");
  }
  fs::create_directories(file);
  EXPECT_THROW(WriteIfChanged(file, "text"), std::runtime_error);
}

}  // namespace
}  // namespace schemac
