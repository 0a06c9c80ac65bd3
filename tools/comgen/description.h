#ifndef KELIFC_TOOLS_COMGEN_DESCRIPTION_H_
#define KELIFC_TOOLS_COMGEN_DESCRIPTION_H_

#include <string>
#include <vector>

#include "tools/schemac/diagnostics.h"

// What a description of an object model says. It is text, one entry after the other; the lines of
// an entry are indented:
//
//   library NAME {IDENTIFIER}
//   interface NAME [: BASE] {IDENTIFIER}
//   collection NAME of ITEM {IDENTIFIER}        an interface that begins with the three operations
//                                               of a collection
//     get NAME: KIND                            get_NAME, which gives a value
//     put NAME: KIND                            put_NAME, which takes one
//     getput NAME: KIND                         both, in this order
//     NAME(ARGUMENT: KIND, out ARGUMENT: KIND)  an operation with its arguments
//     reserved [COUNT] (KIND, ...)              places without an operation: they answer E_NOTIMPL
//   class NAME "PROGID" {IDENTIFIER} : INTERFACE, ...
//     header PATH                               where its C++ class stands; without, none is made
//     reserved INTERFACE[.OPERATION]            operations that this class does not offer
//
// A KIND is the name of an interface or one of the words below. ` -- ` begins the doc comment of
// the entry or operation, `#` at the head of a line a comment; six blanks or more go on with the
// line above.

namespace comgen {

using schemac::Place;

enum class Kind {
  kPointer,  ///< "pointer", in reserved places
  kLong,     ///< "long", 32 bits
  kShort,    ///< "short", 16 bits
  kDouble,   ///< "double"
  kBool,     ///< "bool", -1 or 0 in 16 bits
  kString,   ///< "string"
  kVariant,  ///< "variant"
  kUnknown,  ///< "unknown", the root interface
  kInterface,
};

/// What an argument or an item is.
struct Type {
  Place place;
  Kind kind = Kind::kPointer;
  std::string interface;  ///< for kInterface
};

struct Argument {
  Type type;
  std::string name;  ///< empty in reserved places
  bool isOut = false;
};

struct Operation {
  enum class Role { kMethod, kGet, kPut, kReserved };

  Place place;
  Role role = Role::kMethod;
  std::string name;  ///< as in C++; a reserved place gets one when the description is resolved
  std::vector<Argument> arguments;
  std::string doc;
};

struct Interface {
  Place place;
  std::string name;
  std::string base;        ///< empty for IDispatch
  std::string identifier;  ///< 36 characters, without braces
  std::string doc;
  std::vector<Operation> operations;  ///< its own, in order
};

/// Operations that a class leaves out although its interface has them.
struct Omission {
  Place place;
  std::string interface;
  std::string operation;  ///< empty for all
};

struct Class {
  Place place;
  std::string name;
  std::string progId;
  std::string identifier;
  std::vector<std::string> interfaces;  ///< in the order of a query
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

  /// The interface of a name, null if there is none.
  const Interface* Find(const std::string& name) const;

  /// All operations of an interface in order, those of its bases first.
  std::vector<const Operation*> AllOperations(const Interface& interface) const;

  /// The interfaces of a class that are no base of another one of them: what the class derives
  /// from.
  std::vector<const Interface*> Roots(const Class& type) const;

  /// True if the interface is, or derives from, the one named.
  bool Has(const Interface& interface, const std::string& name) const;

  /// True if some interface derives from the one named.
  bool IsBase(const std::string& name) const;
};

}  // namespace comgen

#endif  // KELIFC_TOOLS_COMGEN_DESCRIPTION_H_
