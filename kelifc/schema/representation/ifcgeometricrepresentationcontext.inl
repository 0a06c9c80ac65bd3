std::ostream& IfcGeometricRepresentationContext::Write(std::ostream& out) const {
  return WriteNext(IfcRepresentationContext::Write(out), coordinateSpaceDimension,
                   Scientific(precision), worldCoordinateSystem, trueNorth);
}
