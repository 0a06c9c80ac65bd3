#include "kelifc/building/profile/shape_region.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "kelifc/building/profile/plane_arc.h"
#include "kelifc/building/profile/rounded_contour.h"

namespace KelIFC::building {

namespace {

constexpr double kLargestSize = 1e6;    // sizes beyond it are faults of the file, in metres
constexpr double kSteepestSlope = 0.7;  // in radians; the faces of an L of 45 degrees are parallel
constexpr std::size_t kMostEllipseChords = 4096;

// The sizes of a shape under short names. `k` is the tangent of the slope. `webK` and `webR` are
// the tangent of the slope and the radius of the edges of the web of a T.
struct Sizes {
  double h = 0.0, b = 0.0, b1 = 0.0, d = 0.0, t = 0.0, tw = 0.0, tf = 0.0, tf1 = 0.0, c = 0.0,
         r = 0.0, r1 = 0.0, k = 0.0, offset = 0.0, webK = 0.0, webR = 0.0;
};

using Corners = std::vector<RoundedCorner>;

// Moves the centre of the bounding box to the origin.
void Centre(Corners& corners) {
  Point2 low = corners.front().point;
  Point2 high = low;
  for (const RoundedCorner& corner : corners) {
    low = {std::min(low.x, corner.point.x), std::min(low.y, corner.point.y)};
    high = {std::max(high.x, corner.point.x), std::max(high.y, corner.point.y)};
  }
  const Point2 middle((low.x + high.x) / 2.0, (low.y + high.y) / 2.0);
  for (RoundedCorner& corner : corners) {
    corner.point = {corner.point.x - middle.x, corner.point.y - middle.y};
  }
}

Corners RectangleCorners(double b, double h, double r) {
  return {{{-b / 2.0, -h / 2.0}, r},
          {{b / 2.0, -h / 2.0}, r},
          {{b / 2.0, h / 2.0}, r},
          {{-b / 2.0, h / 2.0}, r}};
}

Contour CircleContour(double radius) {
  return {{{radius, 0.0}, {-radius, 0.0}}, {{0, {0.0, radius}}, {1, {0.0, -radius}}}};
}

Corners Rectangle(const Sizes& s) {
  if (!(s.h > 0.0 && s.b > 0.0)) return {};
  return RectangleCorners(s.b, s.h, 0.0);
}

Corners RoundedRectangle(const Sizes& s) {
  if (!(s.h > 0.0 && s.b > 0.0)) return {};
  return RectangleCorners(s.b, s.h, s.r);
}

std::optional<Region> HollowRectangle(const Sizes& s) {
  if (!(s.t > 0.0 && 2.0 * s.t < s.h && 2.0 * s.t < s.b)) return std::nullopt;
  // Along the diagonal of a corner the hole must stay inside of the outer arc.
  const double lag = s.r - s.t - s.r1;
  if (lag > 0.0 && !(lag * std::numbers::sqrt2 + s.r1 < s.r)) return std::nullopt;
  auto outer = RoundedContour(RectangleCorners(s.b, s.h, s.r));
  auto hole = RoundedContour(RectangleCorners(s.b - 2.0 * s.t, s.h - 2.0 * s.t, s.r1));
  if (!outer || !hole) return std::nullopt;
  return Region{std::move(*outer), {std::move(*hole)}};
}

std::optional<Region> Circle(const Sizes& s) {
  if (!(s.d > 0.0)) return std::nullopt;
  return Region{CircleContour(s.d / 2.0), {}};
}

std::optional<Region> HollowCircle(const Sizes& s) {
  if (!(s.t > 0.0 && 2.0 * s.t < s.d)) return std::nullopt;
  return Region{CircleContour(s.d / 2.0), {CircleContour(s.d / 2.0 - s.t)}};
}

std::optional<Region> Ellipse(const Sizes& s) {
  if (!(s.h > 0.0 && s.b > 0.0)) return std::nullopt;
  // An ellipse is a circle of its larger half axis, shrunk along one direction, which brings chords
  // closer.
  const double turn = 2.0 * std::numbers::pi;
  const std::size_t count =
      ChordCount(std::max(s.h, s.b) / 2.0, turn, kChordError, kMostEllipseChords);
  Region region;
  for (std::size_t i = 0; i < count; ++i) {
    const double angle = turn * static_cast<double>(i) / static_cast<double>(count);
    region.outer.points.emplace_back(s.b / 2.0 * std::cos(angle), s.h / 2.0 * std::sin(angle));
  }
  return region;
}

Corners Trapezium(const Sizes& s) {
  if (!(s.h > 0.0 && s.b > 0.0 && s.b1 > 0.0)) return {};
  return {{{0.0, 0.0}}, {{s.b, 0.0}}, {{s.offset + s.b1, s.h}}, {{s.offset, s.h}}};
}

Corners AsymmetricI(const Sizes& s) {
  if (!(s.tw > 0.0 && s.tw < s.b && s.tw < s.b1)) return {};
  if (!(s.tf > 0.0 && s.tf1 > 0.0 && s.tf + s.tf1 < s.h)) return {};
  const double web = s.tw / 2.0;
  const double top = s.h - s.tf1;
  return {{{-s.b / 2.0, 0.0}},  {{s.b / 2.0, 0.0}},  {{s.b / 2.0, s.tf}}, {{web, s.tf}, s.r},
          {{web, top}, s.r1},   {{s.b1 / 2.0, top}}, {{s.b1 / 2.0, s.h}}, {{-s.b1 / 2.0, s.h}},
          {{-s.b1 / 2.0, top}}, {{-web, top}, s.r1}, {{-web, s.tf}, s.r}, {{-s.b / 2.0, s.tf}}};
}

Corners SymmetricI(const Sizes& s) {
  const double toe = s.tf - s.b / 4.0 * s.k;
  const double root = s.tf + (s.b / 4.0 - s.tw / 2.0) * s.k;
  if (!(s.tw > 0.0 && s.tw < s.b && toe > 0.0 && root > 0.0)) return {};
  if (!(2.0 * std::max(toe, root) < s.h)) return {};
  const double web = s.tw / 2.0;
  const double side = s.b / 2.0;
  return {{{-side, 0.0}},
          {{side, 0.0}},
          {{side, toe}, s.r1},
          {{web, root}, s.r},
          {{web, s.h - root}, s.r},
          {{side, s.h - toe}, s.r1},
          {{side, s.h}},
          {{-side, s.h}},
          {{-side, s.h - toe}, s.r1},
          {{-web, s.h - root}, s.r},
          {{-web, root}, s.r},
          {{-side, toe}, s.r1}};
}

Corners U(const Sizes& s) {
  const double toe = s.tf - s.b / 2.0 * s.k;
  const double root = s.tf + (s.b / 2.0 - s.tw) * s.k;
  if (!(s.tw > 0.0 && s.tw < s.b && toe > 0.0 && root > 0.0)) return {};
  if (!(2.0 * std::max(toe, root) < s.h)) return {};
  return {{{0.0, 0.0}},
          {{s.b, 0.0}},
          {{s.b, toe}, s.r1},
          {{s.tw, root}, s.r},
          {{s.tw, s.h - root}, s.r},
          {{s.b, s.h - toe}, s.r1},
          {{s.b, s.h}},
          {{0.0, s.h}}};
}

Corners L(const Sizes& s) {
  // The inner faces are y = t + (b / 2 - x) k and x = t + (h / 2 - y) k.
  const double toeOfB = s.t - s.b / 2.0 * s.k;
  const double toeOfH = s.t - s.h / 2.0 * s.k;
  const double y = (s.t + s.k * s.b / 2.0 - s.k * s.t - s.k * s.k * s.h / 2.0) / (1.0 - s.k * s.k);
  const double x = s.t + (s.h / 2.0 - y) * s.k;
  if (!(toeOfB > 0.0 && toeOfH > 0.0 && x > 0.0 && y > 0.0)) return {};
  if (!(std::max(x, toeOfH) < s.b && std::max(y, toeOfB) < s.h)) return {};
  return {{{0.0, 0.0}},  {{s.b, 0.0}},          {{s.b, toeOfB}, s.r1},
          {{x, y}, s.r}, {{toeOfH, s.h}, s.r1}, {{0.0, s.h}}};
}

Corners T(const Sizes& s) {
  // For x > 0 the lower face of the flange is y = h - tf + (x - b / 4) k, and the side of the web
  // is x = tw / 2 + (y - h / 2) webK.
  const double toe = s.tf - s.b / 4.0 * s.k;
  const double foot = s.tw / 2.0 - s.h / 2.0 * s.webK;
  const double x =
      (s.tw / 2.0 + (s.h / 2.0 - s.tf - s.b / 4.0 * s.k) * s.webK) / (1.0 - s.k * s.webK);
  const double root = s.tf + (s.b / 4.0 - x) * s.k;
  if (!(foot > 0.0 && foot < s.b / 2.0 && x > 0.0 && x < s.b / 2.0)) return {};
  if (!(toe > 0.0 && root > 0.0 && std::max(toe, root) < s.h)) return {};
  return {{{-foot, 0.0}, s.webR},          {{foot, 0.0}, s.webR},  {{x, s.h - root}, s.r},
          {{s.b / 2.0, s.h - toe}, s.r1},  {{s.b / 2.0, s.h}},     {{-s.b / 2.0, s.h}},
          {{-s.b / 2.0, s.h - toe}, s.r1}, {{-x, s.h - root}, s.r}};
}

Corners Z(const Sizes& s) {
  if (!(s.tw > 0.0 && s.tw < s.b && s.tf > 0.0 && 2.0 * s.tf < s.h)) return {};
  const double web = s.tw / 2.0;
  return {{{-web, 0.0}},
          {{s.b - web, 0.0}},
          {{s.b - web, s.tf}, s.r1},
          {{web, s.tf}, s.r},
          {{web, s.h}},
          {{web - s.b, s.h}},
          {{web - s.b, s.h - s.tf}, s.r1},
          {{-web, s.h - s.tf}, s.r}};
}

Corners C(const Sizes& s) {
  if (!(s.t > 0.0 && 2.0 * s.t < s.b && s.t < s.c && 2.0 * s.c < s.h)) return {};
  const double outside = s.r > 0.0 ? s.r + s.t : s.r;
  return {{{0.0, 0.0}, outside},   {{s.b, 0.0}, outside},         {{s.b, s.c}},
          {{s.b - s.t, s.c}},      {{s.b - s.t, s.t}, s.r},       {{s.t, s.t}, s.r},
          {{s.t, s.h - s.t}, s.r}, {{s.b - s.t, s.h - s.t}, s.r}, {{s.b - s.t, s.h - s.c}},
          {{s.b, s.h - s.c}},      {{s.b, s.h}, outside},         {{0.0, s.h}, outside}};
}

using CornerMaker = Corners (*)(const Sizes&);
using RegionMaker = std::optional<Region> (*)(const Sizes&);

// By ProfileShape. A shape has a maker in one of the tables, kArbitrary in none.
constexpr std::array<CornerMaker, 15> kCornerMakers = {
    nullptr,   Rectangle,  RoundedRectangle, nullptr, nullptr, nullptr, nullptr,
    Trapezium, SymmetricI, AsymmetricI,      U,       L,       T,       Z,
    C};
constexpr std::array<RegionMaker, 15> kRegionMakers = {
    nullptr, nullptr, nullptr, HollowRectangle, Circle,  HollowCircle, Ellipse, nullptr,
    nullptr, nullptr, nullptr, nullptr,         nullptr, nullptr,      nullptr};

// None if a size is not finite, too large or negative.
std::optional<Sizes> SizesOf(const ProfileParameters& parameters) {
  const auto size = [&parameters](ProfileParameter parameter) {
    return parameters[static_cast<std::size_t>(parameter)];
  };
  using enum ProfileParameter;
  for (std::size_t i = 0; i < kProfileParameterCount; ++i) {
    const auto parameter = static_cast<ProfileParameter>(i);
    if (!(std::abs(parameters[i]) < kLargestSize)) return std::nullopt;
    if (parameters[i] < 0.0 && parameter != kOffset && parameter != kSlope) return std::nullopt;
  }
  if (std::abs(size(kSlope)) > kSteepestSlope) return std::nullopt;
  return Sizes{.h = size(kH),
               .b = size(kB),
               .b1 = size(kB1),
               .d = size(kD),
               .t = size(kT),
               .tw = size(kTw),
               .tf = size(kTf),
               .tf1 = size(kTf1),
               .c = size(kC),
               .r = size(kR),
               .r1 = size(kR1),
               .k = std::tan(size(kSlope)),
               .offset = size(kOffset)};
}

std::optional<Region> RegionOf(Corners corners) {
  if (corners.empty()) return std::nullopt;
  Centre(corners);
  auto contour = RoundedContour(corners);
  if (!contour) return std::nullopt;
  return Region{std::move(*contour), {}};
}

}  // namespace

std::vector<RoundedCorner> ShapeCorners(ProfileShape shape, const ProfileParameters& parameters) {
  const auto at = static_cast<std::size_t>(shape);
  const auto sizes = SizesOf(parameters);
  if (!sizes || at >= kCornerMakers.size() || kCornerMakers[at] == nullptr) return {};
  Corners corners = kCornerMakers[at](*sizes);
  if (!corners.empty()) Centre(corners);
  return corners;
}

std::optional<Region> ShapeRegion(ProfileShape shape, const ProfileParameters& parameters) {
  const auto at = static_cast<std::size_t>(shape);
  const auto sizes = SizesOf(parameters);
  if (!sizes || at >= kRegionMakers.size()) return std::nullopt;
  if (kRegionMakers[at] != nullptr) return kRegionMakers[at](*sizes);
  return kCornerMakers[at] == nullptr ? std::nullopt : RegionOf(kCornerMakers[at](*sizes));
}

std::optional<Region> TRegion(const ProfileParameters& parameters, const WebOfT& web) {
  auto sizes = SizesOf(parameters);
  if (!sizes || !(std::abs(web.slope) <= kSteepestSlope)) return std::nullopt;
  if (!(web.edgeRadius >= 0.0 && web.edgeRadius < kLargestSize)) return std::nullopt;
  sizes->webK = std::tan(web.slope);
  sizes->webR = web.edgeRadius;
  return RegionOf(T(*sizes));
}

}  // namespace KelIFC::building
