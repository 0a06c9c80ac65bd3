#include "tools/kelifc/commands.h"
#include "tools/kelifc/diff_format.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"

namespace command {

void RunDiff(const DiffOptions& options) {
  constexpr const char* kStandardInput = "-";
  if (options.oldModel == kStandardInput && options.newModel == kStandardInput) {
    throw Failure(Status::kUsage, "only one of the models can be standard input");
  }
  constexpr auto kNoBodies = KelIFC::KeptBodies::kNone;
  const KelIFC::Building before = LoadBuilding(options.oldModel, options.reading, kNoBodies);
  const KelIFC::Building after = LoadBuilding(options.newModel, options.reading, kNoBodies);
  const KelIFC::BuildingDifference difference = Compare(before, after);
  Output output("");
  if (options.json) {
    WriteDifferenceJson(output, difference);
  } else {
    output.Write(DifferenceTable(difference, before, after));
  }
  output.Close();
}

}  // namespace command
