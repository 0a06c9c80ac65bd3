namespace {

const IfcDirection& AxisOfPlane(bool first, IfcServer* server) {
  static IfcDirection x(1.0, 0.0);
  static IfcDirection y(0.0, 1.0);
  IfcDirection& axis = first ? x : y;
  axis.SetServer(server);
  return axis;
}

}  // namespace

// The second axis is an instance of the model, made once, without ratios and as long as the
// location has coordinates. It has a number above those of the file, so no statement is read into
// it.
const char* IfcAxis2Placement2D::Parse(const char* cursor) {
  cursor = ParseRecord(IfcPlacement::Parse(cursor), refDirection);
  if (GetServer() != nullptr && static_cast<std::size_t>(secondAxis) == 0) {
    secondAxis = AddInstance(GetServer(), new IfcDirection(_GetDim()));
  }
  return cursor;
}

LIST<const IfcDirection*> IfcAxis2Placement2D::GetP() const {
  IfcServer* server = const_cast<IfcAxis2Placement2D*>(this)->GetServer();
  LIST<const IfcDirection*> axes;
  axes.Reserve(2);
  if (!refDirection.GetExists()) {
    axes.Add(&AxisOfPlane(true, server));
    axes.Add(&AxisOfPlane(false, server));
    return axes;
  }
  auto* second =
      dynamic_cast<IfcDirection*>(FindInstance(server, static_cast<std::size_t>(secondAxis)));
  DeriveSecondAxis(second, GetRefDirection(), server);
  axes.Add(GetRefDirection());
  axes.Add(second);
  return axes;
}
