#ifndef KELIFC_SCHEMA_COMMON_H_
#define KELIFC_SCHEMA_COMMON_H_

// The declarations that the header of each family needs in addition to the value classes.

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

#include "kelifc/schema/dimensional_exponents.h"

namespace KelIFC {

class IfcActorSelect;
class IfcBooleanOperand;
class IfcBoundingBox;
class IfcCartesianPoint;
class IfcGeometricRepresentationItem;
class IfcGeometricSetSelect;
class IfcMaterialSelect;
class IfcParameterValue;
class IfcPoint;
class IfcRepresentationItem;
class IfcServer;
class IfcSolidModel;
class IfcSurface;
class IfcTrimmingSelect;
class IfcUnit;
class IfcUnitAssignment;
class IfcValue;

}  // namespace KelIFC

#endif  // KELIFC_SCHEMA_COMMON_H_
