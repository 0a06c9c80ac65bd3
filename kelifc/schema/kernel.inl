// entity IfcRoot [2x..]

// A text that is not a valid identifier does not change the zeros.
_GUID IfcRoot::GetGlobalGUID() const {
  _GUID guid = {};
  DecodeGlobalId64(globalId.GetChars(), guid);
  return guid;
}

void IfcRoot::SetGlobalGUID(const _GUID& guid) {
  char text[30];
  if (EncodeGlobalId64(guid, text, sizeof text) != nullptr) globalId = text;
}

// entity IfcProduct [151]

void IfcProduct::AddShapeRepresentation(IfcShapeRepresentation* item) {
  auto* shape = InstanceOf<IfcProductShape>(productShape);
  if (shape != nullptr) shape->AddShapeRepresentation(item);
}

// entity IfcProduct [20]

IfcProductDefinitionShape* IfcProduct::_GetShapeRepresentation() {
  const SET<IfcProductRepresentation*> all = _GetRepresentations();
  for (std::size_t i = 1; i <= all.GetSize(); ++i) {
    auto* shape = dynamic_cast<IfcProductDefinitionShape*>(all[i]);
    if (shape != nullptr) return shape;
  }
  return nullptr;
}

void IfcProduct::AddShapeRepresentation(IfcShapeRepresentation* item) {
  IfcProductDefinitionShape* shape = _GetShapeRepresentation();
  if (shape != nullptr) shape->AddShapeRepresentation(item);
}
