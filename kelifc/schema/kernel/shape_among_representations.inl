IfcProductDefinitionShape* IfcProduct::_GetShapeRepresentation() {
  const SET<IfcProductRepresentation*> all = _GetRepresentations();
  for (std::size_t i = 1; i <= all.GetSize(); ++i) {
    auto* shape = dynamic_cast<IfcProductDefinitionShape*>(all[i]);
    if (shape != nullptr) return shape;
  }
  return nullptr;
}

const IfcProductDefinitionShape* IfcProduct::GetShapeRepresentation() const {
  return const_cast<IfcProduct*>(this)->_GetShapeRepresentation();
}

void IfcProduct::AddShapeRepresentation(IfcShapeRepresentation* item) {
  IfcProductDefinitionShape* shape = _GetShapeRepresentation();
  if (shape != nullptr) shape->AddShapeRepresentation(item);
}
