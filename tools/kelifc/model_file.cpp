#include "tools/kelifc/model_file.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>

#include "tools/kelifc/failure.h"
#include "tools/kelifc/progress.h"
#include "tools/kelifc/text.h"

namespace command {
namespace {

namespace fs = std::filesystem;

/// The path of a name as the command line gives it: of the system's code page on Windows.
fs::path PathOf(const std::string& name) {
#ifdef _WIN32
  return KelIFC::WidePath(name);
#else
  return name;
#endif
}

/// The size of a file of which at least the first byte can be read. The load itself cannot tell
/// why a file is not to be had, and would take a folder for a file of the wrong kind.
std::uint64_t SizeOfReadable(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(PathOf(path), error);
  if (status.type() == fs::file_type::directory) {
    throw Failure(Status::kFile, path, std::strerror(EISDIR));
  }
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw Failure(Status::kFile, path, "not a regular file");
  }
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             &std::fclose);
  if (file == nullptr) throw Failure(Status::kFile, path, std::strerror(errno));
  if (std::fgetc(file.get()) == EOF) {
    if (std::ferror(file.get()) != 0) throw Failure(Status::kFile, path, std::strerror(errno));
    throw Failure(Status::kNoModel, path, "the file is empty");
  }
  return fs::file_size(PathOf(path), error);
}

}  // namespace

void LoadModel(KelIFC::IfcServer& server, const std::string& path) {
  ProgressBar bar(SizeOfReadable(path));
  if (bar.IsShown()) {
    server.SetProgressHandler([&bar](std::uint64_t done, std::uint64_t total) {
      bar.Update(done, total);
      return true;
    });
  }
  const int code = server.LoadIfcFile(path.c_str());
  server.SetProgressHandler(nullptr);
  if (code == KelIFC::LOAD_RESULT_LOADED) return;
  if (code == KelIFC::LOAD_RESULT_CANNOT_OPEN) {
    throw Failure(Status::kFile, path, "the file cannot be opened");
  }
  if (code == KelIFC::LOAD_RESULT_NO_STEP_FILE) {
    throw Failure(Status::kNoModel, path, "not a STEP file");
  }
  const std::string schema = Utf8FromLatin1(server.GetFileSchema());
  throw Failure(Status::kNoModel, path,
                schema.empty() ? "no schema" : "unknown schema '" + schema + "'");
}

const char* ReleaseText(KelIFC::IFC_RELEASE release) {
  switch (release) {
    case KelIFC::IFC_RELEASE_151:
      return "1.5.1";
    case KelIFC::IFC_RELEASE_20:
      return "2.0";
    case KelIFC::IFC_RELEASE_2X:
      return "2x";
    case KelIFC::IFC_RELEASE_2X2:
      return "2x2";
    case KelIFC::IFC_RELEASE_2X3:
      return "2x3";
    case KelIFC::IFC_RELEASE_NONE:
      break;
  }
  return "";
}

}  // namespace command
