#ifndef FUZZ_MEMORY_FILE_H_
#define FUZZ_MEMORY_FILE_H_

#include <string>
#include <string_view>

namespace fuzz {

/// A file in memory that has a path. All functions abort the process if the system fails to create
/// or write the file.
class MemoryFile {
 public:
  MemoryFile();
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  const char* GetPath() const { return path.c_str(); }
  /// Replaces the content of the file.
  void Write(std::string_view text);

  /// Returns the content of the file.
  std::string Read() const;

 private:
  int descriptor;
  std::string path;
};

}  // namespace fuzz

#endif  // FUZZ_MEMORY_FILE_H_
