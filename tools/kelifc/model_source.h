#ifndef TOOLS_KELIFC_MODEL_SOURCE_H_
#define TOOLS_KELIFC_MODEL_SOURCE_H_

#include <cstdint>
#include <memory>
#include <string>

#include "tools/kelifc/temporary_folder.h"

namespace command {

/// The model that an argument of the command line names, as an ordinary file that can be read more
/// than once. `-` means standard input; a packed model (.ifczip, .ifc.gz) is expanded. Both go
/// through a temporary file, which exists as long as the source.
class ModelSource {
 public:
  /// Throws Failure: Status::kFile for what cannot be read, Status::kNoModel for an empty file and
  /// for an archive that is refused, Status::kMissing for an archive in a build that cannot expand
  /// archives.
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
