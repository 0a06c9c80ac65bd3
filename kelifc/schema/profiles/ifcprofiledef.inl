const char* IfcProfileDef::Parse(const char* cursor) {
  cursor = ParseRecord(IfcUnknown::Parse(cursor), Dropped<ENUM>(), profileName);
  profileType = IfcProfileTypeEnum_AREA;
  return cursor;
}

std::ostream& IfcProfileDef::Write(std::ostream& out) const {
  const bool isCurve = profileType == IfcProfileTypeEnum_CURVE;
  return WriteFirst(IfcUnknown::Write(out), Literal(isCurve ? ".CURVE." : ".AREA."), profileName);
}
