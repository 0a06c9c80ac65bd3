// entity IfcAttDrivenExtrudedSolid

namespace {

constexpr double kArcStep = std::numbers::pi / 32;
constexpr double kAngleTolerance = 0.001;
constexpr IfcTrimmingPreference kByPoint = IfcTrimmingPreference(1);

struct PlanPoint {
  double x;
  double y;
};

PlanPoint InPlan(const IfcCartesianPoint& point) {
  double numbers[2] = {};
  point.Coordinates().GetNumbers(numbers, 2);
  return {numbers[0], numbers[1]};
}

/// Adds the points of curves to an outline.
class OutlineWriter {
 public:
  explicit OutlineWriter(IfcPolyLine& outline) : outline(outline) {}

  void Add(const IfcCompositeCurve& curve) {
    const LIST<const IfcCompositeCurveSegment*> segments = curve.GetSegments();
    for (std::size_t j = 1; j <= segments.GetSize(); ++j) {
      const auto* parent = segments[j] == nullptr ? nullptr : segments[j]->GetParentCurve();
      const auto* piece = dynamic_cast<const IfcTrimmedCurve*>(parent);
      if (piece != nullptr && piece->GetMasterRepresentation() == kByPoint)
        AddPiece(*piece, j == 1);
    }
  }

 private:
  void AddPiece(const IfcTrimmedCurve& piece, bool isFirst) {
    const IfcCartesianPoint* first = piece.GetCartesianTrim1();
    const IfcCartesianPoint* second = piece.GetCartesianTrim2();
    if (first == nullptr || second == nullptr) return;
    const IfcCurve* basis = piece.GetBasisCurve();
    const bool sense = piece.GetSenseAgreement();
    if (const auto* circle = dynamic_cast<const IfcCircle*>(basis)) {
      const IfcAxis2Placement* position = circle->GetPosition();
      const IfcCartesianPoint* centre = position == nullptr ? nullptr : position->GetLocation();
      if (centre == nullptr) return;
      if (isFirst) AddTrim(*first);
      AddArc(InPlan(*centre), InPlan(*first), InPlan(*second), sense);
      AddTrim(*second);
    } else if (dynamic_cast<const IfcLine*>(basis) != nullptr) {
      // If the sense is reversed, the second trim is at both ends of the first piece.
      if (isFirst) AddTrim(sense ? *first : *second);
      AddTrim(*second);
    }
  }

  /// Adds the inner points of the chords of an arc, at least one. The arc is one turn at most. It
  /// ends if an angle is NaN.
  void AddArc(PlanPoint centre, PlanPoint first, PlanPoint second, bool sense) {
    double x = first.x - centre.x;
    double y = first.y - centre.y;
    double from = std::atan2(y, x);
    double to = std::atan2(second.y - centre.y, second.x - centre.x);
    if (sense && to < from) to += 2 * std::numbers::pi;
    if (!sense && from < to) to -= 2 * std::numbers::pi;
    const double step = sense ? kArcStep : -kArcStep;
    const double sine = std::sin(step);
    const double cosine = std::cos(step);
    double angle = from + step;
    bool isAtEnd = false;
    do {
      const double turned = x * cosine - y * sine;
      y = x * sine + y * cosine;
      x = turned;
      outline.AddOwnPoint(new IfcCartesianPoint(centre.x + x, centre.y + y));
      angle += step;
      isAtEnd = sense ? !(angle <= to - kAngleTolerance) : !(angle >= to + kAngleTolerance);
    } while (!isAtEnd);
  }

  // The outline owns the points that are made for it, so that the model does not grow.
  void AddTrim(const IfcCartesianPoint& point) {
    if (FindNumber(outline.GetServer(), &point) != 0) {
      outline.AddPoint(point);
    } else {
      outline.AddOwnPoint(new IfcCartesianPoint(point));
    }
  }

  IfcPolyLine& outline;
};

}  // namespace

const IfcPolyLine* IfcAttDrivenExtrudedSolid::GetPath() const {
  auto* self = const_cast<IfcAttDrivenExtrudedSolid*>(this);
  IfcPolyLine& outline = self->path.Get();
  outline.SetServer(self->GetServer());
  const LIST<const IfcAttDrivenExtrudedSegment*> pieces = GetSegments();
  for (std::size_t i = 1; i <= pieces.GetSize(); ++i) {
    const auto* profile = pieces[i] == nullptr ? nullptr : pieces[i]->GetProfileDef();
    const IfcPolyLine* polyline = nullptr;
    if (const auto* arbitrary = dynamic_cast<const IfcArbitraryProfileDef*>(profile)) {
      const IfcBoundedCurve* curve = arbitrary->GetCurveForSurface();
      const auto* composite = dynamic_cast<const IfcCompositeCurve*>(curve);
      if (composite != nullptr) OutlineWriter(outline).Add(*composite);
      polyline = dynamic_cast<const IfcPolyLine*>(curve);
    } else if (const auto* rectangle = dynamic_cast<const IfcRectangleProfileDef*>(profile)) {
      polyline = rectangle->GetCurveForSurface();
    }
    if (polyline != nullptr) outline = *polyline;
  }
  return &outline;
}

// entity IfcSweptDiskSolid

namespace {

/// Returns the instance number that a reference to the value has, which is 0 for an inline value.
double NumberInPlace(IfcReal* value, IfcUnknown& owner) {
  if (value == nullptr) return 0.0;
  MEMBER member;
  member.Embed(value, owner);
  return static_cast<double>(static_cast<std::size_t>(member));
}

}  // namespace

void IfcSweptDiskSolid::SetStartParam(IfcReal* item) { startParam = NumberInPlace(item, *this); }

void IfcSweptDiskSolid::SetEndParam(IfcReal* item) { endParam = NumberInPlace(item, *this); }

// entity IfcHalfSpaceSolid

INTEGER IfcHalfSpaceSolid::GetDim() const { return INTEGER(3); }

// entity IfcElementarySurface

INTEGER IfcElementarySurface::GetDim() const {
  const auto* place = dynamic_cast<const IfcAxis2Placement3D*>(FindInstance(
      const_cast<IfcElementarySurface*>(this)->GetServer(), static_cast<std::size_t>(position)));
  return place == nullptr ? INTEGER(0) : place->GetDim();
}
