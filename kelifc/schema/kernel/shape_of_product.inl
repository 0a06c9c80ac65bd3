void IfcProduct::AddShapeRepresentation(IfcShapeRepresentation* item) {
  auto* shape = InstanceOf<IfcProductShape>(productShape);
  if (shape != nullptr) shape->AddShapeRepresentation(item);
}
