#include "kelifc/import/shape/read_values.h"

namespace KelIFC {

void ReadPoint3(const IfcCartesianPoint* point, double scale, Point3& target) {
  if (point == nullptr || point->Coordinates().GetSize() != 3) return;
  double c[3];
  point->Coordinates().GetNumbers(c, 3);
  target = Point3(c[0] * scale, c[1] * scale, c[2] * scale);
}

void ReadPoint2(const IfcCartesianPoint* point, double scale, Point2& target) {
  if (point == nullptr || point->Coordinates().GetSize() < 2) return;
  double c[2];
  point->Coordinates().GetNumbers(c, 2);
  target = Point2(c[0] * scale, c[1] * scale);
}

}  // namespace KelIFC
