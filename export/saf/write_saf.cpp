#include "export/saf/write_saf.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "export/report_progress.h"
#include "export/saf/saf_writer.h"
#include "export/saf/workbook_file.h"
#include "export/saf/write_member.h"
#include "export/saf/write_proxy.h"
#include "export/saf/write_surface.h"

namespace KelIFC::exporting {
namespace {

using namespace saf;

constexpr std::size_t kLargeWorkbook = 50'000;  // rows; larger ones are not kept in memory
constexpr std::size_t kProgressStep = 256;      // elements between two reports
constexpr std::string_view kPartsOmitted = "parts of other elements";

// About how many rows the elements need.
std::size_t EstimateRows(const Building& building) {
  std::size_t rows = 0;
  for (const BuildingElement& element : building.elements) {
    rows += 1 + 2 * element.openings.size();
    if (element.member) rows += element.member->points.size();
    if (element.surface) rows += element.surface->outline.size();
    const bool isProxy = element.kind == ElementKind::kBody && element.body.mesh;
    if (isProxy) rows += element.body.mesh->points.size() + element.body.mesh->FaceCount();
  }
  return rows;
}

// The name of the file without its folders.
std::string_view FileNameOf(std::string_view path) {
  const std::size_t separator = path.find_last_of("/\\");
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

void WriteProperties(SafWriter& writer, const ExportOptions& options) {
  const std::string_view name = FileNameOf(options.source);
  const std::string& project = writer.building.projectGuid;
  const std::string projectId = writer.ids.Take(project, "project");
  const std::string modelId = writer.ids.Take("model");
  writer.workbook["Project"].WriteProperties({{"Name", name}, {"Id", projectId}});
  writer.workbook["Model"].WriteProperties({
      {"Name", name},
      {"Description", writer.building.schema},
      {"Source type", "IFC"},
      {"Source application", writer.building.application},
      {"SAF Version", "2.2.0"},
      {"Global coordinate system", "Z vertical"},
      // Upwards, to the right, and towards the viewer.
      {"LCS of cross-section", "ZYX"},
      {"System of units", "Metric"},
      {"National code", "EC-Standard-EN"},
      {"Id", modelId},
  });
}

void WriteHeaders(Workbook& workbook) {
  for (const SheetColumns& sheet : Sheets()) {
    if (sheet.name != "Project" && sheet.name != "Model") workbook[sheet.name].WriteHeaders();
  }
}

// Writes an element by its kind. An element that does not fit as a member or a surface is written
// as a body if its boundary is known.
Obstacle WriteElement(SafWriter& writer, const BuildingElement& element) {
  if (element.kind == ElementKind::kBody) return WriteProxy(writer, element);
  const Obstacle obstacle = element.kind == ElementKind::kMember ? WriteMember(writer, element)
                                                                 : WriteSurface(writer, element);
  if (obstacle.empty()) return obstacle;
  return WriteProxy(writer, element).empty() ? Obstacle() : obstacle;
}

// Returns how many elements were written.
std::size_t WriteElements(SafWriter& writer, const ExportOptions& options) {
  const std::vector<BuildingElement>& elements = writer.building.elements;
  std::size_t written = 0;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (i % kProgressStep == 0) ReportProgress(options, i, elements.size());
    const bool isPart = elements[i].partOf != 0;
    const Obstacle obstacle = isPart ? kPartsOmitted : WriteElement(writer, elements[i]);
    if (obstacle.empty()) {
      ++written;
    } else {
      writer.omissions.Add(obstacle);
    }
  }
  return written;
}

void WriteNodes(SafWriter& writer) {
  Table& table = writer.workbook["StructuralPointConnection"];
  for (std::size_t i = 0; i < writer.nodes.GetCount(); ++i) {
    const Point3& point = writer.nodes[i];
    const std::string name = NodeList::NameOf(i);
    table.BeginRow();
    table.Set("Name", name);
    table.Set("Coordinate X [m]", point.x);
    table.Set("Coordinate Y [m]", point.y);
    table.Set("Coordinate Z [m]", point.z);
    table.Set("Id", writer.ids.Take("node/" + name));
  }
}

ExportResult WriteSaf(const Building& building, const ExportOptions& options) {
  WorkbookFile file(options.path);
  const bool isLarge = EstimateRows(building) > kLargeWorkbook;
  Workbook workbook(file.GetPath(), options.path, isLarge);
  WriteHeaders(workbook);
  SafWriter writer(building, options, workbook);
  WriteProperties(writer, options);
  ExportResult result;
  result.elements = WriteElements(writer, options);
  WriteNodes(writer);
  workbook.Close();
  ReportProgress(options, 1, 1);
  file.Commit();

  writer.omissions.Add("directions of true north", building.trueNorth ? 1 : 0);
  writer.omissions.Add("texts shortened",
                       workbook.GetShortenedTexts() + writer.names.GetShortened() +
                           writer.materials.GetShortened() + writer.sections.GetShortened());
  result.omissions = writer.omissions.GetOmissions();
  return result;
}

}  // namespace

ExportFormat SafFormat() { return {"saf", ".xlsx", "", WriteSaf}; }

}  // namespace KelIFC::exporting
