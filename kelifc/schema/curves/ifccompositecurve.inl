LOGICAL IfcCompositeCurve::_GetClosedCurve() const {
  const LIST<const IfcCompositeCurveSegment*> pieces = GetSegments();
  if (pieces.GetEmpty()) return LOGICAL(LOGICAL_UNKNOWN);
  const IfcCompositeCurveSegment* last = pieces[pieces.GetSize()];
  if (last == nullptr) return LOGICAL(LOGICAL_UNKNOWN);
  return LOGICAL(last->GetTransition() == IfcTransitionCode_DISCONTINUOUS ? LOGICAL_FALSE
                                                                          : LOGICAL_TRUE);
}

LOGICAL IfcCompositeCurve::GetClosedCurve() const { return _GetClosedCurve(); }

INTEGER IfcCompositeCurve::GetNSegments() const { return INTEGER(0); }
