#include "archive/expansion.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace KelIFC::archive {

Expansion::Expansion(std::ostream& out, const ExpansionLimits& given, std::uint64_t packedBytes)
    : output(out), limits(given), packedSize(packedBytes) {}

void Expansion::Write(const char* data, std::size_t size) {
  NoteHead(data, size);
  written += size;
  if (written > limits.bytes) {
    throw ArchiveError("the archive expands to more than " + std::to_string(limits.bytes) +
                       " bytes");
  }
  // A division instead of a product, which a large packed size could overflow.
  if (limits.ratio != 0 && written / limits.ratio > packedSize) {
    throw ArchiveError("the archive expands to more than " + std::to_string(limits.ratio) +
                       " times its size");
  }
  output.write(data, static_cast<std::streamsize>(size));
  if (!output) {
    throw std::system_error(errno, std::generic_category(), "the expanded model cannot be written");
  }
}

void Expansion::Finish() {
  output.flush();
  if (!output) {
    throw std::system_error(errno, std::generic_category(), "the expanded model cannot be written");
  }
}

void Expansion::NoteHead(const char* data, std::size_t size) {
  if (head.size() >= kPackingBytes) return;
  head.append(data, std::min(size, kPackingBytes - head.size()));
  if (DetectPacking(head) != Packing::kNone) {
    throw ArchiveError("the archive holds another archive");
  }
}

}  // namespace KelIFC::archive
