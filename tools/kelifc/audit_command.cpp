#include "tools/kelifc/audit_format.h"
#include "tools/kelifc/commands.h"
#include "tools/kelifc/losses.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"

namespace command {

void RunAudit(const AuditOptions& options) {
  const KelIFC::Building building =
      LoadBuilding(options.model, options.reading, KelIFC::KeptBodies::kNone);
  Output output(options.output);
  if (options.json) {
    WriteAuditJson(output, options.model, building);
  } else {
    output.Write(AuditTable(options.model, building));
  }
  output.Close();
  if (options.failOnLoss) RequireNoLoss(options.model, building);
}

}  // namespace command
