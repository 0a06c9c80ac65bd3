#ifndef TESTS_COMMAND_PROCESS_H_
#define TESTS_COMMAND_PROCESS_H_

#include <string>
#include <vector>

#include "tests/read_file.h"

namespace command_test {

/// The result of a program that has ended.
struct Outcome {
  int status = -1;  ///< exit status, or 128 + the signal that ended it
  std::string out;
  std::string err;
};

/// Runs a program in the folder of the shipped models. Standard output goes to the file `outPath`
/// if that is not empty; then `out` of the result is empty. Standard input is the file `inPath`.
Outcome Run(const std::string& program, const std::vector<std::string>& arguments,
            const std::string& outPath = "", const std::string& inPath = "/dev/null");

/// Runs the command that was built. The other arguments are those of Run.
Outcome Kelifc(const std::vector<std::string>& arguments, const std::string& outPath = "",
               const std::string& inPath = "/dev/null");

using KelIFC::ReadFile;

void WriteFile(const std::string& path, const std::string& text);

/// A new, empty folder. The destructor deletes it with everything in it.
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
