#ifndef KELIFC_IMPORT_MODEL_UNIT_FACTS_H_
#define KELIFC_IMPORT_MODEL_UNIT_FACTS_H_

#include <vector>

namespace KelIFC {

/// A unit of the model: an SI unit, or a unit that is converted to an SI unit.
struct UnitFacts {
  /// Whether the SI unit measures lengths.
  bool isLength = false;

  /// The coefficient of the SI unit's prefix, for example 0.001 for MILLI.
  double coefficient = 1.0;

  /// The value of this unit in the SI unit; 0 for the SI unit itself, and if the value is unset.
  double factor = 0.0;
};

/// Returns the factor from the length unit of the file to metres. The first length unit counts; the
/// factor is 1 if there is none.
double LengthScale(const std::vector<UnitFacts>& units);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_UNIT_FACTS_H_
