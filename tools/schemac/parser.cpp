#include "tools/schemac/parser.h"

#include <array>
#include <charconv>
#include <optional>

#include "tools/schemac/line_reader.h"
#include "tools/schemac/token_reader.h"

namespace schemac {

namespace {

struct KindName {
  std::string_view word;
  Kind kind;
  bool hasType;
};

constexpr std::array kKinds = {
    KindName{"string", Kind::kString, false},
    KindName{"label", Kind::kLabel, false},
    KindName{"identifier", Kind::kIdentifier, false},
    KindName{"real", Kind::kReal, false},
    KindName{"integer", Kind::kInteger, false},
    KindName{"boolean", Kind::kBoolean, false},
    KindName{"logical", Kind::kLogical, false},
    KindName{"measure", Kind::kMeasure, false},
    KindName{"scientific", Kind::kScientific, false},
    KindName{"coordinates", Kind::kCoordinates, false},
    KindName{"angle", Kind::kAngle, false},
    KindName{"flags", Kind::kFlags, false},
    KindName{"integers", Kind::kIntegers, false},
    KindName{"enumtext", Kind::kEnumText, false},
    KindName{"openenum", Kind::kEnumText, true},
    KindName{"labels", Kind::kLabels, false},
    KindName{"ref", Kind::kReference, true},
    KindName{"set", Kind::kSet, true},
    KindName{"list", Kind::kList, true},
    KindName{"enum", Kind::kEnum, true},
    KindName{"value", Kind::kValue, false},
    KindName{"guid64", Kind::kGlobalId64, false},
    KindName{"guid85", Kind::kGlobalId85, false},
    KindName{"cache", Kind::kInstance, true},
};

/// The word of a target that is not narrowed to a class.
constexpr std::string_view kAnyType = "any";

const KindName* FindKind(std::string_view word) {
  for (const auto& row : kKinds) {
    if (row.word == word) return &row;
  }
  return nullptr;
}

ReleaseSet ReadReleases(TokenReader& in) {
  const Place place = in.Here();
  const std::string word = in.Word("releases");
  const auto releases = ReleaseSet::Read(word);
  if (!releases) throw DescriptionError(place, "'" + word + "' names no releases");
  return *releases;
}

/// Reads a mark in brackets, if one comes next.
std::optional<ReleaseSet> ReadMark(TokenReader& in) {
  if (!in.Take("[")) return std::nullopt;
  const Place place = in.Here();
  const std::string word = in.Until("]");
  in.Expect("]");
  const auto releases = ReleaseSet::Read(word);
  if (!releases) throw DescriptionError(place, "'" + word + "' names no releases");
  return *releases;
}

/// Reads the releases behind a flag; none given means all those of the entry.
ReleaseSet ReadFlagReleases(TokenReader& in, ReleaseSet whole) {
  const Place place = in.Here();
  TokenReader ahead = in;
  if (ahead.AtEnd() || !ReleaseSet::Read(ahead.Word("releases"))) return whole;
  const ReleaseSet releases = ReadReleases(in);
  if (!whole.Contains(releases)) {
    throw DescriptionError(place, "a release that the entry does not have");
  }
  return releases;
}

Step ReadDropped(TokenReader& in) {
  Step step;
  step.place = in.Here();
  step.act = Step::Act::kDrop;
  const std::string word = in.Word("a kind");
  const KindName* kind = FindKind(word);
  const bool readable = kind != nullptr && kind->kind != Kind::kValue &&
                        kind->kind != Kind::kInstance && kind->kind != Kind::kLabels &&
                        kind->kind != Kind::kGlobalId64 && kind->kind != Kind::kGlobalId85;
  if (!readable) throw DescriptionError(step.place, "'" + word + "' cannot be read and dropped");
  step.kind = kind->kind;
  step.literal = in.Word("the literal that is written");
  return step;
}

/// Reads one item of an explicit order: an attribute, `*`, `kind>literal` or a literal.
Step ReadOrderItem(TokenReader& in) {
  Step step;
  step.place = in.Here();
  const std::string word = in.Word("an item");
  const auto arrow = word.find('>');
  const char first = word.front();
  if (word == "*") {
    step.act = Step::Act::kStar;
  } else if (arrow != std::string::npos) {
    Line dropped{step.place, true, word.substr(0, arrow) + " " + word.substr(arrow + 1), ""};
    TokenReader parts(dropped);
    step = ReadDropped(parts);
  } else if (first == '$' || first == '.' || first == '(' || first == '\'') {
    step.act = Step::Act::kLiteral;
    step.literal = word;
  } else {
    step.name = word;
  }
  return step;
}

/// Reads the description of one file: keeps the entry that indented lines belong to.
class Parser {
 public:
  Parser(const std::string& file, Description& description)
      : fileName(file), description(description) {}

