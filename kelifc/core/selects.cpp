#include "kelifc/core/selects.h"

namespace KelIFC {

IfcMaterialSelect::~IfcMaterialSelect() = default;
const char* IfcMaterialSelect::GetItemName() { return "IfcMaterialSelect"; }
const char* IfcMaterialSelect::GetStepName() const { return GetItemName(); }

IfcActorSelect::~IfcActorSelect() = default;
const char* IfcActorSelect::GetItemName() { return "IfcActorSelect"; }
const char* IfcActorSelect::GetStepName() const { return GetItemName(); }

IfcTrimmingSelect::~IfcTrimmingSelect() = default;
IfcBooleanOperand::~IfcBooleanOperand() = default;
IfcGeometricSetSelect::~IfcGeometricSetSelect() = default;
IfcUnit::~IfcUnit() = default;

}  // namespace KelIFC
