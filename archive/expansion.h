#ifndef KELIFC_ARCHIVE_EXPANSION_H_
#define KELIFC_ARCHIVE_EXPANSION_H_

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>

#include "archive/packed_model.h"

namespace KelIFC::archive {

/// Receives the bytes of a model while they are expanded, checks them against the limits, and
/// writes them to a stream.
class Expansion {
 public:
  /// `packedBytes` is the size of the packed data; `out` must outlive the expansion.
  Expansion(std::ostream& out, const ExpansionLimits& limits, std::uint64_t packedBytes);

  /// Writes the next `size` bytes. Throws ArchiveError if a limit is exceeded or if the model is
  /// itself an archive, std::system_error if the stream fails.
  void Write(const char* data, std::size_t size);

  /// Checks what can be known only at the end of the model. Throws as Write does.
  void Finish();

 private:
  void NoteHead(const char* data, std::size_t size);

  std::ostream& output;
  ExpansionLimits limits;
  std::uint64_t packedSize;
  std::uint64_t written = 0;
  std::string head;  // the first bytes of the model, as many as show its packing
};

}  // namespace KelIFC::archive

#endif  // KELIFC_ARCHIVE_EXPANSION_H_
