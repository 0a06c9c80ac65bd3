IfcCartesianPoint* AddVectorToPoint(IfcServer* server, const IfcCartesianPoint& point,
                                    const IfcVector& vector) {
  if (server == nullptr) return nullptr;
  const INTEGER dimension = point.GetDim();
  auto* moved = new IfcCartesianPoint(dimension);
  AddInstance(server, moved);
  const IfcDirection* orientation = vector.GetOrientation();
  if (orientation == nullptr || int{vector.GetDim()} != int{dimension}) return moved;
  const LIST<IfcLengthMeasure> from = point.GetCoordinates();
  const LIST<REAL> ratios = orientation->GetDirectionRatios();
  const double magnitude = vector.GetMagnitude();
  for (std::size_t i = 1; i <= from.GetSize(); ++i) {
    moved->SetCoordinates(i, from[i] + magnitude * ratios[i]);
  }
  return moved;
}
