#ifndef KELIFC_PLATFORM_MEMORY_FILE_H_
#define KELIFC_PLATFORM_MEMORY_FILE_H_

#include <string>

namespace KelIFC {

/// An empty file that is kept in memory, for a library that can only write to a path. It needs no
/// space on a disk. It exists as long as the object.
class MemoryFile {
 public:
  MemoryFile();

  /// Frees the memory. The file must be closed.
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  /// The path of the file; empty if the system has no such files.
  const std::string& GetPath() const { return path; }

 private:
  int descriptor = -1;
  std::string path;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_MEMORY_FILE_H_
