#include "kelifc/import/read_values.h"

namespace KelIFC {

void ReadPoint3(const IfcCartesianPoint* point, double scale, Point3& target) {
  if (point == nullptr || point->GetDim() != 3) return;
  const COORDINATES& coordinates = point->Coordinates();
  target = Point3(coordinates[1] * scale, coordinates[2] * scale, coordinates[3] * scale);
}

void ReadPoint2(const IfcCartesianPoint* point, double scale, Point2& target) {
  if (point == nullptr || point->GetDim() < 2) return;
  const COORDINATES& coordinates = point->Coordinates();
  target = Point2(coordinates[1] * scale, coordinates[2] * scale);
}

}  // namespace KelIFC
