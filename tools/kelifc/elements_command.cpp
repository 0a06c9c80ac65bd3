#include "tools/kelifc/commands.h"
#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/losses.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"

namespace command {

void RunElements(const ElementsOptions& options) {
  const bool hasBodies = options.json && options.bodies;
  const KelIFC::Building building = LoadBuilding(
      options.model, options.reading,
      hasBodies ? KelIFC::KeptBodies::kAll : KelIFC::KeptBodies::kNone, ReadModel::kKeptUntilExit);
  Output output(options.output);
  if (options.json) {
    WriteElementsJson(output, options.model, building, hasBodies);
  } else if (options.csv) {
    WriteElementsCsv(output, building, options.csvRaw);
  } else {
    output.Write(ElementsTable(options.model, building));
  }
  output.Close();
  if (options.failOnLoss) RequireNoLoss(options.model, building);
}

}  // namespace command
