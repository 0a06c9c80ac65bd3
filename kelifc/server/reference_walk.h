#ifndef KELIFC_SERVER_REFERENCE_WALK_H_
#define KELIFC_SERVER_REFERENCE_WALK_H_

#include <cstddef>
#include <string>

#include "kelifc/server/load_options.h"

namespace KelIFC {

/// A reference in a statement.
struct FoundReference {
  const char* at = nullptr;   ///< its `#`
  std::size_t number = 0;     ///< that it refers to
  std::size_t attribute = 0;  ///< the position of the attribute that holds it, from 1; 0 if there
                              ///< is none because the instance is of several types
};

/// Finds the references in the text of a statement: the `#` and digits outside strings.
class ReferenceWalk {
 public:
  /// [text, end) is the right side of a statement as the file has it, in the notation of a dialect,
  /// with a NUL at `end`. It must outlive the walk.
  ReferenceWalk(const char* text, const char* end, STEP_DIALECT dialect);

  /// Moves to the next reference. Returns false if there is none.
  bool Next(FoundReference& found);

 private:
  bool SkipString();

  const char* at;
  const char* limit;
  STEP_DIALECT notation;
  bool isComplex;
  std::size_t depth = 0;
  std::size_t attribute = 1;
  std::string ignored;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REFERENCE_WALK_H_
