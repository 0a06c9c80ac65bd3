#include "kelifc/platform/temporary_file.h"

#include <cstdio>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>
#endif

namespace KelIFC {

#ifdef _WIN32

TemporaryFile::TemporaryFile() {
  char folder[MAX_PATH + 1];
  char file[MAX_PATH + 1];
  const DWORD length = GetTempPathA(sizeof folder, folder);
  if (length == 0 || length > sizeof folder) return;
  if (GetTempFileNameA(folder, "ifc", 0, file) != 0) path = file;
}

#else

TemporaryFile::TemporaryFile() {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  if (error) return;
  std::string name = (folder / "kelifc-XXXXXX").string();
  const int descriptor = mkstemp(name.data());
  if (descriptor < 0) return;
  close(descriptor);
  path = std::move(name);
}

#endif

TemporaryFile::~TemporaryFile() {
  if (!path.empty()) std::remove(path.c_str());
}

}  // namespace KelIFC
