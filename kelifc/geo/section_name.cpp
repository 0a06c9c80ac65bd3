#include "kelifc/geo/section_name.h"

#include <charconv>
#include <cmath>

#include "kelifc/geo/section.h"

namespace KelIFC {

namespace {

/// Writes a number as printf does for %g in the classic locale.
std::string ValueText(double length) {
  constexpr int kDigits = 6;
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, SectionNameValue(length),
                                 std::chars_format::general, kDigits);
  return std::string(text, end.ptr);
}

}  // namespace

double SectionNameValue(double length) {
  constexpr double kStep = 0.1;
  const double centimetres = length * 100;
  return centimetres >= 0.0 ? std::floor(centimetres / kStep + 0.5) * kStep
                            : std::ceil(centimetres / kStep - 0.5) * kStep;
}

std::string SectionName(const SectionSizes& sizes) {
  const std::string first = ValueText(sizes.values[0]);
  switch (sizes.kind) {
    case SECTION_R:
      return "IFC_R_" + first + "x" + ValueText(sizes.values[1]);
    case SECTION_C:
      return "IFC_C_" + first;
    case SECTION_T:
      return "IFC_T_" + first + "x" + ValueText(sizes.values[1]);
    case SECTION_THICK:
      return "IFC_H_" + first;
    default:
      return {};
  }
}

std::string ProfileName(std::size_t points, const Box2& box) {
  return "IFC_N" + std::to_string(points) + "_" + ValueText(box.max.x - box.min.x) + "x" +
         ValueText(box.max.y - box.min.y);
}

}  // namespace KelIFC
