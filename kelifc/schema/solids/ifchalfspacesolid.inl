INTEGER IfcHalfSpaceSolid::GetDim() const { return INTEGER(3); }
