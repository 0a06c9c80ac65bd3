#ifndef KELIFC_PLATFORM_PATH_H_
#define KELIFC_PLATFORM_PATH_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace KelIFC {

// Functions on paths. A path is narrow text: on Windows in the system's ANSI code page, elsewhere
// the bytes of the file system, usually UTF-8.

/// Returns the text after the last separator: the whole path if there is no separator, "" if the
/// path ends with one. Both `/` and `\` are separators on all systems, since models and the paths
/// in them move between systems.
std::string_view GetFileName(std::string_view path);

/// Returns true if the path exists. It can be a file, a folder, a device or a pipe.
bool FileExists(const char* path);

/// Returns true if the path leads to a regular file. Symbolic links are followed. A load reads its
/// file twice, which a pipe or a device does not allow.
bool IsRegularFile(const char* path);

/// Returns the size of a file in bytes, 0 if it is unknown.
std::uint64_t GetFileSize(const char* path);

/// Returns the system's description of the last failure on this thread, such as "Permission
/// denied", or "" if there was none. Another call of the system can replace it, so call this
/// function first.
std::string GetLastSystemError();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_PATH_H_
