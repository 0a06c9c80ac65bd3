IfcVector::IfcVector(IfcServer* server, IfcDirection* direction, IfcLengthMeasure magnitude) {
  SetServer(server);
  SetOrientation(direction);
  SetMagnitude(magnitude);
}

IfcVector::IfcVector(IfcDirection* direction, IfcLengthMeasure magnitude) {
  SetOrientation(direction);
  SetMagnitude(magnitude);
}

INTEGER IfcVector::GetDim() const {
  const IfcDirection* direction = GetOrientation();
  return direction == nullptr ? INTEGER(0) : direction->GetDim();
}

void IfcVector::SetOrientation(IfcDirection* item) { orientation.Embed(item, *this); }
