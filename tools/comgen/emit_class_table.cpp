#include <set>

#include "tools/comgen/emit_text.h"

namespace comgen {

void EmitClassTable(const Description& description, const std::string& version, Files& files) {
  std::set<std::string> headers = {"kelifc/geo/interfaces.h", "kelifc/platform/com_class.h",
                                   "kelifc/platform/com_object.h"};
  for (const Class& type : description.classes) {
    if (!type.header.empty()) headers.insert(type.header);
  }
  TextWriter out;
  out.Line(GeneratedBy(description));
  for (const std::string& header : headers) out.Line("#include \"" + header + "\"");
  out.Line();
  out.Line("namespace KelIFC {");
  out.Line();
  out.Line("namespace {");
  out.Line();
  out.Line("constexpr ComClass kClasses[] = {");
  for (const Class& type : description.classes) {
    if (type.header.empty()) continue;
    out.Line("    {" + type.name + "::kClsid, " + type.name + "::kProgId, MakeObject<" + type.name +
             ">},");
  }
  out.Line("};");
  out.Line();
  out.Line("}  // namespace");
  out.Line();
  out.Line("std::span<const ComClass> ComClasses() { return kClasses; }");
  out.Line();
  const auto dot = version.find('.');
  out.Line("TypeLibraryVersion ComTypeLibrary() { return {LIBID_" + description.library.name +
           ", " + version.substr(0, dot) + ", " + version.substr(dot + 1) + "}; }");
  out.Line();
  out.Line("}  // namespace KelIFC");
  files["kelifc/geo/class_table.cpp"] = out.Text();
}

}  // namespace comgen
