#include "tools/schemac/core_classes.h"
#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

constexpr std::string_view kAllDescriptions = "the descriptions in kelifc/schema";

constexpr std::string_view kForward = R"(namespace KelIFC {
class BOOLEAN;
}

/// The classes of release @release@.
namespace @namespace@ {

using namespace KelIFC;
using KelIFC::BOOLEAN;  // a system may have a global type of this name

@classes@
}  // namespace @namespace@

)";

constexpr std::string_view kClassList = R"(#include "kelifc/schema/@folder@/fwd.h"
#include "kelifc/server/release.h"

namespace KelIFC {

/// The classes of release @release@, for templates that work with all releases.
struct Release@suffix@ {
  static constexpr IFC_RELEASE kRelease = @constant@;

@uses@
  /// Calls `visit.template operator()<Class>()` for each class.
  template <class Visitor>
  static void ForEachClass(Visitor&& visit) {
@visits@  }
};

}  // namespace KelIFC

)";

constexpr std::string_view kUmbrella =
    R"(// All classes of release @release@, with those that all releases share.
@includes@#include "kelifc/schema/@folder@/release.h"

)";

constexpr std::string_view kCoreEnumerations = R"(#include <cstdint>

#include "kelifc/core/enum_text.h"

namespace KelIFC {

@enumerations@}  // namespace KelIFC

)";

std::vector<std::string> ClassNames(const ReleaseModel& model) {
  std::vector<std::string> names;
  for (const auto& type : model.classes) names.push_back(type.entity->name);
  for (const auto& [name, type] : model.definedTypes) names.push_back(name);
  return names;
}

/// Returns `form`, a template of one line, for each name.
std::string ForEach(const std::vector<std::string>& names, std::string_view form,
                    TemplateWords words) {
  TextWriter out;
  for (const auto& name : names) {
    words["name"] = name;
    out.Fill(form, words);
  }
  return out.Text();
}

void AddHeader(Files& files, const std::string& path, std::string_view form,
               const TemplateWords& words) {
  files[path] = GuardedHeader(path, kAllDescriptions, Fill(form, words));
}

std::vector<std::string> HeadersOf(const Description& description, const ReleaseInfo& info) {
  const auto core = CoreHeaders();
  std::vector<std::string> headers(core.begin(), core.end());
  for (const auto& family : description.families) {
    headers.push_back(FamilyFile(info.folder, family.name, ".h"));
  }
  return headers;
}

}  // namespace

void EmitRelease(const Description& description, const ReleaseModel& model, Files& files) {
  const ReleaseInfo& info = kReleases[model.release];
  const std::vector<std::string> names = ClassNames(model);
  TemplateWords words = WordsOf(info);
  words["classes"] = ForEach(names, "class @name@;\n", words);
  words["uses"] = ForEach(names, "  using @name@ = @namespace@::@name@;\n", words);
  words["visits"] = ForEach(names, "    visit.template operator()<@name@>();\n", words);
  words["includes"] = ForEach(HeadersOf(description, info), "#include \"@name@\"\n", words);
  AddHeader(files, Fill("kelifc/schema/@folder@/fwd.h", words), kForward, words);
  AddHeader(files, Fill("kelifc/schema/@folder@/release.h", words), kClassList, words);
  AddHeader(files, Fill("kelifc/schema/@folder@.h", words), kUmbrella, words);
}

void EmitCoreEnumerations(const Description& description, Files& files) {
  for (const auto& family : description.families) {
    TextWriter enumerations;
    for (const auto& enumeration : description.enumerations) {
      const bool isShared = enumeration.isCore && enumeration.family == family.name;
      if (!isShared || enumeration.tables.empty()) continue;
      EmitEnumeration(enumerations, enumeration, enumeration.tables.front());
    }
    if (enumerations.Text().empty()) continue;
    const std::string path = FamilyFile("core", family.name, ".h");
    files[path] = GuardedHeader(path, DescriptionFile(family.name),
                                Fill(kCoreEnumerations, {{"enumerations", enumerations.Text()}}));
  }
}

}  // namespace schemac
