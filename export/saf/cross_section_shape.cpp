#include "export/saf/cross_section_shape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>

#include "export/text.h"

namespace KelIFC::exporting::saf {
namespace {

using enum ProfileParameter;

constexpr double kMillimetres = 1000.0;
constexpr int kDecimals = 4;                // of a length in millimetres
constexpr double kSameSize = 1e-6;          // sizes are rounded to 0.01 mm
constexpr double kOutlineTolerance = 5e-4;  // within which an outline has the sizes of its shape

// How the centroid lies in the bounding box of a profile.
enum class Position : std::uint8_t {
  kCentred,    // in both directions
  kLeft,       // left of the middle, and centred in height
  kRight,      // right of the middle, and centred in height
  kTop,        // above the middle
  kBottom,     // below the middle
  kLowerLeft,  // left of the middle and below it
  kAny
};

// The values of one row: parameters in the order of the shape, or those that must be zero.
struct ParameterList {
  std::array<ProfileParameter, 6> values = {};
  std::size_t count = 0;

  constexpr ParameterList(std::initializer_list<ProfileParameter> list) {
    for (const ProfileParameter parameter : list) values[count++] = parameter;
  }
  const ProfileParameter* begin() const { return values.data(); }
  const ProfileParameter* end() const { return values.data() + count; }
};

// A published shape that a profile can have. The first row that fits is taken.
struct ShapeRow {
  ProfileShape shape;
  std::string_view name;
  ParameterList order;  // of the parameters of the published shape
  ParameterList zeros;  // the published shape does not have these
  Position position;
};

constexpr auto kShapes = std::to_array<ShapeRow>({
    {ProfileShape::kRectangle, "Rectangle", {kH, kB}, {}, Position::kCentred},
    {ProfileShape::kHollowRectangle, "Tube", {kH, kB, kT, kR, kR1}, {}, Position::kCentred},
    {ProfileShape::kCircle, "Circle", {kD}, {}, Position::kCentred},
    {ProfileShape::kHollowCircle, "Pipe", {kD, kT}, {}, Position::kCentred},
    {ProfileShape::kTrapezium, "Trapezoid", {kH, kB1, kB}, {}, Position::kAny},
    {ProfileShape::kI,
     "I Section",
     {kH, kB, kB, kTf, kTf, kTw},
     {kR, kR1, kSlope},
     Position::kCentred},
    {ProfileShape::kI, "I rolled", {kH, kB, kTf, kTw, kR}, {kR1, kSlope}, Position::kCentred},
    {ProfileShape::kAsymmetricI,
     "I Section",
     {kH, kB1, kB, kTf, kTf1, kTw},
     {kR, kR1},
     Position::kAny},
    {ProfileShape::kU, "Channel", {kH, kB, kTf, kTw, kR}, {kR1, kSlope}, Position::kLeft},
    {ProfileShape::kL, "L Section", {kH, kB, kT, kT}, {kR, kR1, kSlope}, Position::kLowerLeft},
    {ProfileShape::kL, "Angle", {kH, kB, kT, kR, kR1}, {kSlope}, Position::kLowerLeft},
    {ProfileShape::kT, "T Section", {kH, kB, kTf, kTw}, {kR, kR1, kSlope}, Position::kTop},
    {ProfileShape::kC, "Cold formed Channel with lips", {kH, kB, kT, kR, kC}, {}, Position::kLeft},
});

// The code of a section with a designation.
struct FormRow {
  ProfileShape shape;
  Position position;
  int code;
};

constexpr auto kForms = std::to_array<FormRow>({
    {ProfileShape::kI, Position::kCentred, 1},
    {ProfileShape::kHollowRectangle, Position::kCentred, 2},
    {ProfileShape::kHollowCircle, Position::kCentred, 3},
    {ProfileShape::kL, Position::kLowerLeft, 4},
    {ProfileShape::kU, Position::kLeft, 5},
    {ProfileShape::kU, Position::kRight, 13},
    {ProfileShape::kT, Position::kBottom, 6},
    {ProfileShape::kT, Position::kTop, 9},
});

struct Bounds {
  Point2 low{1e300, 1e300};
  Point2 high{-1e300, -1e300};
};

Bounds BoundsOf(const Outline& outline) {
  Bounds bounds;
  for (const Point2& point : outline) {
    bounds.low = {std::min(bounds.low.x, point.x), std::min(bounds.low.y, point.y)};
    bounds.high = {std::max(bounds.high.x, point.x), std::max(bounds.high.y, point.y)};
  }
  return bounds;
}

bool IsNear(double a, double b) { return std::abs(a - b) <= kOutlineTolerance; }

// True if the outline has the sizes of the shape along y and z, so that the shape is not turned.
// The outline of a circle touches its box at the corners of the chords only.
bool IsUpright(const BuildingProfile& profile, const Bounds& bounds) {
  if (profile.shape == ProfileShape::kCircle || profile.shape == ProfileShape::kHollowCircle) {
    return true;
  }
  const double width = std::max(profile[kB], profile[kB1]);
  return IsNear(bounds.high.x - bounds.low.x, width) &&
         IsNear(bounds.high.y - bounds.low.y, profile[kH]);
}

// The place of the middle of the box relative to the centroid, which is the origin: -1, 0 or 1.
int SideOf(double low, double high) {
  const double middle = (low + high) / 2.0;
  if (std::abs(middle) <= kOutlineTolerance) return 0;
  return middle < 0.0 ? -1 : 1;
}

bool LiesAt(Position position, const Bounds& bounds) {
  const int y = SideOf(bounds.low.x, bounds.high.x);
  const int z = SideOf(bounds.low.y, bounds.high.y);
  switch (position) {
    case Position::kCentred:
      return y == 0 && z == 0;
    case Position::kLeft:
      return y > 0 && z == 0;
    case Position::kRight:
      return y < 0 && z == 0;
    case Position::kTop:
      return y == 0 && z < 0;
    case Position::kBottom:
      return y == 0 && z > 0;
    case Position::kLowerLeft:
      return y > 0 && z > 0;
    case Position::kAny:
      return true;
  }
  return false;
}

bool AreZero(const BuildingProfile& profile, const ParameterList& parameters) {
  return std::all_of(parameters.begin(), parameters.end(), [&](ProfileParameter parameter) {
    return std::abs(profile[parameter]) < kSameSize;
  });
}

// True if all parameters can be written.
bool AreSizes(const BuildingProfile& profile, const ParameterList& parameters) {
  return std::all_of(parameters.begin(), parameters.end(), [&](ProfileParameter parameter) {
    return std::isfinite(profile[parameter]) && profile[parameter] >= 0.0;
  });
}

// True for a trapezium whose sides are equally long.
bool IsSymmetric(const BuildingProfile& profile) {
  return std::abs(profile[kB] - profile[kB1] - 2.0 * profile[kOffset]) < kSameSize;
}

// Angles and hollow sections have their longer side in height in the published tables.
bool IsLying(const BuildingProfile& profile) { return profile[kH] + kSameSize < profile[kB]; }

void AppendMillimetres(std::string& text, double metres) {
  AppendRounded(text, metres * kMillimetres, kDecimals);
}

}  // namespace

std::optional<ParametricShape> ParametricShapeOf(const BuildingProfile& profile) {
  const Bounds bounds = BoundsOf(profile.outline);
  if (profile.outline.empty() || !IsUpright(profile, bounds)) return std::nullopt;
  if (profile.shape == ProfileShape::kTrapezium && !IsSymmetric(profile)) return std::nullopt;
  for (const ShapeRow& row : kShapes) {
    if (row.shape != profile.shape || !AreZero(profile, row.zeros)) continue;
    if (!AreSizes(profile, row.order) || !LiesAt(row.position, bounds)) continue;
    ParametricShape shape = {row.name, {}};
    for (const ProfileParameter parameter : row.order) {
      if (!shape.parameters.empty()) shape.parameters += "; ";
      AppendMillimetres(shape.parameters, profile[parameter]);
    }
    return shape;
  }
  return std::nullopt;
}

std::optional<int> FormCodeOf(const BuildingProfile& profile) {
  if (profile.designation.empty() || profile.outline.empty()) return std::nullopt;
  const Bounds bounds = BoundsOf(profile.outline);
  const bool hasHeightFirst =
      profile.shape == ProfileShape::kL || profile.shape == ProfileShape::kHollowRectangle;
  if (!IsUpright(profile, bounds) || (hasHeightFirst && IsLying(profile))) return std::nullopt;
  for (const FormRow& row : kForms) {
    if (row.shape == profile.shape && LiesAt(row.position, bounds)) return row.code;
  }
  return std::nullopt;
}

std::string PolygonText(const Outline& outline) {
  std::string text;
  for (const Point2& point : outline) {
    if (!text.empty()) text += " | ";
    AppendMillimetres(text, point.x);
    text += "; ";
    AppendMillimetres(text, point.y);
  }
  return text;
}

}  // namespace KelIFC::exporting::saf
