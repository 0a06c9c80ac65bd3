#ifndef TOOLS_KELIFC_TEMPORARY_FOLDER_H_
#define TOOLS_KELIFC_TEMPORARY_FOLDER_H_

#include <filesystem>
#include <string>

namespace command {

/// A folder that only this user can read. It is removed with its files when the object is
/// destroyed.
class TemporaryFolder {
 public:
  /// Throws std::system_error if the folder cannot be created.
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string GetPath(const std::string& name) const { return (path / name).string(); }

 private:
  std::filesystem::path path;
};

}  // namespace command

#endif  // TOOLS_KELIFC_TEMPORARY_FOLDER_H_
