#ifndef KELIFC_IMPORT_MODEL_UNIT_FACTS_H_
#define KELIFC_IMPORT_MODEL_UNIT_FACTS_H_

#include <vector>

namespace KelIFC {

/// What the model says of one of its units.
struct UnitFacts {
  /// An SI unit of lengths, or a unit that is converted to one.
  bool isLength = false;

  /// The coefficient of the prefix of that SI unit: 0.001 for MILLI.
  double coefficient = 1.0;

  /// How many of the SI unit make up the unit; 0 if it is the SI unit, or the model does not tell.
  double factor = 0.0;
};

/// The factor from lengths of the file to metres: that of the first length unit, 1 without one.
double LengthScale(const std::vector<UnitFacts>& units);

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_MODEL_UNIT_FACTS_H_
