#include <cstdint>
#include <istream>
#include <memory>
#include <optional>
#include <utility>

#include "kelifc/server/content_hash.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/model_source.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statement_check.h"
#include "kelifc/server/statements.h"

// The part of a load report that a load does not collect, because that would take too long. It
// comes from the source alone, because the host may have changed the model.

namespace KelIFC {
namespace {

template <class AnyScanner, class Visit>
void VisitStatements(std::istream& in, Visit visit) {
  AnyScanner scanner(in);
  while (char* statement = scanner.Next()) {
    const Assignment assignment = CutAssignment(statement);
    if (assignment.number != 0) visit(scanner, assignment);
  }
}

// Calls `visit` with the scanner and the assignment of each numbered statement. Returns the hash of
// the source, or nothing if the source cannot be read.
template <class Visit>
std::optional<std::uint64_t> VisitSource(const ModelSource& source, STEP_DIALECT dialect,
                                         Visit visit) {
  const std::unique_ptr<std::istream> in = source.Open();
  if (!in) return std::nullopt;
  HashedInput hashed(*in);
  if (dialect == STEP_DIALECT_ISO) {
    VisitStatements<IsoScanner>(hashed, visit);
  } else {
    VisitStatements<Scanner>(hashed, visit);
  }
  if (hashed.bad()) return std::nullopt;
  return hashed.GetHash().GetValue();
}

}  // namespace

bool IfcServer::CheckModel() {
  if (source == nullptr || report.isChecked) return source != nullptr;
  LoadReport checked = report;
  StatementCheck check(release, dialect, checked);
  const auto note = [&](const ScanBuffer&, const Assignment& statement) {
    check.NoteStatement(statement);
  };
  const auto examine = [&](const ScanBuffer& scanner, const Assignment& statement) {
    check.CheckStatement(scanner, statement);
  };
  report.hasSourceChanged = false;
  const auto first = VisitSource(*source, dialect, note);
  const auto second = first ? VisitSource(*source, dialect, examine) : std::nullopt;
  if (!second) return false;
  report.hasSourceChanged = first != sourceHash || second != sourceHash;
  if (report.hasSourceChanged) return false;
  checked.hasSourceChanged = false;
  checked.isChecked = true;
  report = std::move(checked);
  return true;
}

}  // namespace KelIFC
