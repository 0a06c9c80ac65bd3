#include "kelifc/import/model/unit_facts.h"

namespace KelIFC {

double LengthScale(const std::vector<UnitFacts>& units) {
  for (const UnitFacts& unit : units) {
    if (!unit.isLength) continue;
    return unit.factor == 0.0 ? unit.coefficient : unit.coefficient * unit.factor;
  }
  return 1.0;
}

}  // namespace KelIFC
