#ifndef KELIFC_ARCHIVE_PACKED_MODEL_H_
#define KELIFC_ARCHIVE_PACKED_MODEL_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>

namespace KelIFC::archive {

/// How the bytes of a model file are packed.
enum class Packing { kNone, kGzip, kZip };

/// As many bytes of the start of a file show its packing.
constexpr std::size_t kPackingBytes = 4;

/// The packing of a file that begins with `start`. Fewer bytes than kPackingBytes are enough where
/// they are decisive; an empty text is not packed.
Packing DetectPacking(std::string_view start);

/// The packing of a file by its first bytes; its name does not count. kNone if the file cannot be
/// read.
Packing DetectFilePacking(const std::string& path);

/// How far an archive may expand.
struct ExpansionLimits {
  std::uint64_t bytes = std::uint64_t{8} << 30;  ///< of the expanded model
  std::uint64_t ratio = 200;  ///< expanded bytes for each packed byte; 0 lifts the limit
};

/// An archive that is damaged, exceeds a limit, or holds no model that is read. The text is the
/// reason, in one line.
class ArchiveError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Thrown for an archive by a build that was made without the libraries that expand archives.
class NotBuilt : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Expands the model that the file at `path` holds and writes its bytes to `out`.
///  - A gzip file is the model; members that follow each other are joined.
///  - Of a zip file the first member whose name ends in `.ifc`, in any case, is the model. The name
///    is used for nothing else.
/// Throws ArchiveError if the file is no archive, is damaged, is encrypted, holds another archive
/// or no `.ifc` member, or exceeds a limit; NotBuilt if this build expands no archives; and
/// std::system_error if a file cannot be read or
/// written. What was written before is then of no use.
void ExpandModel(const std::string& path, std::ostream& out, const ExpansionLimits& limits = {});

}  // namespace KelIFC::archive

#endif  // KELIFC_ARCHIVE_PACKED_MODEL_H_
