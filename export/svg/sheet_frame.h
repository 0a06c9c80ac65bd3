#ifndef EXPORT_SVG_SHEET_FRAME_H_
#define EXPORT_SVG_SHEET_FRAME_H_

#include <cstddef>
#include <string>

#include "kelifc/building/building.h"

#include "export/svg/plan.h"
#include "export/svg/plan_drawing.h"
#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

/// What the title block of a sheet names.
struct SheetTitle {
  std::string storey;      ///< the name of the storey or what stands for it, not escaped
  std::string model;       ///< the name of the file of the model, not escaped
  std::size_t number = 0;  ///< of the sheet, from 1
  std::size_t count = 0;   ///< of all sheets
};

/// The name of a plan for people: the name of the storey, its instance number if it has no name, or
/// a text for the elements without a storey.
std::string NameOf(const Plan& plan);

/// One sentence on what a sheet shows, not escaped.
std::string DescriptionOf(const SheetTitle& title, const Plan& plan, const PlanDrawing& drawing,
                          const Sheet& sheet);

/// The frame of a sheet with the legend, the scale bar, the direction of north if it is known, and
/// the title block, as markup.
std::string FrameOf(const Building& building, const SheetTitle& title, const Plan& plan,
                    const PlanDrawing& drawing, const Sheet& sheet);

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_SHEET_FRAME_H_
