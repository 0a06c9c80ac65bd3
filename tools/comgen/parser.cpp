#include "tools/comgen/parser.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "tools/schemac/line_reader.h"
#include "tools/schemac/token_reader.h"

namespace comgen {

namespace {

using schemac::DescriptionError;
using schemac::Line;
using schemac::ReadLines;
using schemac::TokenReader;

constexpr std::pair<std::string_view, Kind> kKinds[] = {
    {"pointer", Kind::kPointer}, {"long", Kind::kLong},       {"short", Kind::kShort},
    {"double", Kind::kDouble},   {"bool", Kind::kBool},       {"string", Kind::kString},
    {"variant", Kind::kVariant}, {"unknown", Kind::kUnknown},
};

/// The form of an identifier; 'x' is a hexadecimal digit.
constexpr std::string_view kIdentifierForm = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";

/// The most reserved operations that one line can stand for.
constexpr int kMostReserved = 99;
constexpr char kNoCount[] = "expected a count from 1 to 99";

bool IsIdentifier(std::string_view text) {
  const auto fits = [](char form, char c) {
    return form == 'x' ? (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') : c == form;
  };
  return std::equal(kIdentifierForm.begin(), kIdentifierForm.end(), text.begin(), text.end(), fits);
}

std::string ReadIdentifier(TokenReader& in) {
  in.Expect("{");
  const Place place = in.Here();
  std::string identifier = in.Until("}");
  if (!IsIdentifier(identifier))
    throw DescriptionError(place, "expected an identifier in upper case");
  in.Expect("}");
  return identifier;
}

Type ReadType(TokenReader& in) {
  Type type;
  type.place = in.Here();
  const std::string word = in.Name("a kind");
  for (const auto& [name, kind] : kKinds) {
    if (word != name) continue;
    type.kind = kind;
    return type;
  }
  type.kind = Kind::kInterface;
  type.interface = word;
  return type;
}

void ExpectEnd(TokenReader& in) {
  if (!in.AtEnd()) in.Fail("expected the end of the line");
}

/// Returns a name as arguments have it, starting in lower case: "height" for "Height", "guid" for
/// "GUID", "bRep" for "BRep".
std::string ArgumentName(std::string name) {
  const auto isUpper = [&](std::size_t i) {
    return i < name.size() && std::isupper(static_cast<unsigned char>(name[i])) != 0;
  };
  std::size_t run = 0;
  while (isUpper(run)) ++run;
  if (run > 1 && run < name.size()) --run;
  for (std::size_t i = 0; i < run; ++i) {
    name[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(name[i])));
  }
  return name;
}

Operation MakeProperty(Operation::Role role, const Line& line, const std::string& name,
                       const Type& type) {
  const bool isGet = role == Operation::Role::kGet;
  Operation operation;
  operation.place = line.place;
  operation.role = role;
  operation.name = (isGet ? "get_" : "put_") + name;
  operation.arguments.push_back({type, ArgumentName(name), isGet});
  operation.doc = line.reason;
  return operation;
}

/// Reads "get NAME: KIND" after its first word.
void ReadProperty(TokenReader& in, const Line& line, bool gets, bool puts, Interface& interface) {
  const std::string name = in.Name("a name");
  in.Expect(":");
  const Type type = ReadType(in);
  if (gets) {
    interface.operations.push_back(MakeProperty(Operation::Role::kGet, line, name, type));
  }
  if (puts) {
    interface.operations.push_back(MakeProperty(Operation::Role::kPut, line, name, type));
    if (gets) interface.operations.back().doc = "Sets the value.";
  }
}

std::vector<Argument> ReadArguments(TokenReader& in, bool named) {
  std::vector<Argument> arguments;
  in.Expect("(");
  if (in.Take(")")) return arguments;
  do {
    Argument argument;
    if (named) {
      argument.isOut = in.Take("out");
      argument.name = in.Name("an argument");
      in.Expect(":");
    }
    argument.type = ReadType(in);
    arguments.push_back(argument);
  } while (in.Take(","));
  in.Expect(")");
  return arguments;
}

int ReadCount(TokenReader& in) {
  TokenReader ahead = in;
  if (ahead.Take("(")) return 1;
  const Place place = in.Here();
  const std::string word = in.Word("a count or arguments");
  int count = 0;
  for (const char c : word) {
    if (c < '0' || c > '9' || count > kMostReserved) throw DescriptionError(place, kNoCount);
    count = count * 10 + (c - '0');
  }
  if (count < 1 || count > kMostReserved) throw DescriptionError(place, kNoCount);
  return count;
}

void ReadReserved(TokenReader& in, const Line& line, Interface& interface) {
  const int count = ReadCount(in);
  Operation operation;
  operation.place = line.place;
  operation.role = Operation::Role::kReserved;
  operation.arguments = ReadArguments(in, false);
  interface.operations.insert(interface.operations.end(), static_cast<std::size_t>(count),
                              operation);
}

void ReadMethod(TokenReader& in, const Line& line, Interface& interface) {
  Operation operation;
  operation.place = line.place;
  operation.name = in.Name("an operation");
  operation.arguments = ReadArguments(in, true);
  operation.doc = line.reason;
  interface.operations.push_back(operation);
}

void ReadOperation(const Line& line, Interface& interface) {
  TokenReader in(line);
  if (in.Take("getput")) {
    ReadProperty(in, line, true, true, interface);
  } else if (in.Take("get")) {
    ReadProperty(in, line, true, false, interface);
  } else if (in.Take("put")) {
    ReadProperty(in, line, false, true, interface);
  } else if (in.Take("reserved")) {
    ReadReserved(in, line, interface);
  } else {
    ReadMethod(in, line, interface);
  }
  ExpectEnd(in);
}

constexpr char kEnumeratorDoc[] = "An enumerator of the items as variants (IEnumVARIANT).";
constexpr char kItemDoc[] =
    "The item at an index, from 1. Returns E_INVALIDARG for an index below 1. Returns E_FAIL for "
    "an "
    "index above the number of items, and leaves `item` unchanged.";

/// Adds the three operations with which every collection begins.
void AddCollectionOperations(const Line& line, const Type& item, Interface& interface) {
  const auto add = [&](const std::string& name, std::vector<Argument> arguments,
                       const std::string& doc) {
    Operation operation;
    operation.place = line.place;
    operation.name = name;
    operation.arguments = std::move(arguments);
    operation.doc = doc;
    interface.operations.push_back(operation);
  };
  const Type number{line.place, Kind::kLong, ""};
  add("_NewEnum", {{{line.place, Kind::kUnknown, ""}, "enumerator", true}}, kEnumeratorDoc);
  add("Item", {{number, "index", false}, {item, "item", true}},
      item.kind == Kind::kInterface ? std::string(kItemDoc) + " The caller releases it."
                                    : kItemDoc);
  add("Count", {{number, "count", true}}, "The number of items.");
}

Interface ReadInterface(TokenReader& in, const Line& line, bool isCollection) {
  Interface interface;
  interface.place = line.place;
  interface.name = in.Name("a name");
  if (isCollection) {
    in.Expect("of");
    AddCollectionOperations(line, ReadType(in), interface);
  } else if (in.Take(":")) {
    interface.base = in.Name("an interface");
  }
  interface.identifier = ReadIdentifier(in);
  interface.doc = line.reason;
  if (interface.doc.empty()) in.Fail("a doc comment is missing");
  ExpectEnd(in);
  return interface;
}

Class ReadClass(TokenReader& in, const Line& line) {
  Class type;
  type.place = line.place;
  type.name = in.Name("a name");
  in.Expect("\"");
  type.progId = in.Until("\"");
  in.Expect("\"");
  type.identifier = ReadIdentifier(in);
  in.Expect(":");
  do {
    type.interfaces.push_back(in.Name("an interface"));
  } while (in.Take(","));
  ExpectEnd(in);
  return type;
}

void ReadClassLine(const Line& line, Class& type) {
  TokenReader in(line);
  if (in.Take("header")) {
    type.header = in.Word("a path");
  } else {
    in.Expect("reserved");
    Omission omission{in.Here(), in.Name("an interface"), ""};
    if (in.Take(".")) omission.operation = in.Name("an operation");
    type.omissions.push_back(omission);
  }
  ExpectEnd(in);
}

/// Reads line after line. An indented line belongs to the last entry.
class Parser {
 public:
  explicit Parser(const std::string& file) { description.file = file; }

