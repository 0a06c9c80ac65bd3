INTEGER IfcCompositeCurveSegment::_GetDim() const {
  const IfcCurve* curve = GetParentCurve();
  return curve == nullptr ? INTEGER(0) : IfcCurveDim(*curve);
}

INTEGER IfcCompositeCurveSegment::GetDim() const { return _GetDim(); }
