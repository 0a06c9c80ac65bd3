#include "kelifc/core/cartesian_point.h"

namespace KelIFC {

IfcCartesianPoint::IfcCartesianPoint(INTEGER dimension) {
  const int count = dimension;
  if (count > 0) coordinates.Resize(static_cast<std::size_t>(count));
}

IfcCartesianPoint::IfcCartesianPoint(REAL x, REAL y) {
  coordinates.Add(x);
  coordinates.Add(y);
}

IfcCartesianPoint::IfcCartesianPoint(REAL x, REAL y, REAL z) {
  coordinates.Add(x);
  coordinates.Add(y);
  coordinates.Add(z);
}

IfcCartesianPoint::~IfcCartesianPoint() = default;
const char* IfcCartesianPoint::GetItemName() { return "IfcCartesianPoint"; }
const char* IfcCartesianPoint::GetStepName() const { return GetItemName(); }

const char* IfcCartesianPoint::Parse(const char* text) {
  return coordinates.Parse(IfcUnknown::Parse(text));
}

std::ostream& IfcCartesianPoint::Write(std::ostream& out) const {
  return coordinates.Write(IfcUnknown::Write(out));
}

LIST<IfcLengthMeasure> IfcCartesianPoint::GetCoordinates() const {
  LIST<IfcLengthMeasure> measures;
  measures.Reserve(coordinates.GetSize());
  for (std::size_t i = 1; i <= coordinates.GetSize(); ++i) measures.Add(coordinates.GetItem(i));
  return measures;
}

INTEGER IfcCartesianPoint::_GetDim() const {
  return INTEGER(static_cast<int>(coordinates.GetSize()));
}

INTEGER IfcCartesianPoint::GetDim() const { return _GetDim(); }

void IfcCartesianPoint::SetCoordinates(std::size_t index, REAL value) {
  coordinates.SetItem(index, value);
}

}  // namespace KelIFC
