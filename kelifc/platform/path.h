#ifndef KELIFC_PLATFORM_PATH_H_
#define KELIFC_PLATFORM_PATH_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace KelIFC {

// Paths are narrow text: UTF-8, or whatever bytes the file system holds, off Windows; text in the
// system's ANSI code page on Windows.

/// The last component of a path: what stands behind its last separator, the whole of a path
/// without one, "" behind a trailing one. Both `/` and `\` separate, since models travel between
/// systems and their paths with them.
std::string_view GetFileName(std::string_view path);

/// True if something is at the path, a device or a pipe too.
bool FileExists(const char* path);

/// True if the path leads to an ordinary file, links followed. A model is read twice, which rules
/// out pipes and devices.
bool IsRegularFile(const char* path);

/// The size of a file in bytes, 0 if it cannot be told.
std::uint64_t GetFileSize(const char* path);

/// The platform's words for the last failed call to the system on this thread, such as
/// "Permission denied"; an empty text if none failed. Call it before anything else.
std::string GetLastSystemError();

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_PATH_H_
