#ifndef KELIFC_PLATFORM_FILE_REPLACEMENT_H_
#define KELIFC_PLATFORM_FILE_REPLACEMENT_H_

#include <string>

namespace KelIFC {

/// The new content of a file. It is written to a temporary file in the same folder, which replaces
/// the target at the end. A failure at any time leaves the target as it was.
///
///  - If the target is a symbolic link, the file that it leads to is replaced.
///  - The new file has the permissions of the old one, and its owner where the system allows that.
///  - A target that exists and is not a regular file, such as a pipe or a device, is written
///    directly. So is an open file without a name that a link such as /dev/stdout leads to.
class FileReplacement {
 public:
  /// Creates the temporary file. It is a failure if the path is null or empty, the target may not
  /// be written, or no file can be created in the folder.
  explicit FileReplacement(const char* target);

  /// Removes the temporary file unless it has replaced the target.
  ~FileReplacement();
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  /// Returns true until the first failure.
  bool IsGood() const { return failure.empty(); }

  /// Returns the system's reason for the first failure, or "".
  const std::string& GetFailure() const { return failure; }

  /// Returns the path of the file to write to. The file exists and is empty, unless the target is
  /// written directly.
  const std::string& GetPath() const { return written; }

  /// Flushes the written file to the disk and replaces the target with it. The file must be closed.
  /// Returns false if that failed; the target is then unchanged. Call it once.
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
