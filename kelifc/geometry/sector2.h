#ifndef KELIFC_GEOMETRY_SECTOR2_H_
#define KELIFC_GEOMETRY_SECTOR2_H_

#include <cstdint>

#include "kelifc/geometry/point.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

/// A piece of a line of the plane, with the line's equation a * x + b * y + c = 0.
struct KELIFC_API Sector2 {
  double a = 0.0;
  double b = 0.0;
  double c = 0.0;
  double unused1 = 0.0;
  double unused2 = 0.0;
  std::int8_t state = 0;
  std::int8_t unusedFlag = 0;
  Point2 start;
  Point2 end;

  Sector2() = default;
  Sector2(const Point2& from, const Point2& to) : start(from), end(to) { Update(); }

  void SetStart(const Point2& point);
  void SetEnd(const Point2& point);

  /// Exchanges the ends and turns the equation round.
  void Reverse();

 private:
  void Update();
};

}  // namespace KelIFC

#endif  // KELIFC_GEOMETRY_SECTOR2_H_
