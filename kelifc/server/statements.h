#ifndef KELIFC_SERVER_STATEMENTS_H_
#define KELIFC_SERVER_STATEMENTS_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>

namespace KelIFC {

class IfcServer;

/// A statement `#n=...` cut in two at its first `=`.
struct Assignment {
  std::size_t number = 0;  ///< 0 if the statement is none or its left side is not `#n`
  char* text = nullptr;    ///< the right side
};

/// Cuts a statement. The `=` may become a NUL.
Assignment CutAssignment(char* statement);

// The two passes of a load, statement by statement.

/// Cuts a stream into statements and hands each to RegisterStatement in the first pass, to
/// ParseStatement in the second, until a handler answers other than 0 or the stream ends.
void ScanFile(std::istream& in, IfcServer* server, bool firstPass);

/// Takes one statement in the first pass: checks the first one of a file, finds the release in the
/// header, and registers an empty instance for each `#n=` behind it. The text is cut on the way.
/// Gives 0 to go on, 1 if the file is no STEP file, 2 if its schema is unknown.
std::int16_t RegisterStatement(IfcServer* server, char* statement);

/// Takes one statement in the second pass: lets the instance under its number read the attributes.
/// The text is cut on the way. Gives 0.
std::int16_t ParseStatement(IfcServer* server, char* statement);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_STATEMENTS_H_
