IfcDirection IfcOrthogonalComplement(const IfcDirection* direction) {
  if (direction == nullptr) return IfcDirection();
  IfcDirection complement(*direction);
  const LIST<REAL> ratios = direction->GetDirectionRatios();
  if (ratios.GetSize() != 2) return complement;
  const double x = ratios[1];
  const double y = ratios[2];
  const double rightAngle = std::acos(-1.0) / 2;
  const double sine = std::sin(rightAngle);
  const double cosine = std::cos(rightAngle);
  complement.SetDirectionRatio(1, x * cosine - y * sine);
  complement.SetDirectionRatio(2, x * sine + y * cosine);
  return complement;
}
