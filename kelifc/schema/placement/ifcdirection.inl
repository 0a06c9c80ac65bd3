IfcDirection::IfcDirection(INTEGER dimension) {
  // The ratios are unset; a negative dimension gives none.
  const int count = dimension;
  directionRatios.Resize(count > 0 ? static_cast<std::size_t>(count) : 0);
}

IfcDirection::IfcDirection(REAL x, REAL y) {
  directionRatios.Reserve(2);
  directionRatios.Add(x);
  directionRatios.Add(y);
}

IfcDirection::IfcDirection(REAL x, REAL y, REAL z) {
  directionRatios.Reserve(3);
  directionRatios.Add(x);
  directionRatios.Add(y);
  directionRatios.Add(z);
}

INTEGER IfcDirection::GetDim() const {
  return INTEGER(static_cast<int>(directionRatios.GetSize()));
}

LIST<REAL> IfcDirection::GetDirectionRatios() const {
  LIST<REAL> ratios;
  ratios.Reserve(directionRatios.GetSize());
  for (std::size_t i = 1; i <= directionRatios.GetSize(); ++i)
    ratios.Add(directionRatios.GetItem(i));
  return ratios;
}

INTEGER IfcDirection::GetRatios(double* ratios, std::size_t count) const {
  directionRatios.GetNumbers(ratios, count);
  return GetDim();
}

void IfcDirection::SetDirectionRatio(std::size_t index, REAL value) {
  directionRatios.SetItem(index, value);
}
