std::ostream& IfcCartesianTransformationOperator3DnonUniform::Write(std::ostream& out) const {
  IfcCartesianTransformationOperator3D::Write(out);
  scale2.Write(out);
  return WriteNext(out, scale3);
}
