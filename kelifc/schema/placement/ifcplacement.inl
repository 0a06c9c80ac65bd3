INTEGER IfcPlacement::_GetDim() const {
  const IfcCartesianPoint* point = GetLocation();
  return point == nullptr ? INTEGER(0) : point->GetDim();
}

INTEGER IfcPlacement::GetDim() const { return _GetDim(); }

void IfcPlacement::SetLocation(std::size_t number) { location = number; }

void IfcPlacement::SetLocation(IfcCartesianPoint& item) { location.SetReference(&item); }
