#ifndef EXPORT_GLB_CLASS_COLOURS_H_
#define EXPORT_GLB_CLASS_COLOURS_H_

#include <string_view>

namespace KelIFC::exporting {

/// A colour as a material of glTF states it: linear, each part from 0 to 1.
struct LinearColour {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
};

/// The colour in which elements of a class are shown; grey for a class without its own colour.
LinearColour ColourOfClass(std::string_view className);

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_CLASS_COLOURS_H_
