#include "kelifc/platform/file_replacement.h"

#include <cerrno>
#include <random>

#include "kelifc/platform/path.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#endif

namespace KelIFC {
namespace {

constexpr int kMostTries = 16;  // until a name for the temporary file is found that is not in use

#ifdef _WIN32
constexpr char kSeparators[] = "/\\:";
#else
constexpr char kSeparators[] = "/";
#endif

// Returns the folder of a path with its separator, "" for a path without one.
std::string FolderOf(const std::string& path) {
  return path.substr(0, path.find_last_of(kSeparators) + 1);
}

std::string MakeName() {
  std::random_device random;
  return ".kelifc-" + std::to_string(random()) + std::to_string(random()) + ".tmp";
}

#ifdef _WIN32

// Returns the file that a path leads to, with symbolic links resolved. Returns the path itself if
// there is no such file.
std::string Resolve(const std::string& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  std::string name(MAX_PATH, '\0');  // allocated before the file is open, which nothing would close
  const HANDLE file = CreateFileA(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return path;
  const DWORD length = GetFinalPathNameByHandleA(file, name.data(), MAX_PATH, 0);
  CloseHandle(file);
  if (length == 0 || length >= MAX_PATH) return path;
  name.resize(length);
  return name;
}

// Here the system itself resolves the links.
bool LeadsTo(const std::string&, const std::string&) { return true; }

bool IsWritten(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return true;
  if ((attributes & FILE_ATTRIBUTE_READONLY) == 0) return true;
  errno = EACCES;
  return false;
}

// Creates a file; fails if it exists.
bool Create(const std::string& path, const std::string&) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = GetLastError() == ERROR_FILE_EXISTS ? EEXIST : EACCES;
    return false;
  }
  CloseHandle(file);
  return true;
}

bool FlushToDisk(const std::string& path) {
  const HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool isFlushed = FlushFileBuffers(file) != 0;
  CloseHandle(file);
  if (!isFlushed) errno = EIO;
  return isFlushed;
}

bool Rename(const std::string& from, const std::string& to) {
  // ReplaceFile keeps the access rights of the old file, which must exist.
  if (FileExists(to.c_str()) && ReplaceFileA(to.c_str(), from.c_str(), nullptr,
                                             REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
    return true;
  }
  if (MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    return true;
  }
  errno = EACCES;
  return false;
}

void Remove(const std::string& path) { DeleteFileA(path.c_str()); }

#else

namespace fs = std::filesystem;

// Returns the file that a path leads to, with symbolic links resolved; the file need not exist. If
// the links form a cycle or too long a chain, the result is one of the links, which is then
// replaced.
std::string Resolve(const std::string& path) {
  constexpr int kMostLinks = 40;
  fs::path place = path;
  std::error_code error;
  for (int i = 0; i < kMostLinks && fs::is_symlink(place, error); ++i) {
    const fs::path next = fs::read_symlink(place, error);
    if (error) break;
    place = place.parent_path() / next;  // replaces the folder if `next` is absolute
  }
  return place.string();
}

// False if the links of a path lead to another file than the system opens. This is so for the links
// that name an open file, such as /dev/stdout, if the file is a pipe or has no name.
bool LeadsTo(const std::string& path, const std::string& resolved) {
  std::error_code error;
  return !FileExists(path.c_str()) || fs::equivalent(path, resolved, error);
}

// A rename needs the right to write to the folder only. A file that is marked as read-only is not
// replaced, though.
bool IsWritten(const std::string& path) {
  return access(path.c_str(), W_OK) == 0 || errno == ENOENT;
}

// Creates a file with the permissions of `model`, if that exists. Fails if the new file exists.
bool Create(const std::string& path, const std::string& model) {
  struct stat facts = {};
  const bool hasModel = stat(model.c_str(), &facts) == 0;
  const int file = open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) return false;
  if (hasModel) {
    // Only a privileged process can change the owner. Otherwise the file belongs to the user.
    static_cast<void>(fchown(file, facts.st_uid, facts.st_gid) == 0);
    fchmod(file, facts.st_mode & 07777);
  }
  close(file);
  return true;
}

bool Flush(const char* path, int flags) {
  const int file = open(path, flags | O_CLOEXEC);
  if (file < 0) return false;
  const bool isFlushed = fsync(file) == 0;
  const int reason = errno;
  close(file);
  errno = reason;
  return isFlushed;
}

bool FlushToDisk(const std::string& path) { return Flush(path.c_str(), O_WRONLY); }

bool Rename(const std::string& from, const std::string& to) {
  const std::string folder = FolderOf(to);  // nothing may be allocated after the rename
  if (rename(from.c_str(), to.c_str()) != 0) return false;
  // The file has been renamed. If the folder cannot be flushed, only the time at which that reaches
  // the disk is uncertain.
  Flush(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
  return true;
}

void Remove(const std::string& path) { unlink(path.c_str()); }

#endif

}  // namespace

FileReplacement::FileReplacement(const char* path) : target(path == nullptr ? "" : path) {
  if (!Prepare()) Fail();
}

FileReplacement::~FileReplacement() {
  if (isTemporary) Remove(written);
}

bool FileReplacement::Commit() {
  if (!IsGood()) return false;
  if (!isTemporary) return true;
  errno = 0;
  if (FlushToDisk(written) && Rename(written, target)) {
    isTemporary = false;
  } else {
    Fail();
  }
  return IsGood();
}

// Creates the file to write to. Returns false and sets errno if there is none.
bool FileReplacement::Prepare() {
  errno = ENOENT;
  if (target.empty()) return false;
  written = target;
  if (FileExists(target.c_str()) && !IsRegularFile(target.c_str())) return true;
  target = Resolve(target);
  if (!LeadsTo(written, target)) return true;
  if (!IsWritten(target)) return false;
  for (int i = 0; i < kMostTries && !isTemporary; ++i) {
    written = FolderOf(target) + MakeName();
    isTemporary = Create(written, target);
    if (!isTemporary && errno != EEXIST) break;
  }
  return isTemporary;
}

void FileReplacement::Fail() {
  failure = GetLastSystemError();
  if (failure.empty()) failure = "the file cannot be written";
}

}  // namespace KelIFC
