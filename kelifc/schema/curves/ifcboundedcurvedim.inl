INTEGER IfcBoundedCurveDim(const IfcBoundedCurve& curve) { return IfcCurveDim(curve); }
