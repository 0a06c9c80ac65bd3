#ifndef KELIFC_CORE_UNIT_ASSIGNMENT_H_
#define KELIFC_CORE_UNIT_ASSIGNMENT_H_

#include <iosfwd>

#include "kelifc/core/selects.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The units that hold in a model.
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

  /// The units in order, null for a reference that leads to none; empty without a model.
  virtual SET<const IfcUnit*> GetUnits() const;
  /// Adds a unit; one that the model does not hold is dropped.
  virtual void AddUnit(IfcUnit* unit);

 protected:
  SET_OF_MEMBERS units{this};
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_UNIT_ASSIGNMENT_H_
