#include "kelifc/core/value.h"

namespace KelIFC {

IfcValue::~IfcValue() = default;
const char* IfcValue::GetItemName() { return "IfcValue"; }
const char* IfcValue::GetStepName() const { return GetItemName(); }

}  // namespace KelIFC
