#ifndef KELIFC_SERVER_STATEMENT_PLACE_H_
#define KELIFC_SERVER_STATEMENT_PLACE_H_

#include <cstdint>

namespace KelIFC {

/// Where a source has a statement. A line or a length of more than 4,294,967,295 is stored as that.
struct StatementPlace {
  std::uint64_t offset = 0;  ///< of the first character of the statement, in bytes
  std::uint32_t line = 0;    ///< of that character, from 1; 0 for no statement
  std::uint32_t length = 0;  ///< in bytes, its `;` and the comments in it included
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_STATEMENT_PLACE_H_
