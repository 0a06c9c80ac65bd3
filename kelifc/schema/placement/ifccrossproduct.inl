namespace {

std::array<double, 3> SpaceRatios(const IfcDirection& direction) {
  const LIST<REAL> ratios = direction.GetDirectionRatios();
  if (ratios.GetSize() != 3) return {};
  return {ratios[1], ratios[2], ratios[3]};
}

}  // namespace

IfcVector* IfcCrossProduct(const IfcDirection& a, const IfcDirection& b) {
  const auto [ax, ay, az] = SpaceRatios(a);
  const auto [bx, by, bz] = SpaceRatios(b);
  const double x = ay * bz - az * by;
  const double y = az * bx - ax * bz;
  const double z = ax * by - ay * bx;
  const double length = std::sqrt(x * x + y * y + z * z);
  auto product = std::make_unique<IfcVector>(nullptr, IfcLengthMeasure(length));
  product->SetOrientation(new IfcDirection(x, y, z));
  return product.release();
}
