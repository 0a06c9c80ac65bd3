#ifndef TOOLS_KELIFC_AUDIT_FORMAT_H_
#define TOOLS_KELIFC_AUDIT_FORMAT_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/output.h"

namespace command {

/// Writes the audit of a building as one JSON object. `file` is the path as the user gave it.
void WriteAuditJson(Output& output, const std::string& file, const KelIFC::Building& building);

/// The audit of a building as tables for a person.
std::string AuditTable(const std::string& file, const KelIFC::Building& building);

}  // namespace command

#endif  // TOOLS_KELIFC_AUDIT_FORMAT_H_
