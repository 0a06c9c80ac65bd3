#ifndef KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_
#define KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_

#include <set>
#include <string>
#include <string_view>

namespace schemac {

/// The class at the end of each chain of Parse and Write.
inline constexpr std::string_view kRoot = "IfcUnknown";

/// A class that is written by hand in the core, for all releases, and that entities build on.
struct CoreClass {
  std::string_view name;
  std::string_view header;
  bool isUnknown;  ///< derives from IfcUnknown
  bool hasParse;   ///< can come first in a chain of Parse and Write
};

/// The row of a name; null for a name that is no class of the core.
const CoreClass* FindCoreClass(std::string_view name);

/// The headers of all of them.
std::set<std::string> CoreHeaders();

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_
