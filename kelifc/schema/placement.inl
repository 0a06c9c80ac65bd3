// entity IfcDirection

IfcDirection::IfcDirection(INTEGER dimension) {
  // The ratios are unset. A negative dimension means no ratios.
  const int count = dimension;
  directionRatios.Resize(count > 0 ? static_cast<std::size_t>(count) : 0);
}

IfcDirection::IfcDirection(REAL x, REAL y) {
  directionRatios.Reserve(2);
  directionRatios.Add(x);
  directionRatios.Add(y);
}

IfcDirection::IfcDirection(REAL x, REAL y, REAL z) {
  directionRatios.Reserve(3);
  directionRatios.Add(x);
  directionRatios.Add(y);
  directionRatios.Add(z);
}

INTEGER IfcDirection::GetDim() const {
  return INTEGER(static_cast<int>(directionRatios.GetSize()));
}

LIST<REAL> IfcDirection::GetDirectionRatios() const {
  LIST<REAL> ratios;
  ratios.Reserve(directionRatios.GetSize());
  for (std::size_t i = 1; i <= directionRatios.GetSize(); ++i)
    ratios.Add(directionRatios.GetItem(i));
  return ratios;
}

INTEGER IfcDirection::GetRatios(double* ratios, std::size_t count) const {
  directionRatios.GetNumbers(ratios, count);
  return GetDim();
}

void IfcDirection::SetDirectionRatio(std::size_t index, REAL value) {
  directionRatios.SetItem(index, value);
}

// entity IfcVector

IfcVector::IfcVector(IfcServer* server, IfcDirection* direction, IfcLengthMeasure magnitude) {
  SetServer(server);
  SetOrientation(direction);
  SetMagnitude(magnitude);
}

IfcVector::IfcVector(IfcDirection* direction, IfcLengthMeasure magnitude) {
  SetOrientation(direction);
  SetMagnitude(magnitude);
}

INTEGER IfcVector::GetDim() const {
  const IfcDirection* direction = GetOrientation();
  return direction == nullptr ? INTEGER(0) : direction->GetDim();
}

void IfcVector::SetOrientation(IfcDirection* item) { orientation.Embed(item, *this); }

// entity IfcPlacement

INTEGER IfcPlacement::_GetDim() const {
  const IfcCartesianPoint* point = GetLocation();
  return point == nullptr ? INTEGER(0) : point->GetDim();
}

void IfcPlacement::SetLocation(std::size_t number) { location = number; }

void IfcPlacement::SetLocation(IfcCartesianPoint& item) { location.SetReference(&item); }

// entity IfcAxis2Placement2D [..20]

namespace {

/// Sets the second axis to the first axis, turned by a right angle.
void DeriveSecondAxis(IfcDirection* second, const IfcDirection* first, IfcServer* server) {
  if (second == nullptr) return;
  *second = IfcOrthogonalComplement(first);
  second->SetServer(server);
}

}  // namespace

// entity IfcAxis2Placement2D [2x..]

namespace {

/// Leaves the second axis as Parse makes it, with unset ratios.
void DeriveSecondAxis(IfcDirection* /*second*/, const IfcDirection* /*first*/,
                      IfcServer* /*server*/) {}

}  // namespace

// entity IfcAxis2Placement2D

namespace {

const IfcDirection& AxisOfPlane(bool first, IfcServer* server) {
  thread_local IfcDirection x(1.0, 0.0);
  thread_local IfcDirection y(0.0, 1.0);
  IfcDirection& axis = first ? x : y;
  axis.SetServer(server);
  return axis;
}

}  // namespace

// The second axis is an instance of the model, which is made once. It has one unset ratio for each
// coordinate of the location. Its number is above the numbers of the file, so no statement is read
// into it.
const char* IfcAxis2Placement2D::Parse(const char* cursor) {
  cursor = ParseRecord(IfcPlacement::Parse(cursor), refDirection);
  PostponedWork::Extend([this] {
    if (GetServer() == nullptr || static_cast<std::size_t>(secondAxis) != 0) return;
    const bool isUnread = IsReadLater(GetServer(), static_cast<std::size_t>(location));
    secondAxis = AddInstance(GetServer(), new IfcDirection(isUnread ? INTEGER(0) : _GetDim()));
  });
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

// entity IfcAxis2Placement3D

namespace {

/// Returns an axis of the world. All placements of the thread share it, and its server is that of
/// the last caller.
const IfcDirection* AxisOfWorld(std::size_t index, IfcServer* server) {
  thread_local IfcDirection axes[] = {IfcDirection(1.0, 0.0, 0.0), IfcDirection(0.0, 1.0, 0.0),
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
  // This is the direction of IfcCrossProduct, without an allocation of the vector.
  std::array<double, 3> up = {};
  std::array<double, 3> along = {};
  if (z->GetRatios(up.data(), up.size()) != 3) up = {};
  if (x->GetRatios(along.data(), along.size()) != 3) along = {};
  const auto [crossX, crossY, crossZ] = CrossOf(up, along);
  IfcDirection& y = self->p2.Get();
  y = IfcDirection(crossX, crossY, crossZ);
  y.SetServer(server);
  axes.Add(x);
  axes.Add(&y);
  axes.Add(z);
  return axes;
}

// entity IfcCartesianTransformationOperator3DnonUniform

std::ostream& IfcCartesianTransformationOperator3DnonUniform::Write(std::ostream& out) const {
  IfcCartesianTransformationOperator3D::Write(out);
  scale2.Write(out);
  return WriteNext(out, scale3);
}

// function IfcCrossProduct

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

// function IfcOrthogonalComplement

IfcDirection IfcOrthogonalComplement(const IfcDirection* direction) {
  if (direction == nullptr) return IfcDirection();
  IfcDirection complement(*direction);
  const LIST<REAL> ratios = direction->GetDirectionRatios();
  if (ratios.GetSize() != 2) return complement;
  const double x = ratios[1];
  const double y = ratios[2];
  const double rightAngle = std::acos(-1.0) / 2;
  const double sine = std::sin(rightAngle);
  const double cosine = std::cos(rightAngle);
  complement.SetDirectionRatio(1, x * cosine - y * sine);
  complement.SetDirectionRatio(2, x * sine + y * cosine);
  return complement;
}
