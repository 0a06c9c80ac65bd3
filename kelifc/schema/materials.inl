// entity IfcMaterialLayerSet [2x..]

IfcLengthMeasure IfcMaterialLayerSet::GetTotalThickness() const {
  double sum = 0.0;
  const LIST<const IfcMaterialLayer*> layers = GetMaterialLayers();
  for (std::size_t i = 1; i <= layers.GetSize(); ++i) {
    if (layers[i] != nullptr) sum += layers[i]->GetLayerThickness();
  }
  return IfcLengthMeasure(sum);
}
