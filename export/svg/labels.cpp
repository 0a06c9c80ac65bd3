#include "export/svg/labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "export/svg/element_form.h"
#include "export/svg/markup.h"
#include "export/text.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kCell = 1.25;                 // the size of a cell, in millimetres
constexpr double kGap = 0.8;                   // between a label and what it labels, in millimetres
constexpr double kAscent = 0.75 * kLabelSize;  // the height of capital letters
constexpr std::size_t kLongestLabel = 32;      // in characters

double WidthOf(const std::string& text) {
  constexpr double kCharacterWidth = 0.58;  // of a usual sans-serif font, as a share of its size
  return static_cast<double>(LengthOf(text)) * kCharacterWidth * kLabelSize;
}

// The unit vectors on the paper along a label and upwards across it.
std::array<Vector2, 2> DirectionsOf(const Label& label) {
  const double angle = label.angle * std::numbers::pi / 180.0;
  const Vector2 along(std::cos(angle), std::sin(angle));
  return {along, Vector2(along.y, -along.x)};
}

PaperBox BoxOnPaper(const Outline& world, const Sheet& sheet) {
  PaperBox box{1e300, 1e300, -1e300, -1e300};
  for (const Point2& p : world) {
    const Point2 paper = sheet.ToPaper(p);
    box = {std::min(box.left, paper.x), std::min(box.top, paper.y), std::max(box.right, paper.x),
           std::max(box.bottom, paper.y)};
  }
  return box;
}

bool IsInside(const Outline& outline, const Point2& point) {
  bool isInside = false;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const Point2& a = outline[i];
    const Point2& b = outline[(i + 1) % outline.size()];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    if (point.x < a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x)) isInside = !isInside;
  }
  return isInside;
}

std::string Millimetres(double metres) {
  std::string text;
  AppendRounded(text, metres * 1000.0, 0);
  return text;
}

std::string SizesOf(const BuildingProfile& profile) {
  switch (profile.shape) {
    case ProfileShape::kRectangle:
    case ProfileShape::kRoundedRectangle:
    case ProfileShape::kHollowRectangle:
      return Millimetres(profile[ProfileParameter::kB]) + "x" +
             Millimetres(profile[ProfileParameter::kH]);
    case ProfileShape::kCircle:
    case ProfileShape::kHollowCircle:
      return "D" + Millimetres(profile[ProfileParameter::kD]);
    default:
      return {};
  }
}

}  // namespace

std::string ProfileLabelOf(const Building& building, const BuildingElement& element) {
  if (!element.member || element.member->profile >= building.profiles.size()) return {};
  const BuildingProfile& profile = building.profiles[element.member->profile];
  if (!profile.designation.empty()) return Shortened(profile.designation, kLongestLabel);
  if (!profile.name.empty()) return Shortened(profile.name, kLongestLabel);
  return SizesOf(profile);
}

std::string SlabLabelOf(const BuildingElement& element) {
  if (!IsFlat(element)) return {};
  return "h " + Millimetres(element.surface->thickness) + " / " + HeightText(element.box.max.z);
}

LabelField::LabelField(const Sheet& sheet)
    : sheet(sheet), columns(static_cast<std::size_t>(sheet.GetPaper().width / kCell) + 1) {
  const auto rows = static_cast<std::size_t>(sheet.GetPaper().height / kCell) + 1;
  isTaken.resize(columns * rows);
}

// The cell of a point; the number of the cells if the point is outside of the drawing.
std::size_t LabelField::CellOf(const Point2& paper) const {
  const PaperBox frame = sheet.Frame();
  const bool isInside = paper.x > frame.left && paper.x < frame.right && paper.y > frame.top &&
                        paper.y < sheet.Strip().top;
  if (!isInside) return isTaken.size();
  return static_cast<std::size_t>(paper.y / kCell) * columns +
         static_cast<std::size_t>(paper.x / kCell);
}

