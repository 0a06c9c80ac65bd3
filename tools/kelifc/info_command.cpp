#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <typeinfo>
#include <unordered_map>
#include <utility>

#include "kelifc/core/text/ascii.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/json.h"
#include "tools/kelifc/keep_until_exit.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/output.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

using CountsByName = std::map<std::string, std::size_t>;

/// The content of a model. Text is UTF-8.
struct Info {
  std::string file;
  std::string release;
  std::string schema;
  std::size_t instances = 0;                 ///< with an instance number
  CountsByName entities;                     ///< by the name of the entity as the schema spells it
  CountsByName raw;                          ///< raw text, by the name of the entity in upper case
  std::optional<KelIFC::LoadReport> report;  ///< if the user asked for it
};

void Load(KelIFC::IfcServer& server, const InfoOptions& options) {
  if (options.report) {
    LoadModelWithReport(server, options.model, options.reading);
  } else {
    LoadModel(server, options.model, options.reading);
  }
}

/// Counts the instances of each class. The class decides the entity, except for raw text.
class EntityCounts {
 public:
  explicit EntityCounts(const KelIFC::IfcServer& server) : server(server) {}

  void Add(const KelIFC::IfcUnknown& instance) {
    const std::type_info& type = typeid(instance);
    std::size_t& count = classes[&type];
    if (count++ == 0) names[&type] = instance.GetStepName();
    if (type == typeid(KelIFC::IfcOther)) AddRaw(static_cast<const KelIFC::IfcOther&>(instance));
  }

  void MoveTo(Info& info) {
    for (const auto& [type, count] : classes) {
      info.instances += count;
      if (*type != typeid(KelIFC::IfcOther)) info.entities[names[type]] += count;
    }
    info.raw = std::move(raw);
  }

 private:
  void AddRaw(const KelIFC::IfcOther& other) {
    ++raw[Utf8FromModel(server, KelIFC::ascii::ToUpperCase(other.GetStepEntityName()))];
  }

  const KelIFC::IfcServer& server;
  std::unordered_map<const std::type_info*, std::size_t> classes;
  std::unordered_map<const std::type_info*, std::string> names;
  CountsByName raw;
};

Info ReadInfo(const InfoOptions& options) {
  KelIFC::IfcServer& server = *KeepUntilExit(std::make_unique<KelIFC::IfcServer>());
  Load(server, options);
  Info info;
  if (options.report) info.report = server.GetLoadReport();
  info.file = options.model;
  info.release = ReleaseText(server.GetRelease());
  info.schema = Utf8FromModel(server, server.GetFileSchema());
  EntityCounts counts(server);
  for (std::size_t number = server.GetNextNumber(0); number != 0;
       number = server.GetNextNumber(number)) {
    if (const auto* instance = server.GetItem(number)) counts.Add(*instance);
  }
  counts.MoveTo(info);
  return info;
}

std::string InfoJson(const Info& info) {
  Json object = {
      {"file", info.file},           {"release", info.release},         {"schema", info.schema},
      {"instances", info.instances}, {"entities", Json(info.entities)}, {"raw", Json(info.raw)}};
  if (info.report) object["report"] = Json::parse(KelIFC::FormatReportAsJson(*info.report));
  return ToText(object);
}

std::string CountTable(const char* title, const CountsByName& counts) {
  if (counts.empty()) return "";
  TextTable table({title, "count"}, {false, true});
  for (const auto& [name, count] : counts) table.Add({name, std::to_string(count)});
  return "\n" + table.ToText();
}

std::string InfoText(const Info& info) {
  TextTable head({"File", info.file});
  head.Add({"Release", info.release});
  head.Add({"Schema", info.schema});
  head.Add({"Instances", std::to_string(info.instances)});
  return head.ToText() + CountTable("Entity", info.entities) +
         CountTable("Kept as raw text", info.raw) +
         (info.report ? "\n" + KelIFC::FormatReport(*info.report) : "");
}

}  // namespace

void RunInfo(const InfoOptions& options) {
  const Info info = ReadInfo(options);
  WriteOutput("", options.json ? InfoJson(info) : InfoText(info));
}

}  // namespace command
