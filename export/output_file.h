#ifndef EXPORT_OUTPUT_FILE_H_
#define EXPORT_OUTPUT_FILE_H_

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace KelIFC::exporting {

/// A file that an export writes. The text goes to a temporary file in the same folder, which
/// replaces the target in Commit. If Commit is not called, the target stays as it was.
///
/// All functions throw ExportError with ExportFailure::kFile.
class OutputFile {
 public:
  /// Creates the temporary file.
  explicit OutputFile(const std::string& path);

  /// Removes the temporary file unless it has replaced the target.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  /// Appends bytes. They are buffered.
  void Write(std::string_view bytes);

  /// Writes what is buffered and replaces the target. It is called once, at the end.
  void Commit();

 private:
  struct State;
  std::unique_ptr<State> state;
};

/// A path at which another library, such as that of a database, writes a file. Commit replaces the
/// target with it; until then the target stays as it was. Throws like OutputFile.
class OutputPath {
 public:
  /// Creates an empty temporary file in the folder of `path`.
  explicit OutputPath(const std::string& path);

  /// Removes the temporary file unless it has replaced the target.
  ~OutputPath();
  OutputPath(const OutputPath&) = delete;
  OutputPath& operator=(const OutputPath&) = delete;

  /// The path of the temporary file.
  const std::string& GetPath() const;

  /// Replaces the target. The file must be closed. It is called once, at the end.
  void Commit();

 private:
  struct State;
  std::unique_ptr<State> state;
};

/// A folder in which an export writes files. If Commit is not called, the folders that were created
/// are removed, unless other files are in them meanwhile.
class OutputFolder {
 public:
  /// Creates the folder, with the folders above it, if it is missing. Throws ExportError with
  /// ExportFailure::kFile if it cannot be created or if `path` is not a folder.
  explicit OutputFolder(const std::string& path);
  ~OutputFolder();
  OutputFolder(const OutputFolder&) = delete;
  OutputFolder& operator=(const OutputFolder&) = delete;

  /// Keeps the folder. It is called once, after the files are committed.
  void Commit();

 private:
  std::vector<std::filesystem::path> created;  // inner folders first
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_OUTPUT_FILE_H_
