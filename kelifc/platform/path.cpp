#include "kelifc/platform/path.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace KelIFC {

std::string_view GetFileName(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
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

std::string GetLastSystemError() {
  return errno == 0 ? std::string() : std::generic_category().message(errno);
}

}  // namespace KelIFC
