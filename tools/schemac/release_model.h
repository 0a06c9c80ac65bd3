#ifndef KELIFC_TOOLS_SCHEMAC_RELEASE_MODEL_H_
#define KELIFC_TOOLS_SCHEMAC_RELEASE_MODEL_H_

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/description.h"

namespace schemac {

/// An operation of the C++ class of one release.
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
  Place place;                    ///< of its description
  Place bodyPlace;                ///< of its definition, where it is written by hand

  /// What it does with an attribute of the class, if its name says that.
  enum class Role { kNone, kGetter, kSetter, kAdder };
  Role role = Role::kNone;
  std::string attribute;
};

/// A constructor, Parse or Write that is written by hand.
struct HandWritten {
  std::string text;  ///< the parameters of a constructor, in parentheses
  Place place;       ///< of its description
  Place bodyPlace;   ///< of its definition
};

/// An entity in one release.
struct ResolvedClass {
  const Entity* entity = nullptr;
  std::vector<std::string> bases;
  std::vector<const Attribute*> attributes;
  std::vector<Step> reads;
  std::vector<Step> writes;
  std::vector<Step> positions;  ///< those of a statement, after the ones of `recordBase`
  std::string readBase;         ///< class whose Parse runs first
  std::string writeBase;        ///< class whose Write runs first
  std::string recordBase;       ///< class whose positions come first in a statement
  bool isUnknown = false;       ///< derives from IfcUnknown
  bool hasParse = false;
  bool hasWrite = false;
  std::optional<HandWritten> customParse;
  std::optional<HandWritten> customWrite;
  std::vector<ResolvedOperation> operations;
  std::vector<HandWritten> constructors;
  std::vector<std::string> departures;
  std::vector<const Body*> bodies;  ///< the sections of code that is written by hand
};

/// A free function in one release.
struct ResolvedFunction {
  const Function* function = nullptr;
  Place bodyPlace;
  std::vector<const Body*> bodies;
};

/// Everything of one release, in the order of the description. It refers to the description, which
/// has to live as long.
struct ReleaseModel {
  std::size_t release = 0;
  std::vector<ResolvedClass> classes;
  std::map<std::string, std::size_t, std::less<>> indexOf;  ///< from class name into `classes`
  std::map<std::string, const DefinedType*, std::less<>> definedTypes;
  std::map<std::string, const Enumeration*, std::less<>> enumerations;
  std::vector<ResolvedFunction> functions;

  /// The class of a name; null for a name that the release lacks, and for a class of the core.
  const ResolvedClass* Find(std::string_view name) const;

  /// True for a class, select or defined type that a reference can be narrowed to, the classes of
  /// the core included.
  bool KnowsClass(std::string_view name) const;

  /// The attribute of a name in a class or in the classes above it; null if there is none.
  const Attribute* FindAttribute(const ResolvedClass& type, std::string_view name) const;

  /// The table of an enumeration in the release; null if it has none there.
  const EnumTable* FindTable(const Enumeration& enumeration) const;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_RELEASE_MODEL_H_
