#ifndef EXPORT_SVG_PLAN_DRAWING_H_
#define EXPORT_SVG_PLAN_DRAWING_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/building.h"

#include "export/svg/element_form.h"
#include "export/svg/labels.h"
#include "export/svg/lines.h"
#include "export/svg/plan.h"
#include "export/svg/sheet.h"

namespace KelIFC::exporting::svg {

/// The layers of a drawing, from the lowest to the highest.
enum class Layer : std::uint8_t {
  kHidden,      ///< what lies under the floor
  kSlabs,       ///< the edges and the holes of the floor
  kLower,       ///< other elements below the cut
  kWalls,       ///< cut walls
  kColumns,     ///< cut columns
  kParts,       ///< other elements that are cut
  kOpenings,    ///< doors, windows and other openings in what is cut
  kAbove,       ///< slabs and other elements above the cut
  kBeamsAbove,  ///< members above the cut
  kTexts        ///< labels
};

/// The number of the enumerators of Layer.
constexpr std::size_t kLayerCount = static_cast<std::size_t>(Layer::kTexts) + 1;

/// The id of the group of a layer, such as "beams-above".
std::string_view NameOf(Layer layer);

/// The drawing of one plan, without the frame. It is markup in layers.
class PlanDrawing {
 public:
  PlanDrawing(const Building& building, const Plan& plan, const Sheet& sheet);

  /// Draws an element. False if it has no solid, or nothing of it can be drawn.
  bool Draw(const PlanItem& item);

  /// Places the labels. It is called once, when all elements are drawn.
  void PlaceLabels();

  /// The markup of a layer: elements of SVG, one on each line.
  const std::string& MarkupOf(Layer layer) const { return layers[static_cast<std::size_t>(layer)]; }

  /// How many elements are drawn with a look.
  std::size_t CountOf(Look look) const { return looks[static_cast<std::size_t>(look)]; }

  /// True if a hatch is used.
  bool IsUsed(Hatch hatch) const { return hatches[static_cast<std::size_t>(hatch)]; }

 private:
  // A text that waits for its place, which depends on everything that is drawn.
  enum class Placing : std::uint8_t { kBeside, kAlong, kIn };
  struct WaitingLabel {
    Placing placing = Placing::kBeside;
    std::size_t element = 0;
    Outline outline;         // for kAlong the two ends
    double halfWidth = 0.0;  // for kAlong, in metres
  };

  bool DrawCut(std::size_t index, const Mesh& solid);
  bool DrawFromAbove(std::size_t index, Layer layer, const Mesh& solid);
  void KeepLabel(std::size_t index, Look look, const Mesh& solid);
  std::string& LayerOf(Layer layer) { return layers[static_cast<std::size_t>(layer)]; }

  const Building& building;
  const Plan& plan;
  const Sheet& sheet;
  std::array<std::string, kLayerCount> layers;
  std::array<std::size_t, 4> looks = {};
  std::array<bool, kHatchCount> hatches = {};
  std::vector<WaitingLabel> waiting;
  LabelField field;
};

}  // namespace KelIFC::exporting::svg

#endif  // EXPORT_SVG_PLAN_DRAWING_H_
