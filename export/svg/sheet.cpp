#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {
namespace {

constexpr double kBinding = 20.0;    // the left margin, in millimetres
constexpr double kMargin = 10.0;     // the other margins
constexpr double kStrip = 40.0;      // the height of the strip
constexpr double kClearance = 10.0;  // between the frame and what is drawn

constexpr Paper kA3{"A3", 420.0, 297.0};
constexpr Paper kA2{"A2", 594.0, 420.0};
constexpr Paper kA1{"A1", 841.0, 594.0};

// A scale and the papers that are used at it. The first one that is large enough is chosen.
struct Choice {
  double scale;
  const Paper* paper;
};
constexpr Choice kChoices[] = {
    {50.0, &kA3},  {100.0, &kA3}, {100.0, &kA2}, {100.0, &kA1},
    {200.0, &kA2}, {200.0, &kA1}, {500.0, &kA2}, {500.0, &kA1},
};

PaperBox FrameOf(const Paper& paper) {
  return {kBinding, kMargin, paper.width - kMargin, paper.height - kMargin};
}

PaperBox DrawingOf(const Paper& paper) {
  const PaperBox frame = FrameOf(paper);
  return {frame.left + kClearance, frame.top + kClearance, frame.right - kClearance,
          frame.bottom - kStrip - kClearance};
}

bool Fits(const Choice& choice, double factor, double width, double height) {
  const PaperBox box = DrawingOf(*choice.paper);
  const double scale = choice.scale * factor;
  return width * 1000.0 <= (box.right - box.left) * scale &&
         height * 1000.0 <= (box.bottom - box.top) * scale;
}

}  // namespace

Sheet::Sheet(const BuildingBox& extent) : paper(&kA3) {
  if (!extent.IsEmpty()) {
    worldCentre = {0.5 * (extent.min.x + extent.max.x), 0.5 * (extent.min.y + extent.max.y)};
    Choose(extent.max.x - extent.min.x, extent.max.y - extent.min.y);
  }
  const PaperBox box = DrawingOf(*paper);
  paperCentre = {0.5 * (box.left + box.right), 0.5 * (box.top + box.bottom)};
}

void Sheet::Choose(double width, double height) {
  constexpr double kLargestFactor = 1e12;  // no building is larger
  for (double factor = 1.0; factor <= kLargestFactor; factor *= 10.0) {
    for (const Choice& choice : kChoices) {
      paper = choice.paper;
      scale = choice.scale * factor;
      if (Fits(choice, factor, width, height)) return;
    }
  }
}

PaperBox Sheet::Frame() const { return FrameOf(*paper); }

PaperBox Sheet::Strip() const {
  PaperBox strip = Frame();
  strip.top = strip.bottom - kStrip;
  return strip;
}

LineWidths Sheet::Widths() const {
  if (scale <= 100.0) return {0.5, 0.25, 0.13};
  if (scale <= 200.0) return {0.35, 0.18, 0.13};
  return {0.25, 0.13, 0.09};
}

Point2 Sheet::ToPaper(const Point2& point) const {
  const Vector2 fromCentre = point - worldCentre;
  return paperCentre + Vector2(ToPaper(fromCentre.x), -ToPaper(fromCentre.y));
}

Point2 Sheet::ToWorld(const Point2& point) const {
  const Vector2 fromCentre = (point - paperCentre) * (scale / 1000.0);
  return worldCentre + Vector2(fromCentre.x, -fromCentre.y);
}

}  // namespace KelIFC::exporting::svg
