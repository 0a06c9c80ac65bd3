namespace {

/// An axis of the world; its server is that of the placement which asked last.
const IfcDirection* AxisOfWorld(std::size_t index, IfcServer* server) {
  static IfcDirection axes[] = {IfcDirection(1.0, 0.0, 0.0), IfcDirection(0.0, 1.0, 0.0),
                                IfcDirection(0.0, 0.0, 1.0)};
  axes[index].SetServer(server);
  return &axes[index];
}

}  // namespace

LIST<const IfcDirection*> IfcAxis2Placement3D::GetP() const {
  auto* self = const_cast<IfcAxis2Placement3D*>(this);
  IfcServer* server = self->GetServer();
  LIST<const IfcDirection*> axes;
  axes.Reserve(3);
  const IfcDirection* x = GetRefDirection();
  const IfcDirection* z = GetAxis();
  if (x == nullptr || z == nullptr) {
    for (std::size_t i = 0; i < 3; ++i) axes.Add(AxisOfWorld(i, server));
    return axes;
  }
  // The orientation of their cross product, without the vector.
  std::array<double, 3> up = {};
  std::array<double, 3> along = {};
  if (z->GetRatios(up.data(), up.size()) != 3) up = {};
  if (x->GetRatios(along.data(), along.size()) != 3) along = {};
  const auto [crossX, crossY, crossZ] = CrossOf(up, along);
  self->p2 = IfcDirection(crossX, crossY, crossZ);
  self->p2.SetServer(server);
  axes.Add(x);
  axes.Add(&p2);
  axes.Add(z);
  return axes;
}
