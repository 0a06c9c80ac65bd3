#include "kelifc/core/value.h"

#include "kelifc/core/parameter_value.h"

namespace KelIFC {

IfcValue::~IfcValue() = default;
const char* IfcValue::GetItemName() { return "IfcValue"; }
const char* IfcValue::GetStepName() const { return GetItemName(); }

bool IsTypedValue(const IfcUnknown* instance) {
  return dynamic_cast<const IfcValue*>(instance) != nullptr ||
         dynamic_cast<const IfcParameterValue*>(instance) != nullptr;
}

}  // namespace KelIFC
