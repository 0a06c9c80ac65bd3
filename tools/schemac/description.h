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
  std::string initial;       ///< row of the enumeration, or text, that a new instance holds
  std::string absent;        ///< number that the getter returns while the attribute is unset
  std::string writtenAs;     ///< literal that is always written; empty: the value is written
  std::string published;     ///< the name in the schema; empty: the same as `name`
  std::string reason;        ///< why the attribute departs from the regular form
  bool inFile = true;        ///< false: kept in memory only
  bool isInverse = false;    ///< filled by relationships
  bool isOwnerless = false;  ///< a reference that cannot resolve by itself
  bool isIgnored = false;    ///< a Parse that is written by hand skips the value of a file
  ReleaseSet required = ReleaseSet::None();  ///< where the schema does not allow `$`
  ReleaseSet releases = ReleaseSet::All();
};

/// One step of reading or writing a record, in the order of the file.
struct Step {
  enum class Act {
    kAttribute,  ///< read into and written from an attribute
    kDrop,       ///< read into a temporary, written as a literal
    kLiteral,    ///< not read, written as a literal
    kStar,       ///< the `*` of a redeclared attribute
    kUnread,     ///< neither read nor written
    kLink,       ///< fills an inverse set; nothing is written
  };
  Place place;
  Act act = Act::kAttribute;
  std::string name;          ///< the attribute; can be empty if nothing is stored
  std::optional<Kind> kind;  ///< of a position that is not stored, if it is described
  std::string literal;       ///< the text that is written for kDrop and kLiteral
  std::string target;        ///< class of the instances that kLink reaches
  std::string operation;     ///< the operation that kLink calls on them
  std::string reason;
  ReleaseSet required = ReleaseSet::None();  ///< where the schema does not allow `$`
  ReleaseSet releases = ReleaseSet::All();
};

/// An attribute of the schema that consists of the instances that refer to an instance. No
/// statement has it, and the class does not store it.
struct Inverse {
  Place place;
  std::string name;
  std::string entity;     ///< the entity of the instances that refer to the instance
  std::string attribute;  ///< the attribute of that entity that holds the references
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
  std::string attribute;      ///< the attribute of the operation; empty: the name contains it
  std::string parameters;     ///< in parentheses, for an operation with a signature
  std::string result;         ///< as in the description; empty: void
  bool bothForms = false;     ///< the getter has a writable and a const form
  bool isForward = false;     ///< calls the operation of the same name with '_' in front
  bool hasSignature = false;  ///< its body is written by hand
  bool isConst = false;
  bool isOverride = false;
  bool isVirtual = true;
  ReleaseSet releases = ReleaseSet::All();
};

/// A text that applies to some releases, such as a list of bases.
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
  ReleaseSet file = ReleaseSet::None();  ///< where a file can contain it
  ReleaseSet made = ReleaseSet::None();  ///< where a host can create it
  bool isAbstract = false;
  std::vector<Attribute> attributes;  ///< in the order of the data members
  std::vector<Step> steps;            ///< in file order
  std::vector<RecordOrder> orders;
  std::vector<Inverse> inverses;
  std::vector<Operation> operations;  ///< in the order of the slots
  std::vector<Marked> constructors;   ///< parameter lists; bodies are written by hand
  std::vector<Marked> chains;         ///< class whose Parse and Write run first
  std::vector<Marked> customParse;    ///< where Parse is written by hand; no text
  std::vector<Marked> customWrite;
  ReleaseSet noParse = ReleaseSet::None();
  ReleaseSet noWrite = ReleaseSet::None();
  std::vector<Marked> departures;  ///< reasons that belong to no attribute
  /// The comments of operations that are written by hand, by the name of the operation. The name of
  /// a constructor is the class with the parameters.
  std::map<std::string, std::string> comments;
};

/// A defined type: a class that derives from a value class. Its first base is the select that can
/// hold it, if there is one.
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

/// The rows of an enumeration, in the order of the table. There are none if the class keeps the
/// texts.
struct EnumTable {
  std::vector<std::pair<std::string, std::int32_t>> rows;
  ReleaseSet releases = ReleaseSet::None();
};

struct Enumeration {
  Place place;
  std::string family;
  std::string name;
  std::string doc;
  bool isCore = false;  ///< shared by all releases, in the core namespace
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
