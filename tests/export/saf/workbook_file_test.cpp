#include "export/saf/workbook_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "export/export.h"
#include "tests/export/test_path.h"

namespace KelIFC::exporting::saf {
namespace {

namespace fs = std::filesystem;

void WriteTo(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string ContentOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

TEST(WorkbookFile, ReplacesTheTargetAtTheEnd) {
  const fs::path target = PathOfTest();
  WriteTo(target.string(), "old");
  const std::string text(200'000, 'x');
  WorkbookFile file(target.string());
  WriteTo(file.GetPath(), text);
  EXPECT_EQ(ContentOf(target), "old");
  file.Commit();
  EXPECT_EQ(ContentOf(target), text);
  fs::remove(target);
}

TEST(WorkbookFile, LeavesTheTargetAsItWasWithoutACommit) {
  const fs::path target = PathOfTest();
  WriteTo(target.string(), "old");
  { WriteTo(WorkbookFile(target.string()).GetPath(), "new"); }
  EXPECT_EQ(ContentOf(target), "old");
  fs::remove(target);
}

TEST(WorkbookFile, AFullDiskIsAnError) {
  if (!fs::exists("/dev/full")) GTEST_SKIP();
  WorkbookFile file("/dev/full");
  WriteTo(file.GetPath(), std::string(200'000, 'x'));
  EXPECT_THROW(file.Commit(), ExportError);
}

TEST(WorkbookFile, AFolderThatIsMissingIsAnError) {
  EXPECT_THROW(WorkbookFile((PathOfTest() / "missing" / "x.xlsx").string()), ExportError);
}

}  // namespace
}  // namespace KelIFC::exporting::saf
