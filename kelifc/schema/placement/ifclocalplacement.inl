void IfcLocalPlacement::SetRelativePlacement(const IfcAxis2Placement* item) {
  relativePlacement.SetReference(item);
}
