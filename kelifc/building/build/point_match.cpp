#include "kelifc/building/build/point_match.h"

#include <algorithm>
#include <utility>

namespace KelIFC::building::idealising {
namespace {

// Points of a building often share coordinates, hardly ever the coordinate along this direction.
constexpr Vector3 kKeyDirection{0.5377, 0.3183, 0.7807};

double KeyOf(const Point3& p) {
  return p.x * kKeyDirection.x + p.y * kKeyDirection.y + p.z * kKeyDirection.z;
}

// Bounds the time if very many points have about the same coordinate along the direction.
constexpr std::size_t kMostCompared = 64;

}  // namespace

PointMatch::PointMatch(const std::vector<Point3>& points) {
  entries.reserve(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) {
    entries.push_back({KeyOf(points[i]), points[i], i});
  }
  std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
    return a.key != b.key ? a.key < b.key : a.index < b.index;
  });
}

std::size_t PointMatch::Find(const Point3& point, double tolerance) const {
  const double key = KeyOf(point);
  auto at = std::lower_bound(entries.begin(), entries.end(), key - tolerance,
                             [](const Entry& entry, double value) { return entry.key < value; });
  std::size_t best = kNone;
  double distance = tolerance;
  for (std::size_t count = 0; at != entries.end() && count < kMostCompared; ++at, ++count) {
    if (at->key > key + tolerance) break;
    const double d = Length(at->point - point);
    if (d > distance || (d == distance && at->index > best)) continue;
    distance = d;
    best = at->index;
  }
  return best;
}

std::vector<std::size_t> Weld(const std::vector<Point3>& points, double tolerance) {
  std::vector<std::pair<double, std::size_t>> keys(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) keys[i] = {KeyOf(points[i]), i};
  std::sort(keys.begin(), keys.end());
  std::vector<std::size_t> welded(points.size());
  for (std::size_t k = 0; k < keys.size(); ++k) {
    const std::size_t i = keys[k].second;
    welded[i] = i;
    const std::size_t first = k > kMostCompared ? k - kMostCompared : 0;
    for (std::size_t back = k; back-- > first && keys[back].first >= keys[k].first - tolerance;) {
      const std::size_t other = keys[back].second;
      if (Length(points[i] - points[other]) > tolerance) continue;
      welded[i] = welded[other];
      break;
    }
  }
  return welded;
}

}  // namespace KelIFC::building::idealising
