#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "kelifc/core/step_file_schema.h"
#include "kelifc/server/block_size.h"
#include "kelifc/server/escape_notes.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statements.h"

// One pass of a load through its file.

namespace KelIFC {
namespace {

// A file without a `;` in this many bytes is not a STEP file. Without this limit, a load would read
// an entire video or archive into memory in search of one.
constexpr std::size_t kHeadLimit = std::size_t{1024} * 1024;

// A limit as a number of bytes or items. 0 is no limit.
std::size_t AsSize(std::uint64_t limit) {
  return limit == 0 ? SIZE_MAX : static_cast<std::size_t>(std::min<std::uint64_t>(limit, SIZE_MAX));
}

}  // namespace

// Reads the statements of a file for one pass, until the file ends, the pass ends or a limit is
// reached.
template <class AnyScanner>
void ScanStatements(IfcServer& server, AnyScanner& scanner, bool firstPass) {
  IfcServer::LoadState& load = server.load;
  const auto handle = firstPass ? RegisterStatement : ParseStatement;
  const std::size_t longest = AsSize(load.limits.maxStatementBytes);
  const std::size_t mostItems = AsSize(load.limits.maxInstances);
  load.scanner = &scanner;
  scanner.SetLimit(firstPass && !server.headerSeen ? kHeadLimit : longest);
  while (char* statement = scanner.Next()) {
    scanner.SetLimit(longest);
    if (load.order.IsLost()) server.idToIndex.PrefetchNumber(scanner.PeekNumber());
    load.isBeyondLimit = scanner.GetLength() > longest;
    if (load.isBeyondLimit) return server.NoteFailure(scanner.GetPlace());
    const std::int16_t outcome = handle(&server, statement);
    if (outcome == kReleaseFound) {
      load.stoppedAt = scanner.GetEndPosition();
      return;
    }
    if (outcome != 0) return server.NoteFailure(scanner.GetPlace());
    load.isBeyondLimit = server.items.size() > mostItems;
    if (load.isBeyondLimit) return server.NoteFailure(scanner.GetPlace());
    load.statementBytes += scanner.GetLength();
    if (scanner.GetBytesRead() == load.bytesReported) continue;
    if (firstPass && load.threads > 1) load.cuts.push_back(scanner.GetEndPosition());
    if (!server.GoesOn(scanner.GetBytesRead())) return server.NoteFailure(scanner.GetPlace());
  }
  load.isBeyondLimit = (scanner.IsBeyondLimit() && server.headerSeen) || !server.IsWithinMemory();
  if (load.isBeyondLimit) server.NoteFailure(scanner.GetPlace());
}

void ScanFile(std::istream& in, IfcServer* server, bool firstPass, const SourcePosition& from) {
  IfcServer::LoadState& load = server->load;
  if (load.dialect == STEP_DIALECT_CLASSIC) {
    Scanner scanner(in, from, GetBlockSize());
    ScanStatements(*server, scanner, firstPass);
    return;
  }
  IsoScanner scanner(in, from, GetBlockSize());
  EscapeNotes notes(scanner, load.findings, load.statementNumber);
  IsoStatementReader reader(&notes);
  load.reader = &reader;
  if (firstPass) scanner.SetFindings(load.findings);
  ScanStatements(*server, scanner, firstPass);
  load.reader = nullptr;
}

}  // namespace KelIFC
