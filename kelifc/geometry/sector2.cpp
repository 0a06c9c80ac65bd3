#include "kelifc/geometry/sector2.h"

#include <utility>

namespace KelIFC {

void Sector2::SetStart(const Point2& point) {
  start = point;
  Update();
}

void Sector2::SetEnd(const Point2& point) {
  end = point;
  Update();
}

void Sector2::Reverse() {
  a = -a;
  b = -b;
  c = -c;
  std::swap(start, end);
  state = 0;
  unusedFlag = 0;
}

void Sector2::Update() {
  a = end.y - start.y;
  b = start.x - end.x;
  c = end.x * start.y - start.x * end.y;
  state = 0;
  unusedFlag = 0;
}

}  // namespace KelIFC