  void Read(const Line& line) {
    if (!line.indented) {
      ReadHead(line);
    } else if (isInClass) {
      ReadClassLine(line, description.classes.back());
    } else if (isInInterface) {
      ReadOperation(line, description.interfaces.back());
    } else {
      throw DescriptionError(line.place, "expected an interface or a class before this line");
    }
  }

  Description Result() && { return std::move(description); }

 private:
  void ReadHead(const Line& line) {
    TokenReader in(line);
    isInClass = in.Take("class");
    isInInterface = false;
    if (isInClass) {
      description.classes.push_back(ReadClass(in, line));
    } else if (in.Take("library")) {
      description.library.name = in.Name("a name");
      description.library.identifier = ReadIdentifier(in);
      description.library.doc = line.reason;
      ExpectEnd(in);
    } else {
      const bool isCollection = in.Take("collection");
      if (!isCollection && !in.Take("interface")) {
        in.Fail("expected 'library', 'interface', 'collection' or 'class'");
      }
      isInInterface = true;
      description.interfaces.push_back(ReadInterface(in, line, isCollection));
    }
  }

  Description description;
  bool isInClass = false;
  bool isInInterface = false;
};

}  // namespace

Description ParseDescription(const std::string& file, std::string_view text) {
  Parser parser(file);
  for (const Line& line : ReadLines(file, text)) parser.Read(line);
  return std::move(parser).Result();
}

}  // namespace comgen
