// A trimmed or composite curve leads to another one; a chain that is longer than any real curve, or
// that meets itself, tells nothing.
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
