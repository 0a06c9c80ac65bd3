// entity IfcSiUnit

IfcDimensionalExponents IfcSiUnit::GetDimensions() const { return DimensionsForSiUnit(name); }

double IfcSiUnit::GetPrefixCoefficient() const { return CoefficientOfPrefix(prefix); }
