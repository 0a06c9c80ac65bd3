#ifndef KELIFC_TOOLS_SCHEMAC_DESCRIPTION_H_
#define KELIFC_TOOLS_SCHEMAC_DESCRIPTION_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/schemac/diagnostics.h"
#include "tools/schemac/kinds.h"
#include "tools/schemac/release_set.h"

namespace schemac {

/// An attribute that a class stores.
struct Attribute {
  Place place;
  std::string name;
  Kind kind = Kind::kString;
  std::string type;          ///< target class, enumeration or cached class; empty for none
  std::string initial;       ///< row of the enumeration or text that a new instance holds
  std::string absent;        ///< number that the getter gives while the attribute is unset
  std::string writtenAs;     ///< literal that is written whatever was read; empty: the value
  std::string published;     ///< the name in the schema; empty: the same
  std::string reason;        ///< why it departs from the regular form
  bool inFile = true;        ///< false: kept in memory only
  bool isInverse = false;    ///< filled by relationships
  bool isOwnerless = false;  ///< a reference that cannot resolve by itself
  bool isIgnored = false;    ///< a Parse that is written by hand skips the value of a file
  ReleaseSet required = ReleaseSet::None();  ///< where the schema does not let it be unset
  ReleaseSet releases = ReleaseSet::All();
};

/// One act of reading or writing a record, in the order of the file.
struct Step {
  enum class Act {
    kAttribute,  ///< read into and written from an attribute
    kDrop,       ///< read into a temporary, written as a literal
    kLiteral,    ///< not read, written as a literal
    kStar,       ///< the mark of a redeclared attribute: skipped, written as `*`
    kUnread,     ///< neither read nor written
    kLink,       ///< fills the inverse side of a relationship; nothing is written
  };
  Place place;
  Act act = Act::kAttribute;
  std::string name;          ///< the attribute; may be empty for what is not stored
  std::optional<Kind> kind;  ///< of a position that is not stored, where it is described
  std::string literal;       ///< what is written for kDrop and kLiteral
  std::string target;        ///< class of the instances that kLink reaches
  std::string operation;     ///< the operation that kLink calls on them
  std::string reason;
  ReleaseSet required = ReleaseSet::None();  ///< where the schema does not let it be unset
  ReleaseSet releases = ReleaseSet::All();
};

/// An item of an explicit order: the name of an attribute or of another position.
struct OrderItem {
  Place place;
  std::string name;
  bool isStar = false;  ///< the position of a redeclared attribute
};

/// An explicit order of the record, which replaces the order of the body's lines.
struct RecordOrder {
  bool forReading = true;
  bool forWriting = true;
  std::vector<OrderItem> items;
  ReleaseSet releases = ReleaseSet::All();
};

/// An operation of a class, as described.
struct Operation {
  Place place;
  std::string name;
  std::string attribute;      ///< the attribute it is about, where the name does not tell
  std::string parameters;     ///< in parentheses, for an operation with a signature
  std::string result;         ///< as described; empty: void
  bool bothForms = false;     ///< a writable and a const form
  bool isForward = false;     ///< calls the operation of the same name with '_' in front
  bool hasSignature = false;  ///< its body is written by hand
  bool isConst = false;
  bool isOverride = false;
  bool isVirtual = true;
  ReleaseSet releases = ReleaseSet::All();
};

/// A piece of text that holds for some releases: a base list, a class to go on with.
struct Marked {
  std::string text;
  ReleaseSet releases = ReleaseSet::None();
  Place place = {};
};

/// A class with attributes, or a select.
struct Entity {
  Place place;
  std::string family;
  std::string name;
  std::string doc;
  std::vector<Marked> bases;  ///< later ones replace earlier ones for their releases
  ReleaseSet releases = ReleaseSet::None();
  ReleaseSet file = ReleaseSet::None();  ///< where a file can name it
  ReleaseSet made = ReleaseSet::None();  ///< where a host can make it
  bool isAbstract = false;
  std::vector<Attribute> attributes;  ///< in stored order
  std::vector<Step> steps;            ///< in file order
  std::vector<RecordOrder> orders;
  std::vector<Operation> operations;  ///< in slot order
  std::vector<Marked> constructors;   ///< parameter lists; bodies are written by hand
  std::vector<Marked> chains;         ///< class whose Parse and Write go ahead of its own
  std::vector<Marked> customParse;    ///< where Parse is written by hand; no text
  std::vector<Marked> customWrite;
  ReleaseSet noParse = ReleaseSet::None();
  ReleaseSet noWrite = ReleaseSet::None();
  std::vector<Marked> departures;  ///< reasons that belong to no attribute
  /// Of what is written by hand, by the name of the operation. A constructor is named by the class
  /// and its parameters.
  std::map<std::string, std::string> comments;
};

/// A defined type: a class with a value as second base, behind the select it can stand in, or as
/// its only one.
struct DefinedType {
  Place place;
  std::string family;
  std::string name;
  std::string doc;
  std::string base;
  Kind kind = Kind::kString;
  ReleaseSet releases = ReleaseSet::None();
  ReleaseSet file = ReleaseSet::None();
};

/// The rows of an enumeration, in table order; none where the texts are kept as they stand.
struct EnumTable {
  std::vector<std::pair<std::string, std::int32_t>> rows;
  ReleaseSet releases = ReleaseSet::None();
};

struct Enumeration {
  Place place;
  std::string family;
  std::string name;
  std::string doc;
  bool isCore = false;  ///< one for all releases, in the core namespace
  std::vector<EnumTable> tables;
};

/// A free function of the release namespaces, with its body written by hand.
struct Function {
  Place place;
  std::string family;
  std::string name;
  std::string parameters;
  std::string result;
  std::string doc;
  ReleaseSet releases = ReleaseSet::None();
};

/// Code that is written by hand for one entity or function.
struct Body {
  Place place;  ///< of the line that begins the section; the text begins at the next one
  std::string name;
  std::string text;
  ReleaseSet releases = ReleaseSet::None();
};

struct Family {
  std::string name;
  std::string title;
};

/// Everything that the description files say, in their order.
struct Description {
  std::vector<Family> families;
  std::vector<Entity> entities;
  std::vector<DefinedType> definedTypes;
  std::vector<Enumeration> enumerations;
  std::vector<Function> functions;
  std::vector<Body> bodies;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_DESCRIPTION_H_
