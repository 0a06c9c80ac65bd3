#ifndef KELIFC_SERVER_SOURCE_POSITION_H_
#define KELIFC_SERVER_SOURCE_POSITION_H_

#include <cstdint>

namespace KelIFC {

/// A position in a source, after the end of a statement or at the begin of the source.
struct SourcePosition {
  std::uint64_t offset = 0;     ///< in bytes
  std::uint64_t line = 1;       ///< from 1
  std::uint64_t lineStart = 0;  ///< the offset at which that line begins
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SOURCE_POSITION_H_
