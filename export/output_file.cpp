#include "export/output_file.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "kelifc/platform/file_replacement.h"
#include "kelifc/platform/path.h"

#include "export/export.h"

namespace KelIFC::exporting {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBufferSize = 1 << 20;

[[noreturn]] void Fail(const std::string& path, const std::string& reason) {
  throw ExportError(ExportFailure::kFile,
                    "cannot write " + path + ": " + (reason.empty() ? "unknown reason" : reason));
}

}  // namespace

struct OutputPath::State {
  explicit State(const std::string& path) : path(path), replacement(path.c_str()) {}

  std::string path;
  FileReplacement replacement;
};

OutputPath::OutputPath(const std::string& path) : state(std::make_unique<State>(path)) {
  if (!state->replacement.IsGood()) Fail(path, state->replacement.GetFailure());
}

OutputPath::~OutputPath() = default;

const std::string& OutputPath::GetPath() const { return state->replacement.GetPath(); }

void OutputPath::Commit() {
  if (!state->replacement.Commit()) Fail(state->path, state->replacement.GetFailure());
}

struct OutputFile::State {
  explicit State(const std::string& path)
      : path(path), target(path), file(std::fopen(target.GetPath().c_str(), "wb")) {
    if (!file) Fail(path, GetLastSystemError());
  }
  ~State() {
    if (file) std::fclose(file);
  }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  void Flush() {
    if (std::fwrite(buffer.data(), 1, buffer.size(), file) != buffer.size()) {
      Fail(path, GetLastSystemError());
    }
    buffer.clear();
  }

  std::string path;
  OutputPath target;  // declared before the file, which is closed before the target is removed
  std::FILE* file;
  std::string buffer;
};

OutputFile::OutputFile(const std::string& path) : state(std::make_unique<State>(path)) {}

OutputFile::~OutputFile() = default;

void OutputFile::Write(std::string_view bytes) {
  state->buffer.append(bytes);
  if (state->buffer.size() >= kBufferSize) state->Flush();
}

void OutputFile::Commit() {
  state->Flush();
  std::FILE* const file = state->file;
  state->file = nullptr;
  if (std::fclose(file) != 0) Fail(state->path, GetLastSystemError());
  state->target.Commit();
}

OutputFolder::OutputFolder(const std::string& path) {
  std::error_code error;
  for (fs::path folder = path; !folder.empty() && !fs::exists(folder, error);
       folder = folder.parent_path()) {
    created.push_back(folder);
  }
  fs::create_directories(path, error);
  if (error) Fail(path, error.message());
  if (!fs::is_directory(path, error)) Fail(path, "it is not a folder");
}

OutputFolder::~OutputFolder() {
  std::error_code ignored;
  for (const fs::path& folder : created) fs::remove(folder, ignored);  // only if it is empty
}

void OutputFolder::Commit() { created.clear(); }

}  // namespace KelIFC::exporting
