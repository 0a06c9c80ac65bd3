#include "kelifc/building/profile/simplify.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace KelIFC::building {

namespace {

double LongestSide(const Point2& a, const Point2& b, const Point2& c) {
  return std::max({Distance(a, b), Distance(b, c), Distance(c, a)});
}

// Points that stay, and for each the area that was cut off by points removed before it. The area
// limits how far many small steps may lead away from the original line.
class Chain {
 public:
  void Add(const Point2& point) {
    double cut = 0.0;
    for (;;) {
      if (!points.empty() && Distance(points.back(), point) <= kSamePoint) {
        cuts.back() += cut;
        return;
      }
      if (points.size() < 2 || !IsOnLine(point, cut)) break;
      points.pop_back();
      cuts.pop_back();
    }
    points.push_back(point);
    cuts.push_back(cut);
  }

  Outline points;

 private:
  // True if the last point can be left out before `next`. Adds what that cuts off to `cut`.
  bool IsOnLine(const Point2& next, double& cut) const {
    const Point2& previous = points[points.size() - 2];
    const Point2& middle = points.back();
    const double triangle = std::abs(Cross(middle - previous, next - previous));
    const double total = triangle + cut + cuts.back();
    if (!(total <= kSamePoint * LongestSide(previous, middle, next))) return false;
    cut = total;
    return true;
  }

  std::vector<double> cuts;
};

bool IsFlat(const Point2& a, const Point2& b, const Point2& c) {
  if (Distance(a, b) <= kSamePoint || Distance(b, c) <= kSamePoint) return true;
  return std::abs(Cross(b - a, c - a)) <= kSamePoint * LongestSide(a, b, c);
}

}  // namespace

Outline Simplify(const Outline& loop) {
  Chain chain;
  for (const Point2& point : loop) chain.Add(point);
  const Outline& points = chain.points;
  // The first and the last points are neighbours, too.
  std::size_t first = 0;
  std::size_t end = points.size();
  while (end - first >= 3) {
    if (IsFlat(points[end - 2], points[end - 1], points[first])) {
      --end;
    } else if (IsFlat(points[end - 1], points[first], points[first + 1])) {
      ++first;
    } else {
      break;
    }
  }
  if (end - first < 3) return {};
  return {points.begin() + static_cast<std::ptrdiff_t>(first),
          points.begin() + static_cast<std::ptrdiff_t>(end)};
}

double AreaOf(const Outline& loop) {
  double twice = 0.0;
  for (std::size_t i = 2; i < loop.size(); ++i) {
    twice += Cross(loop[i - 1] - loop[0], loop[i] - loop[0]);
  }
  return twice / 2.0;
}

double PerimeterOf(const Outline& loop) {
  double length = 0.0;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    length += Distance(loop[i], loop[(i + 1) % loop.size()]);
  }
  return length;
}

}  // namespace KelIFC::building
