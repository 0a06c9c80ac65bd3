#ifndef KELIFC_TOOLS_COMGEN_DESCRIPTION_H_
#define KELIFC_TOOLS_COMGEN_DESCRIPTION_H_

#include <string>
#include <vector>

#include "tools/schemac/diagnostics.h"

// The content of the description of an object model. The text consists of entries; the lines of an
// entry after the first are indented:
//
//   library NAME {IDENTIFIER}
//   interface NAME [: BASE] {IDENTIFIER}
//   collection NAME of ITEM {IDENTIFIER}        an interface that begins with the three operations
//                                               of a collection
//     get NAME: KIND                            get_NAME, which returns a value
//     put NAME: KIND                            put_NAME, which sets a value
//     getput NAME: KIND                         both, in this order
//     NAME(ARGUMENT: KIND, out ARGUMENT: KIND)  an operation with its arguments
//     reserved [COUNT] (KIND, ...)              operations that return E_NOTIMPL
//   class NAME "PROGID" {IDENTIFIER} : INTERFACE, ...
//     header PATH                               the header that declares its C++ class; without it
//                                               no objects can be created
//     reserved INTERFACE[.OPERATION]            operations that this class does not offer
//
// A KIND is the name of an interface or one of the words below. ` -- ` starts the doc comment of an
// entry or an operation. `#` at the start of a line starts a comment. A line that begins with six
// blanks or more continues the line above.

namespace comgen {

using schemac::Place;

enum class Kind {
  kPointer,  ///< "pointer", in reserved operations
  kLong,     ///< "long", 32 bits
  kShort,    ///< "short", 16 bits
  kDouble,   ///< "double"
  kBool,     ///< "bool", -1 or 0 in 16 bits
  kString,   ///< "string"
  kVariant,  ///< "variant"
  kUnknown,  ///< "unknown", IUnknown
  kInterface,
};

/// The type of an argument or an item.
struct Type {
  Place place;
  Kind kind = Kind::kPointer;
  std::string interface;  ///< for kInterface
};

struct Argument {
  Type type;
  std::string name;  ///< empty in reserved operations
  bool isOut = false;
};

struct Operation {
  enum class Role { kMethod, kGet, kPut, kReserved };

  Place place;
  Role role = Role::kMethod;
  std::string name;  ///< as in C++; Resolve names reserved operations
  std::vector<Argument> arguments;
  std::string doc;
};

struct Interface {
  Place place;
  std::string name;
  std::string base;        ///< empty if the base is IDispatch
  std::string identifier;  ///< 36 characters, without braces
  std::string doc;
  std::vector<Operation> operations;  ///< without those of the base, in order
};

/// Operations of an interface that a class does not offer.
struct Omission {
  Place place;
  std::string interface;
  std::string operation;  ///< empty for all of them
};

struct Class {
  Place place;
  std::string name;
  std::string progId;
  std::string identifier;
  std::vector<std::string> interfaces;  ///< in the order in which a query tries them
  std::string header;
  std::vector<Omission> omissions;
};

struct Library {
  std::string name;
  std::string identifier;
  std::string doc;
};

struct Description {
  std::string file;
  Library library;
  std::vector<Interface> interfaces;
  std::vector<Class> classes;

  /// Returns the interface with a name, or null.
  const Interface* Find(const std::string& name) const;

  /// Returns all operations of an interface in order, beginning with those of its bases.
  std::vector<const Operation*> AllOperations(const Interface& interface) const;

  /// Returns the interfaces of a class that are not bases of another of its interfaces. The class
  /// derives from them.
  std::vector<const Interface*> Roots(const Class& type) const;

  /// Returns true if the interface has the name or derives from an interface that has it.
  bool Has(const Interface& interface, const std::string& name) const;

  /// Returns true if an interface derives from the one with the name.
  bool IsBase(const std::string& name) const;
};

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_DESCRIPTION_H_