  void Read(const Line& line) {
    if (line.indented) {
      ReadBody(line);
    } else {
      ReadHead(line);
    }
  }

 private:
  enum class Entry { kNone, kEntity, kDefinedType, kEnumeration, kFunction };

  void ReadHead(const Line& line) {
    TokenReader in(line);
    if (in.Take("family")) {
      ReadFamily(in);
      return;
    }
    if (family.empty()) in.Fail("a description begins with its family");
    if (in.Take("entity")) {
      ReadEntity(line, in);
    } else if (in.Take("type")) {
      ReadDefinedType(line, in);
    } else if (in.Take("enum")) {
      ReadEnumeration(line, in);
    } else if (in.Take("function")) {
      ReadFunction(line, in);
    } else {
      in.Fail("expected 'entity', 'type', 'enum' or 'function'");
    }
  }

  void ReadFamily(TokenReader& in) {
    if (!family.empty()) in.Fail("a file describes one family");
    family = in.Name("the name of the family");
    in.Expect(":");
    description.families.push_back({family, in.Rest()});
  }

  void ReadEntity(const Line& line, TokenReader& in) {
    Entity entity;
    entity.place = line.place;
    entity.family = family;
    entity.name = in.Name("the name of the entity");
    std::string bases;
    if (in.Take(":")) {
      do {
        bases += (bases.empty() ? "" : " ") + in.Name("a base");
      } while (in.Take(","));
    }
    entity.releases = ReadReleases(in);
    entity.bases.push_back({bases, entity.releases});
    while (!in.AtEnd()) {
      if (in.Take("abstract")) {
        entity.isAbstract = true;
      } else if (in.Take("file")) {
        entity.file = entity.file | ReadFlagReleases(in, entity.releases);
      } else if (in.Take("new")) {
        entity.made = entity.made | ReadFlagReleases(in, entity.releases);
      } else {
        in.Fail("expected 'abstract', 'file' or 'new'");
      }
    }
    if (!line.reason.empty()) entity.departures.push_back({line.reason, entity.releases});
    description.entities.push_back(std::move(entity));
    current = Entry::kEntity;
  }

  void ReadDefinedType(const Line& line, TokenReader& in) {
    DefinedType type;
    type.place = line.place;
    type.family = family;
    type.name = in.Name("the name of the type");
    if (in.Take(":")) type.base = in.Name("the base");
    const Place place = in.Here();
    const KindName* kind = FindKind(in.Name("the kind of the value"));
    if (kind == nullptr) throw DescriptionError(place, "no such kind");
    type.kind = kind->kind;
    type.releases = ReadReleases(in);
    if (in.Take("file")) type.file = ReadFlagReleases(in, type.releases);
    if (!in.AtEnd()) in.Fail("expected the end of the line");
    description.definedTypes.push_back(std::move(type));
    current = Entry::kDefinedType;
  }

  void ReadEnumeration(const Line& line, TokenReader& in) {
    Enumeration enumeration;
    enumeration.place = line.place;
    enumeration.family = family;
    enumeration.name = in.Name("the name of the enumeration");
    enumeration.isCore = in.Take("core");
    if (!in.AtEnd()) in.Fail("expected 'core' or the end of the line");
    description.enumerations.push_back(std::move(enumeration));
    current = Entry::kEnumeration;
  }

  void ReadFunction(const Line& line, TokenReader& in) {
    Function function;
    function.place = line.place;
    function.family = family;
    function.name = in.Name("the name of the function");
    function.parameters = in.Until(": ");
    in.Expect(":");
    function.result = in.Until("[");
    const auto mark = ReadMark(in);
    function.releases = mark ? *mark : ReleaseSet::All();
    description.functions.push_back(std::move(function));
    current = Entry::kFunction;
  }

