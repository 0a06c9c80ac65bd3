#include "kelifc/platform/path.h"

#include <cerrno>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <filesystem>
#endif

namespace KelIFC {

std::string_view GetFileName(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

#ifdef _WIN32

namespace {

bool FindFile(const char* path, WIN32_FILE_ATTRIBUTE_DATA& data) {
  constexpr DWORD kNoFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE;
  return GetFileAttributesExA(path, GetFileExInfoStandard, &data) != 0 &&
         (data.dwFileAttributes & kNoFile) == 0;
}

}  // namespace

bool FileExists(const char* path) { return GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES; }

bool IsRegularFile(const char* path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  return FindFile(path, data);
}

std::uint64_t GetFileSize(const char* path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  if (!FindFile(path, data)) return 0;
  return std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
}

#else

bool FileExists(const char* path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

bool IsRegularFile(const char* path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error);
}

std::uint64_t GetFileSize(const char* path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return error ? 0 : size;
}

#endif

std::string GetLastSystemError() {
  return errno == 0 ? std::string() : std::generic_category().message(errno);
}

}  // namespace KelIFC
