#ifndef TESTS_COMMAND_PROCESS_H_
#define TESTS_COMMAND_PROCESS_H_

#include <string>
#include <vector>

namespace command_test {

/// What a finished run of the command left behind.
struct Outcome {
  int status = -1;  ///< exit status, or 128 + the signal that ended it
  std::string out;
  std::string err;
};

/// Runs the built command with these arguments in the folder of the shipped models. Standard output
/// goes to the file `outPath` where one is named, and is then not in the result. Standard input is
/// the file `inPath`, empty where none is named.
Outcome Kelifc(const std::vector<std::string>& arguments, const std::string& outPath = "",
               const std::string& inPath = "/dev/null");

/// The text of a file; empty for one that is not there.
std::string ReadFile(const std::string& path);

void WriteFile(const std::string& path, const std::string& text);

/// A folder for one test, empty at first and gone after it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string Path(const std::string& name) const { return path + "/" + name; }

 private:
  std::string path;
};

}  // namespace command_test

#endif  // TESTS_COMMAND_PROCESS_H_