  void ReadBody(const Line& line) {
    TokenReader in(line);
    if (in.Take("doc")) {
      ReadDoc(in);
      return;
    }
    switch (current) {
      case Entry::kEntity:
        ReadEntityLine(line, in, description.entities.back());
        return;
      case Entry::kEnumeration:
        ReadEnumerationLine(in, description.enumerations.back());
        return;
      default:
        in.Fail("this line belongs to no entry");
    }
  }

  void ReadDoc(TokenReader& in) {
    switch (current) {
      case Entry::kEntity:
        description.entities.back().doc = in.Rest();
        return;
      case Entry::kDefinedType:
        description.definedTypes.back().doc = in.Rest();
        return;
      case Entry::kEnumeration:
        description.enumerations.back().doc = in.Rest();
        return;
      case Entry::kFunction:
        description.functions.back().doc = in.Rest();
        return;
      case Entry::kNone:
        in.Fail("this line belongs to no entry");
    }
  }

  static void ReadEnumerationLine(TokenReader& in, Enumeration& enumeration) {
    EnumTable table{{}, ReadReleases(in)};
    while (!in.AtEnd()) {
      const std::string text = in.Name("a row");
      const Place place = in.Here();
      const std::string number = in.Word("the value of the row");
      std::int32_t value = 0;
      const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
      if (read.ec != std::errc() || read.ptr != number.data() + number.size()) {
        throw DescriptionError(place, "'" + number + "' is no whole number");
      }
      table.rows.emplace_back(text, value);
    }
    enumeration.tables.push_back(std::move(table));
  }

  void ReadEntityLine(const Line& line, TokenReader& in, Entity& entity) {
    const Place place = in.Here();
    const auto mark = ReadMark(in);
    const ReleaseSet releases = mark ? *mark : entity.releases;
    if (!entity.releases.Contains(releases)) {
      throw DescriptionError(place, "a release that the entity does not have");
    }
    if (!ReadDirective(in, entity, releases, line.reason)) {
      ReadAttribute(line, in, entity, releases);
      return;
    }
    if (!in.AtEnd()) in.Fail("expected the end of the line");
    if (!line.reason.empty()) entity.departures.push_back({line.reason, releases});
  }

  bool ReadDirective(TokenReader& in, Entity& entity, ReleaseSet releases,
                     const std::string& reason) {
    const auto addStep = [&](Step step) {
      step.releases = releases;
      step.reason = reason;
      entity.steps.push_back(std::move(step));
    };
    if (in.Take("base")) {
      entity.bases.push_back({in.Rest(), releases});
    } else if (in.Take("chain")) {
      entity.chains.push_back({in.Name("a class"), releases});
    } else if (in.Take("make")) {
      entity.constructors.push_back({in.Rest(), releases});
    } else if (in.Take("bodies")) {
      entity.bodies.push_back({in.Rest(), releases});
    } else if (in.Take("tell")) {
      const std::string operation = in.Name("an operation");
      entity.comments[operation] = in.Rest();
    } else if (in.Take("drop")) {
      addStep(ReadDropped(in));
    } else if (in.Take("literal")) {
      while (!in.AtEnd()) {
        Step step;
        step.place = in.Here();
        step.act = Step::Act::kLiteral;
        step.literal = in.Word("a literal");
        addStep(step);
      }
    } else if (in.Take("redeclared")) {
      Step step;
      step.act = Step::Act::kStar;
      step.place = in.Here();
      addStep(step);
    } else if (in.Take("link")) {
      addStep(ReadLink(in));
    } else if (in.Take("order")) {
      ReadOrder(in, entity, releases, true, true);
    } else if (in.Take("reads")) {
      ReadOrder(in, entity, releases, true, false);
    } else if (in.Take("writes")) {
      ReadOrder(in, entity, releases, false, true);
    } else if (in.Take("custom")) {
      ReadParseOrWrite(in, entity.customParse, entity.customWrite, releases);
    } else if (in.Take("without")) {
      ReadParseOrWrite(in, entity.noParse, entity.noWrite, releases);
    } else if (in.Take("accessors")) {
      AddAccessors(entity);
    } else if (in.Take("ops")) {
      ReadOperations(in, entity, releases, {});
    } else if (in.Take("plain")) {
      Operation plain;
      plain.isVirtual = false;
      ReadOperations(in, entity, releases, plain);
    } else if (in.Take("override")) {
      Operation override;
      override.isOverride = true;
      ReadOperations(in, entity, releases, override);
    } else {
      return false;
    }
    return true;
  }

