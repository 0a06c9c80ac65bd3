#ifndef KELIFC_TOOLS_SCHEMAC_RESOLVER_H_
#define KELIFC_TOOLS_SCHEMAC_RESOLVER_H_

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/description.h"

namespace schemac {

/// An operation as it stands in the C++ class of one release.
struct ResolvedOperation {
  std::string name;
  std::string result;      ///< C++ type
  std::string parameters;  ///< C++ parameters with names, without parentheses
  bool isConst = false;
  bool isVirtual = true;
  bool isOverride = false;
  bool isProtected = false;
  std::string doc;
  std::vector<std::string> body;  ///< statements; empty: written by hand
};

/// An entity as it stands in one release.
struct ResolvedClass {
  const Entity* entity = nullptr;
  std::vector<std::string> bases;
  std::vector<const Attribute*> attributes;
  std::vector<Step> reads;
  std::vector<Step> writes;
  std::string readBase;    ///< class whose Parse runs first
  std::string writeBase;   ///< class whose Write runs first
  bool isUnknown = false;  ///< derives from IfcUnknown
  bool hasParse = false;
  bool hasWrite = false;
  bool customParse = false;
  bool customWrite = false;
  std::vector<ResolvedOperation> operations;
  std::vector<std::string> constructors;
  std::vector<std::string> departures;
  std::vector<std::string> bodies;  ///< files of the operations that are written by hand
};

/// Everything of one release, in the order of the description.
struct ReleaseModel {
  std::size_t release = 0;
  std::vector<ResolvedClass> classes;
  std::map<std::string, std::size_t, std::less<>> indexOf;  ///< class name to place in `classes`
  std::map<std::string, const DefinedType*, std::less<>> definedTypes;
  std::map<std::string, const Enumeration*, std::less<>> enumerations;
  std::vector<const Function*> functions;

  const ResolvedClass* Find(std::string_view name) const;

  /// True for a class, select or defined type that a reference can be narrowed to, the hand-written
  /// ones of the core included.
  bool KnowsClass(std::string_view name) const;
};

/// The hand-written classes that entities build on.
struct CoreClass {
  std::string_view name;
  std::string_view header;
  bool isUnknown;  ///< derives from IfcUnknown
  bool hasParse;   ///< can stand ahead in a chain of Parse and Write
};

const CoreClass* FindCoreClass(std::string_view name);

/// The headers of all of them.
std::set<std::string> CoreHeaders();

/// The table of an enumeration in a release, null if it has none there.
const EnumTable* FindTable(const Enumeration& enumeration, std::size_t release);

/// Resolves the description for one release. Throws DescriptionError where a name, a base or a
/// record does not hold together.
ReleaseModel Resolve(const Description& description, std::size_t release);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_RESOLVER_H_
