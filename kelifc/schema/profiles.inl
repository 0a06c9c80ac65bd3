// entity IfcProfileDef

const char* IfcProfileDef::Parse(const char* cursor) {
  cursor = ParseRecord(IfcUnknown::Parse(cursor), Dropped<ENUM>(), profileName);
  profileType = IfcProfileTypeEnum_AREA;
  return cursor;
}

std::ostream& IfcProfileDef::Write(std::ostream& out) const {
  const bool isCurve = profileType == IfcProfileTypeEnum_CURVE;
  return WriteFirst(IfcUnknown::Write(out), Literal(isCurve ? ".CURVE." : ".AREA."), profileName);
}

// entity IfcRectangleProfileDef [..20]

const IfcPolyLine* IfcRectangleProfileDef::GetCurveForSurface() const {
  auto* self = const_cast<IfcRectangleProfileDef*>(this);
  IfcServer* server = self->GetServer();
  if (server == nullptr) return nullptr;
  if (static_cast<std::size_t>(outlineCurve) == 0) {
    const IfcPolyLine* outline = IfcRectangleProfileIntoCurve(server, *this);
    if (outline == nullptr) return nullptr;
    self->outlineCurve = FindNumber(server, outline);
  }
  return dynamic_cast<const IfcPolyLine*>(
      FindInstance(server, static_cast<std::size_t>(outlineCurve)));
}

// function IfcRectangleProfileIntoCurve

namespace {

/// Returns the next corner, which is `length` away along `direction`.
IfcCartesianPoint* NextCorner(IfcServer* server, const IfcCartesianPoint& corner,
                              const IfcDirection& direction, const IfcLengthMeasure& length) {
  auto* along = new IfcDirection(direction);
  const IfcVector side(server, along, length);  // owns the direction
  return AddVectorToPoint(server, corner, side);
}

}  // namespace

IfcPolyLine* IfcRectangleProfileIntoCurve(IfcServer* server,
                                          const IfcRectangleProfileDef& rectangle) {
  const IfcAxis2Placement2D* position = rectangle.GetPosition();
  const IfcCartesianPoint* location = position == nullptr ? nullptr : position->GetLocation();
  if (server == nullptr || location == nullptr) return nullptr;
  const LIST<const IfcDirection*> axes = position->GetP();
  if (axes[1] == nullptr) return nullptr;
  IfcDirection direction(*axes[1]);

  auto* outline = new IfcPolyLine;
  AddInstance(server, outline);
  auto first = std::make_unique<IfcCartesianPoint>(*location);
  std::array<const IfcCartesianPoint*, 3> corners = {};
  const std::array sides = {rectangle.GetXDim(), rectangle.GetYDim(), rectangle.GetXDim()};
  const IfcCartesianPoint* corner = first.get();
  for (std::size_t i = 0; i < corners.size(); ++i) {
    corners[i] = corner = NextCorner(server, *corner, direction, sides[i]);
    direction = IfcOrthogonalComplement(&direction);
  }
  const std::size_t firstNumber = AddInstance(server, first.release());
  outline->AddPoint(firstNumber);
  for (const IfcCartesianPoint* each : corners) outline->AddPoint(*each);
  outline->AddPoint(firstNumber);
  return outline;
}
