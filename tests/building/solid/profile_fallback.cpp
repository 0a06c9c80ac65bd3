#include <algorithm>

#include "kelifc/building/profile/make_profile.h"
namespace KelIFC::building {
std::vector<Region> RegionsOf(const ProfileFacts& f) { return f.regions; }
Outline Flatten(const Contour& c) { return c.points; }
static double A(const Outline& o) {
  double s = 0;
  for (size_t i = 1; i + 1 < o.size(); ++i) s += Cross(o[i] - o[0], o[i + 1] - o[0]);
  return s / 2;
}
std::optional<FlatRegion> Flatten(const Region& r) {
  FlatRegion f;
  f.outer = r.outer.points;
  if (std::abs(A(f.outer)) < 1e-12) return {};
  if (A(f.outer) < 0) std::reverse(f.outer.begin(), f.outer.end());
  for (auto& h : r.holes) {
    Outline o = h.points;
    if (A(o) > 0) std::reverse(o.begin(), o.end());
    f.holes.push_back(o);
  }
  return f;
}
}  // namespace KelIFC::building