  /// Getters, then setters, of all attributes told so far.
  static void AddAccessors(Entity& entity) {
    for (const std::string verb : {"Get", "Set"}) {
      for (const auto& attribute : entity.attributes) {
        Operation operation;
        operation.place = attribute.place;
        operation.name = verb + attribute.name;
        operation.releases = attribute.releases;
        entity.operations.push_back(std::move(operation));
      }
    }
  }

  static Step ReadLink(TokenReader& in) {
    Step step;
    step.place = in.Here();
    step.act = Step::Act::kLink;
    step.name = in.Name("an attribute");
    in.Expect("as");
    step.target = in.Name("the class that is reached");
    step.operation = in.Name("the operation that is called");
    return step;
  }

  static void ReadOrder(TokenReader& in, Entity& entity, ReleaseSet releases, bool forReading,
                        bool forWriting) {
    RecordOrder order;
    order.forReading = forReading;
    order.forWriting = forWriting;
    order.releases = releases;
    while (!in.AtEnd()) order.steps.push_back(ReadOrderItem(in));
    entity.orders.push_back(std::move(order));
  }

  static void ReadParseOrWrite(TokenReader& in, ReleaseSet& parse, ReleaseSet& write,
                               ReleaseSet releases) {
    if (in.Take("Parse")) {
      parse = parse | releases;
    } else if (in.Take("Write")) {
      write = write | releases;
    } else {
      in.Fail("expected 'Parse' or 'Write'");
    }
  }

  static void ReadOperations(TokenReader& in, Entity& entity, ReleaseSet releases,
                             const Operation& pattern) {
    do {
      Operation operation = pattern;
      const auto mark = ReadMark(in);
      operation.releases = mark ? *mark : releases;
      operation.place = in.Here();
      operation.name = in.Name("an operation");
      operation.bothForms = in.Take("~");
      if (in.Take("=")) operation.attribute = in.Name("an attribute");
      if (in.Take("(")) {
        operation.hasSignature = true;
        operation.parameters = in.Until(")");
        in.Expect(")");
      }
      operation.isConst = in.Take("const");
      if (in.Take(":")) {
        operation.hasSignature = true;
        operation.result = in.Until(",");
      }
      entity.operations.push_back(std::move(operation));
    } while (in.Take(","));
  }

  static void ReadAttribute(const Line& line, TokenReader& in, Entity& entity,
                            ReleaseSet releases) {
    Attribute attribute;
    attribute.place = in.Here();
    attribute.releases = releases;
    attribute.reason = line.reason;
    attribute.name = in.Name("an attribute or a directive");
    const Place place = in.Here();
    const std::string word = in.Name("the kind of the attribute");
    const KindName* kind = FindKind(word);
    if (kind == nullptr) throw DescriptionError(place, "'" + word + "' is no kind");
    attribute.kind = kind->kind;
    if (kind->hasType) attribute.type = in.Name("the class or enumeration");
    if (attribute.type == kAnyType) attribute.type.clear();
    if (attribute.kind == Kind::kInstance) attribute.inFile = false;
    ReadModifiers(in, attribute);
    if (attribute.inFile) {
      Step step;
      step.place = attribute.place;
      step.name = attribute.name;
      step.releases = releases;
      entity.steps.push_back(std::move(step));
    }
    entity.attributes.push_back(std::move(attribute));
  }

  static void ReadModifiers(TokenReader& in, Attribute& attribute) {
    while (!in.AtEnd()) {
      if (in.Take("=")) {
        attribute.initial = in.Word("a row or a text");
      } else if (in.Take("inverse")) {
        attribute.inFile = false;
        attribute.isInverse = true;
      } else if (in.Take("memory")) {
        attribute.inFile = false;
      } else if (in.Take("ownerless")) {
        attribute.isOwnerless = true;
      } else if (in.Take("absent")) {
        attribute.absent = in.Word("a number");
      } else if (in.Take("as")) {
        attribute.writtenAs = in.Word("a literal");
      } else {
        in.Fail("expected '=', 'inverse', 'memory', 'ownerless', 'absent' or 'as'");
      }
    }
  }

  std::string fileName;
  std::string family;
  Description& description;
  Entry current = Entry::kNone;
};

}  // namespace

void ParseDescription(const std::string& file, std::string_view text, Description& description) {
  Parser parser(file, description);
  for (const Line& line : ReadLines(file, text)) parser.Read(line);
}

}  // namespace schemac
