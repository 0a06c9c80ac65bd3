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
  const std::unique_ptr<IfcVector> product(IfcCrossProduct(*z, *x));
  self->p2 = *product->GetOrientation();
  self->p2.SetServer(server);
  axes.Add(x);
  axes.Add(&p2);
  axes.Add(z);
  return axes;
}
