#include "tools/kelifc/audit_format.h"
#include "tools/kelifc/building_json.h"

namespace command {
namespace {

void WriteClass(JsonWriter& json, const KelIFC::ClassAudit& audit) {
  json.Key(audit.className);
  json.BeginObject();
  json.Member("products", audit.totals.products);
  json.Member("members", audit.totals.members);
  json.Member("surfaces", audit.totals.surfaces);
  json.Member("bodies", audit.totals.bodies);
  json.Member("decomposed", audit.totals.decomposed);
  json.Member("approximate", audit.totals.approximate);
  json.Key("lost");
  json.BeginObject();
  for (std::size_t i = 0; i < audit.lost.size(); ++i) {
    if (audit.lost[i] == 0) continue;
    json.Member(TextOf(static_cast<KelIFC::LossReason>(i)), audit.lost[i]);
  }
  json.EndObject();
  json.EndObject();
}

void WriteStorey(JsonWriter& json, const KelIFC::StoreyAudit& audit) {
  json.BeginObject();
  json.Member("id", audit.id);
  json.Member("name", audit.name);
  json.Key("elevation");
  audit.finding == KelIFC::ElevationFinding::kMissing ? json.Null() : json.Value(audit.elevation);
  json.Member("stated", audit.stated);
  json.Member("byHeight", audit.byHeight);
  WriteIdsMember(json, "differing", audit.differing);
  json.EndObject();
}

void WriteProfile(JsonWriter& json, const KelIFC::BuildingProfile& profile) {
  json.BeginObject();
  json.Member("name", profile.name);
  json.Member("shape", TextOf(profile.shape));
  json.Member("contradicts", profile.nameContradicts);
  json.EndObject();
}

void WriteExports(JsonWriter& json, const std::vector<CountedExport>& exports) {
  json.Key("exports");
  json.BeginList();
  for (const CountedExport& counted : exports) {
    json.BeginObject();
    json.Member("format", counted.format);
    json.Member("elements", counted.result.elements);
    json.Key("omissions");
    json.BeginList();
    for (const KelIFC::ExportOmission& omission : counted.result.omissions) {
      json.BeginObject();
      json.Member("what", omission.what);
      json.Member("count", omission.count);
      json.EndObject();
    }
    json.EndList();
    json.EndObject();
  }
  json.EndList();
}

}  // namespace

void WriteAuditJson(Output& output, const std::string& file, const KelIFC::Building& building,
                    const AuditedExports& exports) {
  const KelIFC::BuildingAudit audit = Audit(building);
  JsonWriter json(output);
  json.BeginObject();
  json.Member("file", file);
  json.Key("classes");
  json.BeginObject();
  for (const auto& entry : audit.classes) WriteClass(json, entry);
  json.EndObject();
  json.Key("storeys");
  json.BeginList();
  for (const auto& storey : audit.storeys) WriteStorey(json, storey);
  json.EndList();
  json.Key("profiles");
  json.BeginList();
  for (const auto& profile : building.profiles) WriteProfile(json, profile);
  json.EndList();
  WriteMember(json, "losses", building.losses);
  if (exports) WriteExports(json, *exports);
  json.EndObject();
}

}  // namespace command
