#include <string>

#include "tools/kelifc/audit_format.h"
#include "tools/kelifc/elements_format.h"
#include "tools/kelifc/text.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

using KelIFC::ElevationFinding;

std::string Number(std::size_t number) { return std::to_string(number); }

std::string Reasons(const KelIFC::ClassAudit& audit) {
  std::string text;
  for (std::size_t i = 0; i < audit.lost.size(); ++i) {
    if (audit.lost[i] == 0) continue;
    text += text.empty() ? "" : ", ";
    text += std::string(TextOf(static_cast<KelIFC::LossReason>(i))) + " " + Number(audit.lost[i]);
  }
  return text;
}

TextTable::Row ClassRow(const std::string& name, const KelIFC::BuildingTotals& totals,
                        const std::string& reasons) {
  return {name,
          Number(totals.products),
          Number(totals.members),
          Number(totals.surfaces),
          Number(totals.bodies),
          Number(totals.decomposed),
          Number(totals.approximate),
          Number(totals.lost),
          reasons};
}

std::string ClassTable(const KelIFC::BuildingAudit& audit, const KelIFC::Building& building) {
  TextTable table({"class", "products", "members", "surfaces", "bodies", "decomposed",
                   "approximate", "lost", "reasons"},
                  {false, true, true, true, true, true, true, true});
  for (const auto& entry : audit.classes) {
    table.Add(ClassRow(entry.className, entry.totals, Reasons(entry)));
  }
  table.Add(ClassRow("all", building.totals, ""));
  return table.ToText();
}

const char* FindingText(ElevationFinding finding) {
  switch (finding) {
    case ElevationFinding::kMissing:
      return "no elevation";
    case ElevationFinding::kEqual:
      return "same elevation as another storey";
    case ElevationFinding::kNone:
      break;
  }
  return "";
}

std::string StoreyTable(const KelIFC::BuildingAudit& audit) {
  if (audit.storeys.empty()) return "";
  TextTable table({"id", "name", "elevation (m)", "stated", "by height", "differing", ""},
                  {true, false, true, true, true, true});
  for (const auto& storey : audit.storeys) {
    const bool isMissing = storey.finding == ElevationFinding::kMissing;
    table.Add({Number(storey.id), Visible(storey.name), isMissing ? "-" : Brief(storey.elevation),
               Number(storey.stated), Number(storey.byHeight), Number(storey.differing.size()),
               FindingText(storey.finding)});
  }
  return "\nStoreys\n" + table.ToText() +
         (audit.hasMixedElevations ? "  Some storeys have an elevation, and others do not.\n" : "");
}

std::string ContradictionTable(const KelIFC::Building& building) {
  TextTable table({"profile", "shape", "designation of the shape"});
  bool isEmpty = true;
  for (const auto& profile : building.profiles) {
    if (!profile.nameContradicts) continue;
    isEmpty = false;
    table.Add({Visible(profile.name), std::string(TextOf(profile.shape)), profile.designation});
  }
  return isEmpty ? "" : "\nProfiles whose name contradicts their shape\n" + table.ToText();
}

std::string ExportTable(const AuditedExports& exports) {
  if (!exports) return "";
  TextTable table({"format", "elements", "left out"}, {false, true});
  for (const CountedExport& counted : *exports) {
    std::string omissions;
    for (const KelIFC::ExportOmission& omission : counted.result.omissions) {
      omissions += omissions.empty() ? "" : ", ";
      omissions += omission.what + " " + Number(omission.count);
    }
    table.Add({std::string(counted.format), Number(counted.result.elements), omissions});
  }
  return "\nExports\n" + table.ToText();
}

}  // namespace

std::string AuditTable(const std::string& file, const KelIFC::Building& building,
                       const AuditedExports& exports) {
  const KelIFC::BuildingAudit audit = Audit(building);
  return Visible(file) + "\n\n" + ClassTable(audit, building) + StoreyTable(audit) +
         ContradictionTable(building) + LossTable(building) + ExportTable(exports);
}

}  // namespace command
