namespace {

constexpr IfcTrimmingPreference kCartesian = IfcTrimmingPreference(1);

/// The first element of a trim that is of a class, null if there is none.
template <class Type>
const Type* FirstOf(const SET_OF_MEMBERS& trims, const IfcUnknown& owner) {
  const auto elements = ViewOf<SET<const Type*>>(trims, owner);
  for (std::size_t i = 1; i <= elements.GetSize(); ++i) {
    if (elements[i] != nullptr) return elements[i];
  }
  return nullptr;
}

}  // namespace

const char* IfcTrimmedCurve::Parse(const char* cursor) {
  cursor = ParseRecord(IfcUnknown::Parse(cursor), basisCurve, trim1, trim2, senseAgreement);
  return ParseTrimmingPreference(masterRepresentation, cursor);
}

std::ostream& IfcTrimmedCurve::Write(std::ostream& out) const {
  const bool byPoint = masterRepresentation == kCartesian;
  return WriteFirst(IfcUnknown::Write(out), basisCurve, trim1, trim2, senseAgreement,
                    Literal(byPoint ? ".CARTESIAN." : ".PARAMETER."));
}

const IfcCartesianPoint* IfcTrimmedCurve::_GetCartesianTrim(const SET_OF_MEMBERS& trims) const {
  return FirstOf<IfcCartesianPoint>(trims, *this);
}

const IfcParameterValue* IfcTrimmedCurve::_GetParameterTrim(const SET_OF_MEMBERS& trims) const {
  return FirstOf<IfcParameterValue>(trims, *this);
}

const IfcCartesianPoint* IfcTrimmedCurve::GetCartesianTrim1() const {
  return _GetCartesianTrim(trim1);
}

const IfcCartesianPoint* IfcTrimmedCurve::GetCartesianTrim2() const {
  return _GetCartesianTrim(trim2);
}

const IfcParameterValue* IfcTrimmedCurve::GetParameterTrim1() const {
  return _GetParameterTrim(trim1);
}

const IfcParameterValue* IfcTrimmedCurve::GetParameterTrim2() const {
  return _GetParameterTrim(trim2);
}

void IfcTrimmedCurve::AddTrim1(IfcCartesianPoint* item) { EmbedMember(trim1, item, *this); }

void IfcTrimmedCurve::AddTrim1(IfcParameterValue* item) { EmbedMember(trim1, item, *this); }

void IfcTrimmedCurve::AddTrim2(IfcCartesianPoint* item) { EmbedMember(trim2, item, *this); }

void IfcTrimmedCurve::AddTrim2(IfcParameterValue* item) { EmbedMember(trim2, item, *this); }
