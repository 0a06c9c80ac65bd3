INTEGER IfcElementarySurface::GetDim() const {
  const auto* place = dynamic_cast<const IfcAxis2Placement3D*>(FindInstance(
      const_cast<IfcElementarySurface*>(this)->GetServer(), static_cast<std::size_t>(position)));
  return place == nullptr ? INTEGER(0) : place->GetDim();
}
