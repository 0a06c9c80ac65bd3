#include <algorithm>
#include <cctype>

#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kNamesHead = R"(@generated@
#include "kelifc/schema/@folder@.h"
#include "kelifc/server/name_table.h"
#include "kelifc/server/release_tables.h"

namespace KelIFC {

)";

constexpr std::string_view kNoNames =
    R"(IfcUnknown* MakeInstance@suffix@(const EntityName&) { return nullptr; }
)";

constexpr std::string_view kNamesTable = R"(namespace {

constexpr NameRow kRows[] = {
@rows@};

constexpr NameTable kNamesTable(kRows);

}  // namespace

IfcUnknown* MakeInstance@suffix@(const EntityName& name) { return kNamesTable.Make(name); }
)";

constexpr std::string_view kNamesRow = R"(    {"@upper@", MakeNew<@namespace@::@name@>},
)";

std::string ToUpper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

/// The entities that a file can contain, in alphabetical order.
std::vector<std::string> FileNames(const ReleaseModel& model) {
  std::vector<std::string> names;
  for (const auto& type : model.classes) {
    if (type.entity->file.Has(model.release)) names.push_back(type.entity->name);
  }
  for (const auto& [name, type] : model.definedTypes) {
    if (type->file.Has(model.release)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

void EmitNames(const ReleaseModel& model, Files& files) {
  const auto names = FileNames(model);
  TemplateWords words = WordsOf(kReleases[model.release]);
  words["generated"] = GeneratedBy("the descriptions in kelifc/schema");
  TextWriter rows;
  for (const auto& name : names) {
    words["name"] = name;
    words["upper"] = ToUpper(name);
    rows.Fill(kNamesRow, words);
  }
  words["rows"] = rows.Text();
  TextWriter out;
  out.Fill(kNamesHead, words);
  out.Fill(names.empty() ? kNoNames : kNamesTable, words);
  out.Line();
  out.Line("}  // namespace KelIFC");
  files[Fill("kelifc/schema/@folder@/names.cpp", words)] = out.Text();
}

}  // namespace schemac
