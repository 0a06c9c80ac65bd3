#ifndef EXPORT_SVG_SHEET_H_
#define EXPORT_SVG_SHEET_H_

#include <string_view>

#include "kelifc/building/building.h"
#include "kelifc/geometry/point.h"

namespace KelIFC::exporting::svg {

/// A size of paper, in landscape.
struct Paper {
  std::string_view name;  ///< such as "A3"
  double width = 0.0;     ///< in millimetres
  double height = 0.0;    ///< in millimetres
};

/// A rectangle on the paper, in millimetres. y points down.
struct PaperBox {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
};

/// The widths of the lines of a drawing, in millimetres.
struct LineWidths {
  double cut = 0.0;      ///< of what is cut
  double visible = 0.0;  ///< of what is seen below the cut, and of what is above it
  double thin = 0.0;     ///< of hatches, hidden edges and openings
};

/// The paper of a plan and the scale at which the building is drawn on it. Coordinates on the paper
/// are in millimetres from the upper left corner.
class Sheet {
 public:
  /// Chooses the scale and the paper, from A3 to A1, for what lies in a box; z does not count. The
  /// scale is 1:50, 1:100, 1:200 or 1:500, or one of these divided by a power of ten. The box is in
  /// the middle of the drawing. An empty box fits on the smallest paper.
  explicit Sheet(const BuildingBox& extent);

  /// The paper.
  const Paper& GetPaper() const { return *paper; }

  /// The denominator of the scale: 100 for 1:100.
  double GetScale() const { return scale; }

  /// The lines of the frame.
  PaperBox Frame() const;

  /// The strip at the lower edge of the frame, for the legend and the title.
  PaperBox Strip() const;

  /// The line widths at this scale.
  LineWidths Widths() const;

  /// The place on the paper of a point of the world.
  Point2 ToPaper(const Point2& point) const;

  /// The point of the world at a place on the paper.
  Point2 ToWorld(const Point2& paper) const;

  /// A length on the paper, in millimetres.
  double ToPaper(double metres) const { return metres * 1000.0 / scale; }

 private:
  void Choose(double width, double height);

  const Paper* paper = nullptr;
  double scale = 100.0;
  Point2 worldCentre;
  Point2 paperCentre;
};

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_SHEET_H_
