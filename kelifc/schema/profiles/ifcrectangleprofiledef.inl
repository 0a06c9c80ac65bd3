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
