#ifndef KELIFC_TESTS_ARCHIVE_ARCHIVES_H_
#define KELIFC_TESTS_ARCHIVE_ARCHIVES_H_

#include <zip.h>
#include <zlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "archive/packed_model.h"
#include "gtest/gtest.h"

namespace KelIFC::archive {

/// A file that is removed at the end of its test.
class ArchiveFile {
 public:
  explicit ArchiveFile(const std::string& content = "") : path(MakePath()) {
    std::ofstream(path, std::ios::binary) << content;
  }
  ~ArchiveFile() { std::filesystem::remove(path); }
  ArchiveFile(const ArchiveFile&) = delete;
  ArchiveFile& operator=(const ArchiveFile&) = delete;

  const std::string& GetPath() const { return path; }

 private:
  static std::string MakePath() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    static int count = 0;
    return testing::TempDir() + "kelifc_" + test->test_suite_name() + "_" + test->name() + "_" +
           std::to_string(count++);
  }

  std::string path;
};

/// `text` as one gzip member.
inline std::string Gzip(const std::string& text) {
  z_stream stream = {};
  deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, text.size()) + 64, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

using Members = std::vector<std::pair<std::string, std::string>>;  // name, content

/// Makes a zip file at `path`; with a password its members are encrypted.
inline void MakeZip(const std::string& path, const Members& members,
                    const char* password = nullptr) {
  zip_t* archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  ASSERT_NE(archive, nullptr);
  for (const auto& [name, content] : members) {
    zip_source_t* source = zip_source_buffer(archive, content.data(), content.size(), 0);
    const zip_int64_t index = zip_file_add(archive, name.c_str(), source, 0);
    ASSERT_GE(index, 0);
    if (password == nullptr) continue;
    ASSERT_EQ(zip_file_set_encryption(archive, static_cast<zip_uint64_t>(index), ZIP_EM_TRAD_PKWARE,
                                      password),
              0);
  }
  ASSERT_EQ(zip_close(archive), 0);
}

/// The expanded model, or "refused: " and the reason.
inline std::string Expand(const std::string& path, const ExpansionLimits& limits = {}) {
  std::ostringstream out;
  try {
    ExpandModel(path, out, limits);
  } catch (const ArchiveError& e) {
    return std::string("refused: ") + e.what();
  }
  return out.str();
}

}  // namespace KelIFC::archive

#endif  // KELIFC_TESTS_ARCHIVE_ARCHIVES_H_
