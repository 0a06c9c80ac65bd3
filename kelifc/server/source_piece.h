#ifndef KELIFC_SERVER_SOURCE_PIECE_H_
#define KELIFC_SERVER_SOURCE_PIECE_H_

#include <cstddef>
#include <cstring>
#include <istream>
#include <memory>
#include <utility>

#include "kelifc/server/source_position.h"

namespace KelIFC {

/// A piece of a source in memory. Its memory can be used again for another piece.
struct SourcePiece {
  SourcePosition begin;  ///< of the first byte
  std::unique_ptr<char[]> bytes;
  std::size_t capacity = 0;  ///< the length of `bytes`
  std::size_t size = 0;      ///< how many of them the piece has

  /// Makes the piece empty, at a position.
  void Restart(const SourcePosition& position) {
    begin = position;
    size = 0;
  }

  /// Adds up to `count` bytes of a stream. Returns how many the stream had.
  std::size_t Append(std::istream& in, std::size_t count) {
    if (capacity - size < count) Grow(size + count);
    in.read(bytes.get() + size, static_cast<std::streamsize>(count));
    const auto read = static_cast<std::size_t>(in.gcount());
    size += read;
    return read;
  }

  /// Adds bytes from memory.
  void Append(const char* data, std::size_t count) {
    if (count == 0) return;
    if (capacity - size < count) Grow(size + count);
    std::memcpy(bytes.get() + size, data, count);
    size += count;
  }

 private:
  void Grow(std::size_t least) {
    const std::size_t wanted = least + least / 4;
    std::unique_ptr<char[]> larger(new char[wanted]);
    if (size != 0) std::memcpy(larger.get(), bytes.get(), size);
    bytes = std::move(larger);
    capacity = wanted;
  }
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SOURCE_PIECE_H_
