// entity IfcCurve

INTEGER IfcCurve::_GetDim() const { return IfcCurveDim(*this); }

// entity IfcPolyLine

void IfcPolyLine::AddPoint(std::size_t number) { points.Add(MEMBER(number)); }

void IfcPolyLine::AddPoint(IfcCartesianPoint* item) { AddMember(points, item, *this); }

void IfcPolyLine::AddPoint(const IfcCartesianPoint& item) { AddMember(points, &item, *this); }

// entity IfcPolyLine [..20]

void IfcPolyLine::AddOwnPoint(IfcCartesianPoint* item) {
  if (item == nullptr) return;
  MEMBER member;
  member.Embed(item, *this);
  points.Add(member);
}

// entity IfcCompositeCurve

LOGICAL IfcCompositeCurve::_GetClosedCurve() const {
  const LIST<const IfcCompositeCurveSegment*> pieces = GetSegments();
  if (pieces.GetEmpty()) return LOGICAL(LOGICAL_UNKNOWN);
  const IfcCompositeCurveSegment* last = pieces[pieces.GetSize()];
  if (last == nullptr) return LOGICAL(LOGICAL_UNKNOWN);
  return LOGICAL(last->GetTransition() == IfcTransitionCode_DISCONTINUOUS ? LOGICAL_FALSE
                                                                          : LOGICAL_TRUE);
}

INTEGER IfcCompositeCurve::GetNSegments() const { return INTEGER(0); }

// entity IfcCompositeCurveSegment

INTEGER IfcCompositeCurveSegment::_GetDim() const {
  const IfcCurve* curve = GetParentCurve();
  return curve == nullptr ? INTEGER(0) : IfcCurveDim(*curve);
}

// entity IfcTrimmedCurve

namespace {

constexpr IfcTrimmingPreference kCartesian = IfcTrimmingPreference(1);

/// Returns the first element of a trim that is of a class, or null if there is none.
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

// function IfcCurveDim

// A trimmed or composite curve leads to another curve. The dimension is 3 for a cycle and for a
// chain that is longer than those of real curves.
INTEGER IfcCurveDim(const IfcCurve& curve) {
  constexpr int kLongestChain = 64;
  const INTEGER untold(3);
  const IfcCurve* current = &curve;
  for (int step = 0; step < kLongestChain; ++step) {
    if (const auto* polyLine = CachedCast<IfcPolyLine>(current)) {
      const auto points = polyLine->GetPoints();
      return points.GetEmpty() || points[1] == nullptr ? untold : points[1]->GetDim();
    }
    if (const auto* line = CachedCast<IfcLine>(current)) {
      const IfcCartesianPoint* point = line->GetPnt();
      return point == nullptr ? untold : point->GetDim();
    }
    if (const auto* conic = CachedCast<IfcConic>(current)) {
      const IfcAxis2Placement* position = conic->GetPosition();
      return position == nullptr ? untold : position->GetDim();
    }
    if (const auto* trimmed = CachedCast<IfcTrimmedCurve>(current)) {
      current = trimmed->GetBasisCurve();
      if (current == nullptr) return INTEGER(0);
      continue;
    }
    const auto* composite = CachedCast<IfcCompositeCurve>(current);
    if (composite == nullptr) return untold;
    const auto segments = composite->GetSegments();
    if (segments.GetEmpty() || segments[1] == nullptr) return untold;
    current = segments[1]->GetParentCurve();
    if (current == nullptr) return INTEGER(0);
  }
  return untold;
}

// function IfcBoundedCurveDim

INTEGER IfcBoundedCurveDim(const IfcBoundedCurve& curve) { return IfcCurveDim(curve); }

// function AddVectorToPoint

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
