INTEGER IfcCurve::_GetDim() const { return IfcCurveDim(*this); }

INTEGER IfcCurve::GetDim() const { return _GetDim(); }
