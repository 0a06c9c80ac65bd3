#ifndef TOOLS_KELIFC_LOSSES_H_
#define TOOLS_KELIFC_LOSSES_H_

#include <string>

#include "kelifc/kelifc.h"

#include "tools/kelifc/failure.h"

namespace command {

/// Throws Failure with Status::kLost if a building has losses.
inline void RequireNoLoss(const std::string& file, const KelIFC::Building& building) {
  const KelIFC::BuildingTotals& totals = building.totals;
  if (totals.lost == 0) return;
  throw Failure(Status::kLost, file,
                std::to_string(totals.lost) + " of " + std::to_string(totals.products) +
                    " products were lost");
}

}  // namespace command

#endif  // TOOLS_KELIFC_LOSSES_H_
