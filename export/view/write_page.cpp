#include "export/view/write_page.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "export/output_file.h"
#include "export/report_progress.h"
#include "export/solids/display_model.h"
#include "export/view/base64.h"
#include "export/view/container.h"
#include "export/view/description.h"
#include "export/view/display_arrays.h"
#include "export/view/gzip.h"

namespace KelIFC::exporting {
namespace {

constexpr std::size_t kProgressSteps = 1000;
constexpr double kShareOfDisplay = 0.5;  // of the progress that MakeDisplayModel reports

// Writes the container into the element of the page.
void WriteData(const DisplayModel& display, const Building& building, const ExportOptions& options,
               const ByteSink& sink) {
  const DisplayArrays arrays(display);
  const std::vector<ContainerArray> list = arrays.GetArrays();
  const std::vector<ArrayPlace> places = PlacesOf(list);
  const std::string description = DescriptionOf({building, options.source, display.origin, places});
  WriteContainer(description, list, sink, [&](double share) {
    const double all = kShareOfDisplay + share * (1.0 - kShareOfDisplay);
    ReportProgress(options, static_cast<std::size_t>(all * kProgressSteps), kProgressSteps);
  });
}

void WriteDataElement(const DisplayModel& display, const Building& building,
                      const ExportOptions& options, OutputFile& file) {
  Base64Writer base64([&](std::string_view text) { file.Write(text); });
  const std::unique_ptr<ByteFilter> gzip =
      MakeGzip([&](std::string_view bytes) { base64.Write(bytes); });
  ByteFilter& first = gzip ? *gzip : base64;
  file.Write(R"(<script type="application/octet-stream" id="building" data-encoding=")");
  file.Write(gzip ? "gzip" : "identity");
  file.Write("\">");
  WriteData(display, building, options, [&](std::string_view bytes) { first.Write(bytes); });
  if (gzip) gzip->Finish();
  base64.Finish();
  file.Write("</script>");
}

// The page lists all elements. It cannot show those without a solid.
ExportResult ResultOf(const DisplayModel& display, const Building& building) {
  ExportResult result;
  result.elements = building.elements.size();
  const auto missing = static_cast<std::size_t>(
      std::count(display.elementMesh.begin(), display.elementMesh.end(), kNoDisplayMesh));
  if (missing > 0) result.omissions.push_back({"solids of listed elements", missing});
  return result;
}

ExportResult WritePage(const Building& building, const ExportOptions& options) {
  return FillPage(GetPageTemplate(), building, options);
}

}  // namespace

ExportResult FillPage(const PageTemplate& page, const Building& building,
                      const ExportOptions& options) {
  OutputFile file(options.path);
  const DisplayModel display = MakeDisplayModel(building, options, OpeningDisplay::kCut);
  for (const std::string_view part : page.head) file.Write(part);
  WriteDataElement(display, building, options, file);
  for (const std::string_view part : page.tail) file.Write(part);
  ReportProgress(options, 1, 1);
  file.Commit();
  return ResultOf(display, building);
}

ExportFormat PageFormat() {
  if (!HasPageTemplate()) return {"view", ".html", "the viewer page", nullptr};
  return {"view", ".html", "", WritePage};
}

}  // namespace KelIFC::exporting
