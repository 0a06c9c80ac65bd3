#include "export/svg/write_svg.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "export/output_file.h"
#include "export/report_progress.h"
#include "export/svg/dimensions.h"
#include "export/svg/markup.h"
#include "export/svg/plan.h"
#include "export/svg/plan_drawing.h"
#include "export/svg/sheet.h"
#include "export/svg/sheet_frame.h"
#include "export/svg/style.h"
#include "export/text.h"

namespace KelIFC::exporting {
namespace svg {
namespace {

constexpr std::size_t kMostEmptyPlans = 500;
constexpr std::size_t kItemsBetweenReports = 256;

// The box of all elements that are on a plan.
BuildingBox ExtentOf(const Building& building, const std::vector<Plan>& plans) {
  BuildingBox extent;
  for (const Plan& plan : plans) {
    for (const PlanItem& item : plan.items) {
      const BuildingBox& box = building.elements[item.element].box;
      extent.min = {std::min(extent.min.x, box.min.x), std::min(extent.min.y, box.min.y), 0.0};
      extent.max = {std::max(extent.max.x, box.max.x), std::max(extent.max.y, box.max.y), 0.0};
    }
  }
  return extent;
}

// The name of a file without its folders.
std::string FileNameOf(const std::string& path) {
  const std::size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string PaddedNumber(std::size_t number, std::size_t digits) {
  std::string text = std::to_string(number);
  return std::string(digits > text.size() ? digits - text.size() : 0, '0') + text;
}

// Writes the plans of a building one after the other.
class PlanWriter {
 public:
  PlanWriter(const Building& building, const ExportOptions& options)
      : building(building),
        options(options),
        set(ArrangePlans(building)),
        sheet(ExtentOf(building, set.plans)),
        style(StyleOf(sheet)),
        isDrawn(building.elements.size()) {}

  ExportResult Write() {
    const std::size_t emptyPlans = DropEmptyPlans();
    for (const Plan& plan : set.plans) allItems += plan.items.size();
    OutputFolder folder(options.path);
    const bool hasUnassigned = !set.plans.empty() && set.plans.front().storey == nullptr;
    const std::size_t digits = std::max<std::size_t>(2, std::to_string(set.plans.size()).size());
    for (std::size_t i = 0; i < set.plans.size(); ++i) {
      const Plan& plan = set.plans[i];
      const std::string name =
          plan.storey != nullptr ? FileNamePart(plan.storey->name) : std::string("unassigned");
      const std::size_t number = hasUnassigned ? i : i + 1;
      WritePlan(i, options.path + "/" + PaddedNumber(number, digits) + "-" + name + ".svg");
    }
    folder.Commit();
    return ResultWith(emptyPlans);
  }

 private:
  // Removes the plans that show nothing if there are very many. Returns their number.
  std::size_t DropEmptyPlans() {
    if (set.plans.size() <= kMostEmptyPlans) return 0;
    const auto isEmpty = [](const Plan& plan) { return plan.items.empty(); };
    const auto first = std::remove_if(set.plans.begin(), set.plans.end(), isEmpty);
    const auto count = static_cast<std::size_t>(set.plans.end() - first);
    set.plans.erase(first, set.plans.end());
    return count;
  }

  void WritePlan(std::size_t index, const std::string& path) {
    const Plan& plan = set.plans[index];
    PlanDrawing drawing(building, plan, sheet);
    for (const PlanItem& item : plan.items) {
      if (drawing.Draw(item)) isDrawn[item.element] = true;
      if (++doneItems % kItemsBetweenReports == 0) ReportProgress(options, doneItems, allItems);
    }
    drawing.PlaceLabels();
    const SheetTitle title{NameOf(plan), FileNameOf(options.source), index + 1, set.plans.size()};
    OutputFile file(path);
    file.Write(HeadOf(DescriptionOf(title, plan, drawing, sheet), title));
    file.Write(style);
    file.Write("<rect class=\"paper\" width=\"100%\" height=\"100%\"/>\n");
    for (std::size_t i = 0; i < kLayerCount; ++i) {
      const auto layer = static_cast<Layer>(i);
      if (drawing.MarkupOf(layer).empty()) continue;
      file.Write("<g id=\"" + std::string(NameOf(layer)) + "\">\n");
      file.Write(drawing.MarkupOf(layer));
      file.Write("</g>\n");
    }
    std::string dimensions;
    AppendDimensions(dimensions, sheet, drawing.GetCutBox(), drawing.GetDrawnBox());
    file.Write(dimensions);
    file.Write(FrameOf(building, title, plan, drawing, sheet));
    file.Write("</svg>\n");
    file.Commit();
  }

  std::string HeadOf(const std::string& description, const SheetTitle& title) const {
    constexpr std::size_t kLongestName = 200;
    const std::string width = Number(sheet.GetPaper().width);
    const std::string height = Number(sheet.GetPaper().height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "width=\"" +
           width + "mm\" height=\"" + height + "mm\" viewBox=\"0 0 " + width + " " + height +
           "\" aria-labelledby=\"title desc\">\n<title id=\"title\">" +
           XmlText(Shortened(title.storey, kLongestName)) + " - plan</title>\n<desc id=\"desc\">" +
           XmlText(description) + "</desc>\n";
  }

  ExportResult ResultWith(std::size_t emptyPlans) const {
    ExportResult result;
    result.elements = static_cast<std::size_t>(std::count(isDrawn.begin(), isDrawn.end(), true));
    const auto add = [&](const char* what, std::size_t count) {
      if (count > 0) result.omissions.push_back({what, count});
    };
    add("elements that no plan shows", isDrawn.size() - result.elements);
    add("further plans of elements that cross very many storeys", set.leftOutCuts);
    add("plans of storeys without elements", emptyPlans);
    return result;
  }

  const Building& building;
  const ExportOptions& options;
  PlanSet set;
  Sheet sheet;
  std::string style;
  std::vector<bool> isDrawn;  // by element
  std::size_t doneItems = 0;
  std::size_t allItems = 0;
};

}  // namespace
}  // namespace svg

ExportResult WriteSvg(const Building& building, const ExportOptions& options) {
  return svg::PlanWriter(building, options).Write();
}

}  // namespace KelIFC::exporting
