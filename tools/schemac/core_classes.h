#ifndef KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_
#define KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/kinds.h"

namespace schemac {

/// The class at the end of each chain of Parse and Write.
inline constexpr std::string_view kRoot = "IfcUnknown";

/// What a class of the core is in the schema.
enum class CoreForm : std::uint8_t {
  kEntity,    ///< a file can name it
  kAbstract,  ///< an entity that other entities derive from
  kSelect,    ///< a group of the classes that derive from it
  kValue,     ///< a value that is written with the name of its type
  kOther,     ///< the schema does not have it
};

/// A class of the core, which is written by hand for all releases and which entities use.
struct CoreClass {
  std::string_view name;
  std::string_view header;
  bool isUnknown;  ///< derives from IfcUnknown
  bool hasParse;   ///< can come first in a chain of Parse and Write
  CoreForm form;
  std::array<std::string_view, 2> bases = {};  ///< in the schema; empty for none
};

/// An attribute of a class of the core.
struct CoreAttribute {
  std::string_view owner;
  std::string_view name;
  Kind kind;
  std::string_view target;
  std::string_view getter;
  std::string_view setter;
};

/// Returns the row of a name. Returns null for a name that is not a class of the core.
const CoreClass* FindCoreClass(std::string_view name);

/// Returns all classes of the core, each after its bases.
std::vector<const CoreClass*> CoreClasses();

/// Returns the attributes of a class of the core, in the order of the file. The schema requires all
/// of them.
std::vector<const CoreAttribute*> AttributesOf(const CoreClass& type);

/// Returns the headers of all classes of the core.
std::set<std::string> CoreHeaders();

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_CORE_CLASSES_H_
