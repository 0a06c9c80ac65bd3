#include "tools/kelifc/audit_format.h"
#include "tools/kelifc/commands.h"
#include "tools/kelifc/losses.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"

namespace command {

void RunAudit(const AuditOptions& options) {
  const KelIFC::Building building =
      LoadBuilding(options.model, options.reading,
                   options.exports ? KelIFC::KeptBodies::kOfBodies : KelIFC::KeptBodies::kNone,
                   ReadModel::kKeptUntilExit);
  AuditedExports exports;
  if (options.exports) exports = CountExports(building, options.model);
  Output output(options.output);
  if (options.json) {
    WriteAuditJson(output, options.model, building, exports);
  } else {
    output.Write(AuditTable(options.model, building, exports));
  }
  output.Close();
  if (options.failOnLoss) RequireNoLoss(options.model, building);
}

}  // namespace command
