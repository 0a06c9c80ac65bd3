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
  auto direction = std::make_unique<IfcDirection>(REAL(x), REAL(y), REAL(z));
  auto* product =
      new IfcVector(direction.get(), IfcLengthMeasure(std::sqrt(x * x + y * y + z * z)));
  direction.release();
  return product;
}
