// entity IfcPolyLoop

INTEGER IfcPolyLoop::_GetDim() const {
  const LIST<const IfcCartesianPoint*> points = GetPolygon();
  return points.GetEmpty() || points[1] == nullptr ? INTEGER(0) : points[1]->GetDim();
}
