#include "tests/command/process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "tests/paths.h"

namespace command_test {
namespace {

void Redirect(int stream, const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (file < 0 || dup2(file, stream) < 0) _exit(126);
}

}  // namespace

Outcome Run(const std::string& program, const std::vector<std::string>& arguments,
            const std::string& outPath, const std::string& inPath) {
  const TemporaryFolder folder;
  const std::string out = outPath.empty() ? folder.Path("out") : outPath;
  const std::string err = folder.Path("err");
  // execv takes pointers that are not const, but changes nothing.
  std::vector<char*> argv{const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);

  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("fork failed");
  if (child == 0) {
    if (chdir(KelIFC::kExamplesDir) != 0) _exit(126);
    if (std::freopen(inPath.c_str(), "rb", stdin) == nullptr) _exit(126);
    Redirect(STDOUT_FILENO, out);
    Redirect(STDERR_FILENO, err);
    execv(program.c_str(), argv.data());
    _exit(127);
  }
  int state = 0;
  waitpid(child, &state, 0);
  const int status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
  return {status, outPath.empty() ? ReadFile(out) : "", ReadFile(err)};
}

Outcome Kelifc(const std::vector<std::string>& arguments, const std::string& outPath,
               const std::string& inPath) {
  return Run(KELIFC_COMMAND, arguments, outPath, inPath);
}

void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "kelifc-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}

}  // namespace command_test
