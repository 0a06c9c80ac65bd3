#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

std::vector<std::string> ClassNames(const ReleaseModel& model) {
  std::vector<std::string> names;
  for (const auto& type : model.classes) names.push_back(type.entity->name);
  for (const auto& [name, type] : model.definedTypes) names.push_back(name);
  return names;
}

void EmitForward(const ReleaseModel& model, Files& files) {
  const ReleaseInfo& info = kReleases[model.release];
  const std::string path = "kelifc/schema/" + std::string(info.folder) + "/fwd.h";
  TextWriter out;
  out.Line(GeneratedBy("the descriptions in kelifc/schema"));
  out.Line("#ifndef " + Guard(path));
  out.Line("#define " + Guard(path));
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line("class BOOLEAN;");
  out.Line("}");
  out.Line();
  out.Line("/// The classes of release " + std::string(info.mark) + ".");
  out.Line("namespace " + std::string(info.nameSpace) + " {");
  out.Line();
  out.Line("using namespace KelIFC;");
  out.Line("using KelIFC::BOOLEAN;  // a system may have a global type of this name");
  out.Line();
  for (const auto& name : ClassNames(model)) out.Line("class " + name + ";");
  out.Line();
  out.Line("}  // namespace " + std::string(info.nameSpace));
  out.Line();
  out.Line("#endif  // " + Guard(path));
  files[path] = out.Text();
}

void EmitClassList(const ReleaseModel& model, Files& files) {
  const ReleaseInfo& info = kReleases[model.release];
  const std::string path = "kelifc/schema/" + std::string(info.folder) + "/release.h";
  const std::string name = "Release" + std::string(info.suffix);
  TextWriter out;
  out.Line(GeneratedBy("the descriptions in kelifc/schema"));
  out.Line("#ifndef " + Guard(path));
  out.Line("#define " + Guard(path));
  out.Line();
  out.Line("#include \"kelifc/schema/" + std::string(info.folder) + "/fwd.h\"");
  out.Line("#include \"kelifc/server/release.h\"");
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line();
  out.Doc("", "The classes of release " + std::string(info.mark) +
                  " under one name, for logic that is written once over the releases.");
  out.Line("struct " + name + " {");
  out.Line("  static constexpr IFC_RELEASE kRelease = " + std::string(info.constant) + ";");
  out.Line();
  for (const auto& type : ClassNames(model)) {
    out.Line("  using " + type + " = " + std::string(info.nameSpace) + "::" + type + ";");
  }
  out.Line();
  out.Doc("  ", "Calls `visit.template operator()<Class>()` for each class.");
  out.Line("  template <class Visitor>");
  out.Line("  static void ForEachClass(Visitor&& visit) {");
  for (const auto& type : ClassNames(model)) {
    out.Line("    visit.template operator()<" + type + ">();");
  }
  out.Line("  }");
  out.Line("};");
  out.Line();
  out.Line("}  // namespace KelIFC");
  out.Line();
  out.Line("#endif  // " + Guard(path));
  files[path] = out.Text();
}

void EmitUmbrella(const Description& description, const ReleaseModel& model, Files& files) {
  const ReleaseInfo& info = kReleases[model.release];
  const std::string folder(info.folder);
  const std::string path = "kelifc/schema/" + folder + ".h";
  TextWriter out;
  out.Line(GeneratedBy("the descriptions in kelifc/schema"));
  out.Line("#ifndef " + Guard(path));
  out.Line("#define " + Guard(path));
  out.Line();
  out.Line("// Every class of release " + std::string(info.mark) +
           ", those of all releases included.");
  for (const auto& header : CoreHeaders()) out.Line("#include \"" + header + "\"");
  for (const auto& family : description.families) {
    out.Line("#include \"" + FamilyFile(folder, family.name, ".h") + "\"");
  }
  out.Line("#include \"kelifc/schema/" + folder + "/release.h\"");
  out.Line();
  out.Line("#endif  // " + Guard(path));
  files[path] = out.Text();
}

}  // namespace

void EmitRelease(const Description& description, const ReleaseModel& model, Files& files) {
  EmitForward(model, files);
  EmitClassList(model, files);
  EmitUmbrella(description, model, files);
}

void EmitCoreEnumerations(const Description& description, Files& files) {
  for (const auto& family : description.families) {
    const std::string path = FamilyFile("core", family.name, ".h");
    TextWriter out;
    out.Line(GeneratedBy("kelifc/schema/" + family.name + ".schema"));
    out.Line("#ifndef " + Guard(path));
    out.Line("#define " + Guard(path));
    out.Line();
    out.Line("#include <cstdint>");
    out.Line();
    out.Line("#include \"kelifc/core/enum_text.h\"");
    out.Line();
    out.Line("namespace KelIFC {");
    out.Line();
    bool hasAny = false;
    for (const auto& enumeration : description.enumerations) {
      if (!enumeration.isCore || enumeration.family != family.name) continue;
      EmitEnumeration(out, enumeration, enumeration.tables.front());
      hasAny = true;
    }
    out.Line("}  // namespace KelIFC");
    out.Line();
    out.Line("#endif  // " + Guard(path));
    if (hasAny) files[path] = out.Text();
  }
}

}  // namespace schemac
