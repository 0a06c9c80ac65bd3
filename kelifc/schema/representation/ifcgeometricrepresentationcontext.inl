std::ostream& IfcGeometricRepresentationContext::Write(std::ostream& out) const {
  IfcRepresentationContext::Write(out);
  WriteNext(out, coordinateSpaceDimension);
  PutChar(out, ',');
  PutText(out, FormatPrecision(precision).View());
  return WriteNext(out, worldCoordinateSystem, trueNorth);
}
