#ifndef KELIFC_PLATFORM_TEMPORARY_FILE_H_
#define KELIFC_PLATFORM_TEMPORARY_FILE_H_

#include <string>

namespace KelIFC {

/// A new, empty file in the system's folder for temporary files, which only the user may read. It
/// is removed at the end of the object.
class TemporaryFile {
 public:
  TemporaryFile();
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// The path; empty if the file could not be created.
  const std::string& GetPath() const { return path; }

 private:
  std::string path;
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_TEMPORARY_FILE_H_
