#ifndef KELIFC_SERVER_STATEMENTS_H_
#define KELIFC_SERVER_STATEMENTS_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "kelifc/server/source_position.h"

namespace KelIFC {

class IfcServer;

// The two passes of a load, one statement at a time.

/// Splits a stream into statements. Passes each to RegisterStatement in the first pass and to
/// ParseStatement in the second, until one of them returns a value other than 0 or the stream ends.
///
/// The next byte of the stream has the position `from`, after the end of a statement.
void ScanFile(std::istream& in, IfcServer* server, bool firstPass, const SourcePosition& from = {});

/// What RegisterStatement returns if the release is found and several threads read what follows.
constexpr std::int16_t kReleaseFound = 3;

/// Handles one statement in the first pass: checks the first statement of a file, finds the release
/// in the header, and registers an empty instance for each `#n=` after it. Modifies the text.
/// Returns 0 to continue, 1 if the file is not a STEP file, 2 if its schema is unknown.
/// Can also return kReleaseFound.
std::int16_t RegisterStatement(IfcServer* server, char* statement);

/// Handles one statement in the second pass: the instance with its number parses the attributes.
/// Modifies the text. Returns 0.
std::int16_t ParseStatement(IfcServer* server, char* statement);

/// A statement `#n=...` cut in two at its first `=`.
struct Assignment {
  std::size_t number = 0;  ///< 0 if there is no `=`, or if the left side is not `#n`
  char* text = nullptr;    ///< the right side
};

/// Cuts a statement in two. Modifies the text.
Assignment CutAssignment(char* statement);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_STATEMENTS_H_
