#ifndef KELIFC_PLATFORM_FILE_REPLACEMENT_H_
#define KELIFC_PLATFORM_FILE_REPLACEMENT_H_

#include <string>

namespace KelIFC {

/// The new content of a file. It is written to a temporary file in the same folder, which takes the
/// place of the target at the end. A failure at any time leaves the target as it was.
///
///  - A target that is a symbolic link stays one: the file that it leads to is replaced.
///  - The new file has the permissions of the old one, and its owner where the system allows that.
///  - A target that exists and is no ordinary file, such as a pipe or a device, is written directly.
class FileReplacement {
 public:
  /// Creates the temporary file. A null or empty path, a target that may not be written and a folder
  /// in which no file can be created are failures.
  explicit FileReplacement(const char* target);
  /// Removes the temporary file, unless it has become the target.
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// True until the first failure.
  bool IsGood() const { return failure.empty(); }

  /// The system's reason for the first failure; "" if there was none.
  const std::string& GetFailure() const { return failure; }

  /// The file to write to. It exists and is empty, unless the target is written directly.
  const std::string& GetPath() const { return written; }

  /// Flushes the written file, which must be closed, to the disk and puts it in the place of the
  /// target. Returns false if that failed; the target then is the old one. Call it once.
  bool Commit();

 private:
  bool Prepare();
  void Fail();

  std::string target;   // symbolic links resolved
  std::string written;  // the same as the target if that is written directly
  std::string failure;
  bool isTemporary = false;  // `written` is to be removed
};

}  // namespace KelIFC

#endif  // KELIFC_PLATFORM_FILE_REPLACEMENT_H_
