#include <istream>
#include <memory>
#include <utility>

#include "kelifc/server/detail/number_index.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/model_source.h"
#include "kelifc/server/reference_walk.h"
#include "kelifc/server/report_collector.h"
#include "kelifc/server/scanner.h"
#include "kelifc/server/statements.h"

// The part of a load report that a load does not collect, because it would take too long. It reads
// the source again, and nothing of the model, which the host may have changed.

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

// Calls `visit` with the scanner and the assignment of each numbered statement. Returns false if
// the source cannot be read.
template <class Visit>
bool VisitSource(const ModelSource& source, STEP_DIALECT dialect, Visit visit) {
  const std::unique_ptr<std::istream> in = source.Open();
  if (!in) return false;
  if (dialect == STEP_DIALECT_ISO) {
    VisitStatements<IsoScanner>(*in, visit);
  } else {
    VisitStatements<Scanner>(*in, visit);
  }
  return !in->bad();
}

}  // namespace

bool IfcServer::CheckModel() {
  if (source == nullptr || report.isChecked) return source != nullptr;
  detail::NumberIndex stated;
  LoadReport checked = report;
  const auto note = [&](const ScanBuffer&, const Assignment& statement) {
    stated.Set(statement.number, 0);
  };
  const auto check = [&](const ScanBuffer& scanner, const Assignment& statement) {
    ReferenceWalk walk(statement.text, scanner.GetTextEnd(), dialect);
    for (FoundReference found; walk.Next(found);) {
      if (stated.Find(found.number) != detail::NumberIndex::kNone) continue;
      const std::string entity = EntityNameAt(statement.text);
      const auto offset = static_cast<std::size_t>(found.at - scanner.GetText());
      checked.findings.Note(LoadFinding::kDanglingReference, scanner.GetPlace(offset),
                            {statement.number, entity, found.attribute});
      ++checked.danglingByAttribute[{entity, found.attribute}];
    }
  };
  if (!VisitSource(*source, dialect, note) || !VisitSource(*source, dialect, check)) return false;
  checked.isChecked = true;
  report = std::move(checked);
  return true;
}

}  // namespace KelIFC
