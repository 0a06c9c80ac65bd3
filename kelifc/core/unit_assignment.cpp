#include "kelifc/core/unit_assignment.h"

#include "kelifc/core/references/model.h"
#include "kelifc/core/references/resolve.h"

namespace KelIFC {

IfcUnitAssignment::IfcUnitAssignment() = default;
IfcUnitAssignment::~IfcUnitAssignment() = default;
const char* IfcUnitAssignment::GetItemName() { return "IfcUnitAssignment"; }
const char* IfcUnitAssignment::GetStepName() const { return GetItemName(); }

const char* IfcUnitAssignment::Parse(const char* text) {
  return units.Parse(IfcUnknown::Parse(text));
}

std::ostream& IfcUnitAssignment::Write(std::ostream& out) const {
  return units.Write(IfcUnknown::Write(out));
}

SET<const IfcUnit*> IfcUnitAssignment::GetUnits() const {
  SET<const IfcUnit*> view;
  // Only a non-const model resolves numbers. Resolving does not change the instance.
  ResolveMemberSet(view, units, const_cast<IfcUnitAssignment*>(this)->GetServer());
  return view;
}

void IfcUnitAssignment::AddUnit(IfcUnit* unit) {
  const std::size_t number = FindNumber(GetServer(), dynamic_cast<IfcUnknown*>(unit));
  if (number != 0) units.Add(MEMBER(number));
}

}  // namespace KelIFC
