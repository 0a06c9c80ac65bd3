#ifndef TOOLS_KELIFC_MODEL_SOURCE_H_
#define TOOLS_KELIFC_MODEL_SOURCE_H_

#include <cstdint>
#include <memory>
#include <string>

#include "tools/kelifc/temporary_folder.h"

namespace command {

/// The model that an argument of the command line names, as an ordinary file that can be read more
/// than once. `-` means standard input. A packed model (.ifczip, .ifc.gz) is expanded. Both are
/// written to a temporary file, which the destructor deletes.
class ModelSource {
 public:
  /// Throws Failure with Status::kFile if the file cannot be read, with Status::kNoModel if it is
  /// empty or an archive that is refused, and with Status::kMissing if it is an archive and this
  /// build cannot expand archives.
  explicit ModelSource(const std::string& name);

  /// The file to load.
  const std::string& GetPath() const { return path; }

  /// The size of that file in bytes.
  std::uint64_t GetSize() const { return size; }

 private:
  void SpoolStandardInput();
  void Expand();
  TemporaryFolder& MakeFolder();

  std::unique_ptr<TemporaryFolder> folder;  // null for an ordinary file
  std::string path;
  std::uint64_t size = 0;
};

}  // namespace command

#endif  // TOOLS_KELIFC_MODEL_SOURCE_H_
