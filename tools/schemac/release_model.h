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
  Place bodyPlace;                ///< of its definition, if it is written by hand

  /// What the operation does with an attribute of the class.
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
  std::vector<Step> positions;  ///< in a statement, after the positions of `recordBase`
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

/// All classes and functions of one release, in the order of the description. The model refers to
/// the description, which must outlive it.
struct ReleaseModel {
  std::size_t release = 0;
  std::vector<ResolvedClass> classes;
  std::map<std::string, std::size_t, std::less<>> indexOf;  ///< from class name into `classes`
  std::map<std::string, const DefinedType*, std::less<>> definedTypes;
  std::map<std::string, const Enumeration*, std::less<>> enumerations;
  std::vector<ResolvedFunction> functions;

  /// Returns the class with a name. Returns null for a name that the release does not have, and for
  /// a class of the core.
  const ResolvedClass* Find(std::string_view name) const;

  /// Returns true for a class, select or defined type that a reference can lead to. The classes of
  /// the core are included.
  bool KnowsClass(std::string_view name) const;

  /// Returns the attribute with a name in a class or in its bases, or null if there is none.
  const Attribute* FindAttribute(const ResolvedClass& type, std::string_view name) const;

  /// Returns the table of an enumeration in the release, or null if there is none.
  const EnumTable* FindTable(const Enumeration& enumeration) const;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_RELEASE_MODEL_H_
