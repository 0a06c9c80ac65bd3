#include "export/saf/workbook_check.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <filesystem>
#include <fstream>

#include "tests/export/saf/opened_workbook.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr const char* kSheet =
    "<?xml?>\n<worksheet><row><c r=\"A1\"><v>1</v></c></row></worksheet>";
constexpr const char* kTexts = "<?xml?>\n<sst uniqueCount=\"2\"><si><t>a</t></si><si></si></sst>";

// Writes an archive with a sheet and a list of shared texts.
std::string Archive(const TestFolder& folder, const std::string& sheet, const std::string& texts) {
  std::string path = folder / "a.xlsx";
  std::filesystem::remove(path);
  zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE, nullptr);
  const auto Add = [&](const char* name, const std::string& text) {
    zip_source_t* const source = zip_source_buffer(archive, text.data(), text.size(), 0);
    const zip_int64_t at = zip_file_add(archive, name, source, 0);
    ASSERT_GE(at, 0);
    zip_set_file_compression(archive, static_cast<zip_uint64_t>(at), ZIP_CM_DEFLATE, 0);
  };
  Add("xl/worksheets/sheet1.xml", sheet);
  Add("xl/sharedStrings.xml", texts);
  EXPECT_EQ(zip_close(archive), 0);
  return path;
}

TEST(WorkbookCheck, AcceptsAWorkbookWithAllCellsAndTexts) {
  const TestFolder folder;
  EXPECT_TRUE(IsWorkbookComplete(Archive(folder, kSheet, kTexts), {1}));
}

TEST(WorkbookCheck, FindsCellsSheetsAndTextsThatAreMissing) {
  const TestFolder folder;
  const std::string path = Archive(folder, kSheet, kTexts);
  EXPECT_FALSE(IsWorkbookComplete(path, {2}));
  EXPECT_FALSE(IsWorkbookComplete(path, {1, 0}));
  EXPECT_FALSE(IsWorkbookComplete(path, {}));
  EXPECT_FALSE(IsWorkbookComplete(
      Archive(folder, kSheet, "<?xml?>\n<sst uniqueCount=\"2\"><si></si></sst>"), {1}));
}

TEST(WorkbookCheck, FindsAFileThatIsCutOff) {
  const TestFolder folder;
  const std::string sheet = kSheet;
  for (const std::size_t length : {std::size_t{0}, std::size_t{20}, sheet.size() - 1}) {
    EXPECT_FALSE(IsWorkbookComplete(Archive(folder, sheet.substr(0, length), kTexts), {1}));
  }
}

TEST(WorkbookCheck, ReadsAFileOfManyBlocks) {
  const TestFolder folder;
  std::string sheet = "<?xml?>\n<worksheet>";
  for (int i = 0; i < 100'000; ++i) sheet += "<c r=\"A" + std::to_string(i * 7919) + "\"/>";
  sheet += "</worksheet>";
  const std::string path = Archive(folder, sheet, kTexts);
  EXPECT_TRUE(IsWorkbookComplete(path, {100'000}));
  EXPECT_FALSE(IsWorkbookComplete(path, {99'999}));
}

TEST(WorkbookCheck, RejectsAFileThatIsNoArchive) {
  const TestFolder folder;
  EXPECT_FALSE(IsWorkbookComplete(folder / "none.xlsx", {}));
  std::ofstream(folder / "a.xlsx") << "short";
  EXPECT_FALSE(IsWorkbookComplete(folder / "a.xlsx", {}));
  std::ofstream(folder / "a.xlsx") << std::string(100, 'x');
  EXPECT_FALSE(IsWorkbookComplete(folder / "a.xlsx", {}));
}

}  // namespace
}  // namespace KelIFC::exporting::saf
