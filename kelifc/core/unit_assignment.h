#ifndef KELIFC_CORE_UNIT_ASSIGNMENT_H_
#define KELIFC_CORE_UNIT_ASSIGNMENT_H_

#include <iosfwd>

#include "kelifc/core/selects.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The units that are valid in a model.
class KELIFC_API IfcUnitAssignment : public IfcUnknown {
 public:
  IfcUnitAssignment();
  IfcUnitAssignment(const IfcUnitAssignment&) = default;
  IfcUnitAssignment& operator=(const IfcUnitAssignment&) = default;
  ~IfcUnitAssignment() override;

  static const char* GetItemName();
  const char* GetStepName() const override;
  const char* Parse(const char* text) override;
  std::ostream& Write(std::ostream& out) const override;

  /// Returns the units in order, with null for a reference that does not resolve to a unit. Returns
  /// an empty set if the assignment has no model. The units belong to the model.
  virtual SET<const IfcUnit*> GetUnits() const;
  /// Adds a unit of the model. A unit that the model does not hold is not added.
  virtual void AddUnit(IfcUnit* unit);

 protected:
  SET_OF_MEMBERS units{this};
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_UNIT_ASSIGNMENT_H_
