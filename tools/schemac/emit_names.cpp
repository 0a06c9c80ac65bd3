#include <algorithm>
#include <cctype>

#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

std::string ToUpper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

/// The names that a file can instantiate, in alphabetical order.
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
  const ReleaseInfo& info = kReleases[model.release];
  const auto names = FileNames(model);
  TextWriter out;
  out.Line(GeneratedBy("the descriptions in kelifc/schema"));
  out.Line("#include \"kelifc/schema/" + std::string(info.folder) + ".h\"");
  out.Line("#include \"kelifc/server/name_table.h\"");
  out.Line("#include \"kelifc/server/release_tables.h\"");
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line();
  if (names.empty()) {
    out.Line("IfcUnknown* MakeInstance" + std::string(info.suffix) +
             "(const char*) { return nullptr; }");
  } else {
    out.Line("namespace {");
    out.Line();
    out.Line("constexpr NameRow kRows[] = {");
    for (const auto& name : names) {
      out.Line("    {\"" + ToUpper(name) + "\", MakeNew<" + std::string(info.nameSpace) +
               "::" + name + ">},");
    }
    out.Line("};");
    out.Line();
    out.Line("constexpr NameTable kTable(kRows);");
    out.Line();
    out.Line("}  // namespace");
    out.Line();
    out.Line("IfcUnknown* MakeInstance" + std::string(info.suffix) +
             "(const char* name) { return kTable.Make(name); }");
  }
  out.Line();
  out.Line("}  // namespace KelIFC");
  files["kelifc/schema/" + std::string(info.folder) + "/names.cpp"] = out.Text();
}

}  // namespace schemac
