namespace {

std::array<double, 3> SpaceRatios(const IfcDirection& direction) {
  std::array<double, 3> ratios = {};
  if (direction.GetRatios(ratios.data(), ratios.size()) != 3) return {};
  return ratios;
}

}  // namespace

IfcVector* IfcCrossProduct(const IfcDirection& a, const IfcDirection& b) {
  const auto [x, y, z] = CrossOf(SpaceRatios(a), SpaceRatios(b));
  const double length = std::sqrt(x * x + y * y + z * z);
  auto product = std::make_unique<IfcVector>(nullptr, IfcLengthMeasure(length));
  product->SetOrientation(new IfcDirection(x, y, z));
  return product.release();
}
