#ifndef TOOLS_KELIFC_LOSSES_H_
#define TOOLS_KELIFC_LOSSES_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/failure.h"

namespace command {

/// How many products of a building were lost.
inline std::string LossText(const KelIFC::Building& building) {
  const KelIFC::BuildingTotals& totals = building.totals;
  return std::to_string(totals.lost) + " of " + std::to_string(totals.products) +
         " products were lost";
}

/// Throws Failure with Status::kLost if a building has losses.
inline void RequireNoLoss(const std::string& file, const KelIFC::Building& building) {
  if (building.totals.lost > 0) throw Failure(Status::kLost, file, LossText(building));
}

}  // namespace command

#endif  // TOOLS_KELIFC_LOSSES_H_