void LabelField::Block(const Outline& world) {
  const PaperBox box = BoxOnPaper(world, sheet);
  const Paper& paper = sheet.GetPaper();
  const double right = std::min(box.right, paper.width);
  const double bottom = std::min(box.bottom, paper.height);
  for (double y = std::max(box.top, 0.0); y < bottom + kCell; y += kCell) {
    for (double x = std::max(box.left, 0.0); x < right + kCell; x += kCell) {
      const std::size_t cell = CellOf({std::min(x, right), std::min(y, bottom)});
      if (cell < isTaken.size()) isTaken[cell] = true;
    }
  }
}

bool LabelField::Place(Label label) {
  const double width = WidthOf(label.text);
  const auto [along, up] = DirectionsOf(label);
  std::vector<std::size_t> cells;
  constexpr double kStep = 0.5 * kCell;
  for (double x = -0.5 * width; x <= 0.5 * width; x += kStep) {
    for (double y = 0.0; y <= kAscent; y += kStep) {
      const std::size_t cell = CellOf(label.at + along * x + up * y);
      if (cell == isTaken.size() || isTaken[cell]) return false;
      cells.push_back(cell);
    }
  }
  if (cells.empty()) return false;
  for (const std::size_t cell : cells) isTaken[cell] = true;
  labels.push_back(std::move(label));
  return true;
}

bool LabelField::PlaceAlong(const Point2& from, const Point2& to, double halfWidth,
                            std::string text) {
  const Point2 a = sheet.ToPaper(from);
  const Point2 b = sheet.ToPaper(to);
  const double length = Distance(a, b);
  if (text.empty() || !(length >= WidthOf(text))) return false;
  Label label;
  label.angle = std::atan2(b.y - a.y, b.x - a.x) * 180.0 / std::numbers::pi;
  constexpr double kNearlyUpright = 89.5;  // such a line is read from the right
  if (label.angle > kNearlyUpright) label.angle -= 180.0;
  if (label.angle < -90.5) label.angle += 180.0;
  label.text = std::move(text);
  const Vector2 up = DirectionsOf(label)[1];
  const double beside = sheet.ToPaper(halfWidth) + kGap;
  for (const double share : {0.5, 0.35, 0.65}) {
    for (const double away : {beside, -beside - kAscent}) {
      label.at = a + (b - a) * share + up * away;
      if (Place(label)) return true;
    }
  }
  return false;
}

bool LabelField::PlaceBeside(const Outline& world, std::string text) {
  if (text.empty() || world.empty()) return false;
  const PaperBox box = BoxOnPaper(world, sheet);
  const double half = 0.5 * WidthOf(text);
  const double right = box.right + kGap + half;
  const double left = box.left - kGap - half;
  const double above = box.top - kGap;
  const double below = box.bottom + kGap + kAscent;
  const std::array<Point2, 4> places = {Point2(right, above), Point2(right, below),
                                        Point2(left, above), Point2(left, below)};
  return std::any_of(places.begin(), places.end(), [&](const Point2& at) {
    return Place({at, 0.0, text});
  });
}

bool LabelField::PlaceIn(const Outline& world, std::string text) {
  if (text.empty() || world.empty()) return false;
  const PaperBox box = BoxOnPaper(world, sheet);
  constexpr double kRoom = 1.5;  // how much larger than the text the outline is at least
  const double width = box.right - box.left;
  const double height = box.bottom - box.top;
  if (width < kRoom * WidthOf(text) || height < 2.0 * kRoom * kLabelSize) return false;
  for (const double share : {0.5, 0.4, 0.6, 0.3, 0.7}) {
    const Point2 at(0.5 * (box.left + box.right), box.top + share * height);
    if (IsInside(world, sheet.ToWorld(at)) && Place({at, 0.0, text})) return true;
  }
  return false;
}

}  // namespace KelIFC::exporting::svg
