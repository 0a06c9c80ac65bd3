#ifndef FUZZ_MEMORY_FILE_H_
#define FUZZ_MEMORY_FILE_H_

#include <string>
#include <string_view>

namespace fuzz {

/// An ordinary file that has a path and no place on a disk. Aborts the process where the system has
/// none to give.
class MemoryFile {
 public:
  MemoryFile();
  ~MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  const char* GetPath() const { return path.c_str(); }
  void Write(std::string_view text);
  std::string Read() const;

 private:
  int descriptor;
  std::string path;
};

}  // namespace fuzz

#endif  // FUZZ_MEMORY_FILE_H_
