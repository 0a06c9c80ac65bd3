const char* IfcProfileDef::Parse(const char* cursor) {
  cursor = ParseRecord(IfcUnknown::Parse(cursor), Dropped<ENUM>(), profileName);
  profileType = IfcProfileTypeEnum_AREA;
  return cursor;
}
