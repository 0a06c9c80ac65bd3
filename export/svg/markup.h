#ifndef EXPORT_SVG_MARKUP_H_
#define EXPORT_SVG_MARKUP_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "kelifc/building/profile.h"

#include "export/svg/lines.h"
#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

// Parts of an SVG document. Coordinates are in millimetres on the paper.

/// The number of characters of a valid UTF-8 text.
std::size_t LengthOf(std::string_view text);

/// A text of a model in at most `longest` characters, as valid UTF-8 on one line. Of a longer text
/// the end is replaced by an ellipsis. It is not escaped.
std::string Shortened(std::string_view text, std::size_t longest);

/// A height in metres with its sign and three digits, such as "+2.800"; 0 is "±0.000".
std::string HeightText(double metres);

/// A number with at most two digits after the point.
std::string Number(double value);

/// Appends a line in world coordinates to the data of a path. Points that are one on the paper are
/// left out, and so are lines with less than two points or with a point that is not finite.
void AppendPath(std::string& data, const Sheet& sheet, const Outline& points, bool isClosed);

/// Appends a path element with a class, which may be empty. Appends nothing if the data is empty.
void AppendPathElement(std::string& markup, std::string_view cssClass, std::string_view data);

/// How a text is placed.
struct TextStyle {
  std::string_view cssClass;  ///< may be empty
  double angle = 0.0;         ///< in degrees, clockwise
};

/// Appends a text element at a point. The text is escaped here. Appends nothing for an empty text.
void AppendText(std::string& markup, const Point2& at, std::string_view text,
                const TextStyle& style);

/// Appends a straight line.
void AppendLine(std::string& markup, std::string_view cssClass, const Point2& from,
                const Point2& to);

/// Appends a rectangle.
void AppendBox(std::string& markup, std::string_view cssClass, const PaperBox& box);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_MARKUP_H_
