namespace {

/// What a reference to the value would be numbered: a value in place has no number.
double NumberInPlace(IfcReal* value, IfcUnknown& owner) {
  if (value == nullptr) return 0.0;
  MEMBER member;
  member.Embed(value, owner);
  return static_cast<double>(static_cast<std::size_t>(member));
}

}  // namespace

void IfcSweptDiskSolid::SetStartParam(IfcReal* item) { startParam = NumberInPlace(item, *this); }

void IfcSweptDiskSolid::SetEndParam(IfcReal* item) { endParam = NumberInPlace(item, *this); }
