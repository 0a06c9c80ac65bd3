#ifndef TESTS_SERVER_TEMP_FILE_H_
#define TESTS_SERVER_TEMP_FILE_H_

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

namespace KelIFC {

/// A temporary file of the running test, which is removed at its end. Tests can run in parallel, so
/// the name contains that of the test.
class TempFile {
 public:
  TempFile() : path(MakePath()) {}
  explicit TempFile(const std::string& text) : TempFile() {
    std::ofstream(path, std::ios::binary) << text;
  }
  ~TempFile() { std::remove(path.c_str()); }
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;

  const char* GetPath() const { return path.c_str(); }

  /// Returns the contents of the file, with plain line ends.
  std::string Read() const {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  static std::string MakePath() {
    static int count = 0;
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test->test_suite_name()) + "_" + test->name();
    std::replace(name.begin(), name.end(), '/', '_');
    return testing::TempDir() + "kelifc_" + name + "_" + std::to_string(++count) + ".ifc";
  }

  std::string path;
};

}  // namespace KelIFC

#endif  // TESTS_SERVER_TEMP_FILE_H_
