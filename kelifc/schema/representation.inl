// entity IfcShapeRepresentation [151]

namespace {

/// Returns the first item of a class, or null if there is none.
template <class Type>
const Type* FirstItem(const IfcShapeRepresentation& representation) {
  const SET<const IfcRepresentationItem*> items = representation.GetItems();
  for (std::size_t i = 1; i <= items.GetSize(); ++i) {
    if (const auto* item = dynamic_cast<const Type*>(items[i])) return item;
  }
  return nullptr;
}

}  // namespace

const IfcSolidModel* IfcShapeRepresentation::GetSolidModel() const {
  return FirstItem<IfcSolidModel>(*this);
}

const IfcBoundingBox* IfcShapeRepresentation::GetBoundingBox() const {
  return FirstItem<IfcBoundingBox>(*this);
}
