#ifndef EXPORT_SVG_LABELS_H_
#define EXPORT_SVG_LABELS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "kelifc/building/building.h"

#include "export/svg/lines.h"
#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

/// The size of the font of labels, in millimetres.
constexpr double kLabelSize = 2.5;

/// A text on the paper. It is centred at a point of its base line.
struct Label {
  Point2 at;           ///< in millimetres on the paper
  double angle = 0.0;  ///< in degrees, clockwise on the paper, from -90 to 90
  std::string text;    ///< UTF-8, not escaped
};

/// The name of the profile of a member: its designation, the name in the file, or its sizes in
/// millimetres. Empty for other elements and for a profile without any of them.
std::string ProfileLabelOf(const Building& building, const BuildingElement& element);

/// The thickness of a flat surface and the height of its upper face, such as "h 200 / +2.800".
/// Empty for other elements.
std::string SlabLabelOf(const BuildingElement& element);

/// Finds places for the labels of a plan, such that no label covers another one or a column.
class LabelField {
 public:
  explicit LabelField(const Sheet& sheet);

  /// Keeps labels away from a part of the drawing.
  void Block(const Outline& world);

  /// Places a text along a line of the world, at its middle or near to it. The text can be read
  /// from below or from the right. False if the line is too short or all places are taken.
  bool PlaceAlong(const Point2& from, const Point2& to, double halfWidth, std::string text);

  /// Places a text beside a box of the world. False if all places are taken.
  bool PlaceBeside(const Outline& world, std::string text);

  /// Places a text in the middle of an outline of the world. False if it has no room there.
  bool PlaceIn(const Outline& world, std::string text);

  /// The labels in the order in which they were placed.
  const std::vector<Label>& Labels() const { return labels; }

 private:
  bool Place(Label label);
  std::size_t CellOf(const Point2& paper) const;

  const Sheet& sheet;
  std::size_t columns;
  std::vector<bool> isTaken;  // by cell
  std::vector<Label> labels;
};

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_LABELS_H_
