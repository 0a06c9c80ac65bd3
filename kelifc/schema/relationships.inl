// entity IfcRelFillsElement

const char* IfcRelFillsElement::Parse(const char* cursor) {
  cursor =
      ParseRecord(IfcRelationship::Parse(cursor), relatingOpeningElement, relatedBuildingElement);
  LinkBack(*this, relatingOpeningElement, &IfcOpeningElement::AddFilling);
  PostponedWork::Link([this] {
    auto* filling = dynamic_cast<IfcBuildingElement*>(
        FindInstance(GetServer(), static_cast<std::size_t>(relatedBuildingElement)));
    if (filling == nullptr) return;
    GetServer()->SetSupportsFillings(true);
    filling->AddFills(this);
  });
  return cursor;
}
