#ifndef TOOLS_KELIFC_AUDIT_FORMAT_H_
#define TOOLS_KELIFC_AUDIT_FORMAT_H_

#include <optional>
#include <string>
#include <vector>

#include "kelifc/kelifc.h"

#include "tools/kelifc/output.h"
#include "tools/kelifc/write_export.h"

namespace command {

/// What the exports of a building hold. None if the user did not ask for it.
using AuditedExports = std::optional<std::vector<CountedExport>>;

/// Writes the audit of a building as one JSON object. `file` is the path as the user gave it.
void WriteAuditJson(Output& output, const std::string& file, const KelIFC::Building& building,
                    const AuditedExports& exports);

/// The audit of a building as tables for a person.
std::string AuditTable(const std::string& file, const KelIFC::Building& building,
                       const AuditedExports& exports);

}  // namespace command

#endif  // TOOLS_KELIFC_AUDIT_FORMAT_H_
