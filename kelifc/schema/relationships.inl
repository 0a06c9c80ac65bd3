// entity IfcRelFillsElement

const char* IfcRelFillsElement::Parse(const char* cursor) {
  cursor =
      ParseRecord(IfcRelationship::Parse(cursor), relatingOpeningElement, relatedBuildingElement);
  LinkBack(*this, relatingOpeningElement, &IfcOpeningElement::AddFilling);
  auto* filling = dynamic_cast<IfcBuildingElement*>(
      FindInstance(GetServer(), static_cast<std::size_t>(relatedBuildingElement)));
  if (filling != nullptr) {
    GetServer()->SetSupportsFillings(true);
    filling->AddFills(this);
  }
  return cursor;
}
