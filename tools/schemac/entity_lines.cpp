#include "tools/schemac/entity_lines.h"

#include <algorithm>
#include <array>

#include "tools/schemac/marks.h"

namespace schemac {

namespace {

/// The word for a reference that can lead to any class.
constexpr std::string_view kAnyType = "any";

/// Reads one line and adds what it says to an entity.
class EntityLine {
 public:
  EntityLine(const Line& line, TokenReader& in, Entity& entity)
      : line(line), in(in), entity(entity), releases(entity.releases) {}

  void Read() {
    const Place place = in.Here();
    if (const auto mark = ReadMark(in)) releases = *mark;
    if (!entity.releases.Contains(releases)) {
      throw DescriptionError(place, "a release that the entity does not have");
    }
    const auto* const directive =
        std::find_if(kDirectives.begin(), kDirectives.end(),
                     [this](const Directive& row) { return in.Take(row.word); });
    if (directive == kDirectives.end()) {
      ReadAttribute();
      return;
    }
    (this->*directive->read)();
    if (!in.AtEnd()) in.Fail("expected the end of the line");
    if (!line.reason.empty()) entity.departures.push_back({line.reason, releases});
  }

 private:
  /// A word that begins a line, and the function that reads the rest of the line.
  struct Directive {
    std::string_view word;
    void (EntityLine::*read)();
  };
  static const std::array<Directive, 20> kDirectives;

  struct Modifier {
    std::string_view word;
    void (EntityLine::*read)(Attribute&);
  };
  static const std::array<Modifier, 9> kModifiers;

  void ReadBase() { entity.bases.push_back({in.Rest(), releases}); }
  void ReadChain() { entity.chains.push_back({in.Name("a class"), releases}); }
  void ReadMake() { entity.constructors.push_back(Marked{in.Rest(), releases, line.place}); }
  void ReadDeparts() { entity.departures.push_back({in.Rest(), releases}); }

  /// If the operation has the name of the class, it is a constructor and its parameters follow.
  void ReadTell() {
    std::string operation = in.Name("an operation");
    if (operation == entity.name) {
      in.Expect("(");
      operation += "(" + in.Until(")") + ")";
      in.Expect(")");
    }
    entity.comments[operation] = in.Rest();
  }

  Step NewStep(Step::Act act) {
    Step step;
    step.place = in.Here();
    step.act = act;
    step.releases = releases;
    step.reason = line.reason;
    return step;
  }

  /// Reads the name of a position that is not stored. Returns an empty text if the line has none.
  std::string ReadPositionName() {
    TokenReader ahead = in;
    const char first = ahead.AtEnd() ? ' ' : ahead.Word("a word").front();
    return first >= 'A' && first <= 'Z' ? in.Name("the name of the attribute") : std::string();
  }

  /// Reads the kind of a position that is not stored.
  Kind ReadPositionKind() {
    const Place place = in.Here();
    const std::string word = in.Name("a kind");
    const KindInfo* kind = FindKind(word);
    if (kind == nullptr || kind->published.empty()) {
      throw DescriptionError(place, "'" + word + "' is not a kind for a position");
    }
    return kind->kind;
  }

  /// Reads an optional word after a position that is not stored, and adds the position.
  void AddPosition(Step step) {
    if (in.Take("required")) step.required = ReadFlagReleases(in, releases);
    entity.steps.push_back(std::move(step));
  }

  void ReadDrop() {
    Step step = NewStep(Step::Act::kDrop);
    step.name = ReadPositionName();
    const Place place = in.Here();
    step.kind = ReadPositionKind();
    const KindInfo& info = InfoOf(*step.kind);
    if (!info.isDroppable) {
      throw DescriptionError(place, "'" + std::string(info.word) + "' cannot be read and dropped");
    }
    step.literal = in.Word("the literal that is written");
    AddPosition(std::move(step));
  }

  /// Reads positions, with or without a name and a kind.
  void ReadLiterals() {
    do {
      Step step = NewStep(Step::Act::kLiteral);
      step.name = ReadPositionName();
      if (!step.name.empty()) step.kind = ReadPositionKind();
      step.literal = in.Word("a literal");
      AddPosition(std::move(step));
    } while (!in.AtEnd());
  }

  void ReadUnread() {
    do {
      Step step = NewStep(Step::Act::kUnread);
      step.name = in.Name("the name of the attribute");
      step.kind = ReadPositionKind();
      AddPosition(std::move(step));
    } while (in.Take(","));
  }

  void ReadRedeclared() {
    Step step = NewStep(Step::Act::kStar);
    step.name = in.Name("the name of the attribute");
    entity.steps.push_back(std::move(step));
  }

  void ReadLink() {
    Step step = NewStep(Step::Act::kLink);
    step.name = in.Name("an attribute");
    in.Expect("as");
    step.target = in.Name("the class that is reached");
    step.operation = in.Name("the operation that is called");
    entity.steps.push_back(std::move(step));
  }

  void ReadInverseLine() {
    Inverse inverse;
    inverse.place = in.Here();
    inverse.releases = releases;
    inverse.name = in.Name("the name of the attribute");
    in.Expect("of");
    inverse.entity = in.Name("the entity that refers to the instance");
    inverse.attribute = in.Name("the attribute that holds the references");
    entity.inverses.push_back(std::move(inverse));
  }

  void ReadOrder() { AddOrder(true, true); }
  void ReadReads() { AddOrder(true, false); }
  void ReadWrites() { AddOrder(false, true); }

  void AddOrder(bool forReading, bool forWriting) {
    RecordOrder order;
    order.forReading = forReading;
    order.forWriting = forWriting;
    order.releases = releases;
    while (!in.AtEnd()) {
      OrderItem item;
      item.place = in.Here();
      item.isStar = in.Take("*");
      item.name = in.Name("the name of an attribute");
      order.items.push_back(std::move(item));
    }
    entity.orders.push_back(std::move(order));
  }

  void ReadCustom() {
    auto& custom = ReadsParse() ? entity.customParse : entity.customWrite;
    custom.push_back({"", releases, line.place});
  }

  void ReadWithout() {
    ReleaseSet& without = ReadsParse() ? entity.noParse : entity.noWrite;
    without = without | releases;
  }

  /// Reads `Parse` and returns true, or reads `Write` and returns false.
  bool ReadsParse() {
    if (in.Take("Parse")) return true;
    if (!in.Take("Write")) in.Fail("expected 'Parse' or 'Write'");
    return false;
  }

  /// Adds the getters and then the setters of all attributes described so far.
  void ReadAccessors() {
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

  void ReadOps() { AddOperations({}); }

  void ReadPlain() {
    Operation plain;
    plain.isVirtual = false;
    AddOperations(plain);
  }

  void ReadOverride() {
    Operation override;
    override.isOverride = true;
    AddOperations(override);
  }

  void AddOperations(const Operation& pattern) {
    do {
      Operation operation = pattern;
      const auto mark = ReadMark(in);
      operation.releases = mark ? *mark : releases;
      operation.place = in.Here();
      operation.name = in.Name("an operation");
      operation.bothForms = in.Take("~");
      operation.isForward = in.Take("forward");
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

  void ReadAttribute() {
    Attribute attribute;
    attribute.place = in.Here();
    attribute.releases = releases;
    attribute.reason = line.reason;
    attribute.name = in.Name("an attribute or a directive");
    const Place place = in.Here();
    const std::string word = in.Name("the kind of the attribute");
    const KindInfo* kind = FindKind(word);
    if (kind == nullptr) throw DescriptionError(place, "'" + word + "' is not a kind");
    attribute.kind = kind->kind;
    attribute.inFile = kind->isInFile;
    if (kind->takesName) attribute.type = in.Name("the class or enumeration");
    if (attribute.type == kAnyType) attribute.type.clear();
    while (!in.AtEnd()) ReadModifier(attribute);
    if (attribute.inFile) {
      Step step = NewStep(Step::Act::kAttribute);
      step.place = attribute.place;
      step.name = attribute.name;
      entity.steps.push_back(std::move(step));
    }
    entity.attributes.push_back(std::move(attribute));
  }

  void ReadModifier(Attribute& attribute) {
    for (const auto& modifier : kModifiers) {
      if (!in.Take(modifier.word)) continue;
      (this->*modifier.read)(attribute);
      return;
    }
    in.Fail("expected the end of the line or a word such as 'inverse' or 'as'");
  }

  void ReadInitial(Attribute& attribute) { attribute.initial = in.Word("a row or a text"); }
  void ReadInverse(Attribute& attribute) {
    attribute.inFile = false;
    attribute.isInverse = true;
  }
  void ReadMemory(Attribute& attribute) { attribute.inFile = false; }
  void ReadOwnerless(Attribute& attribute) { attribute.isOwnerless = true; }
  void ReadAbsent(Attribute& attribute) { attribute.absent = in.Word("a number"); }
  void ReadAs(Attribute& attribute) { attribute.writtenAs = in.Word("a literal"); }
  void ReadIgnored(Attribute& attribute) { attribute.isIgnored = true; }
  void ReadPublished(Attribute& attribute) {
    attribute.published = in.Name("the name in the schema");
  }
  void ReadRequired(Attribute& attribute) {
    attribute.required = ReadFlagReleases(in, attribute.releases);
  }

  const Line& line;
  TokenReader& in;
  Entity& entity;
  ReleaseSet releases;
};

const std::array<EntityLine::Directive, 20> EntityLine::kDirectives = {{
    {"base", &EntityLine::ReadBase},
    {"chain", &EntityLine::ReadChain},
    {"make", &EntityLine::ReadMake},
    {"departs", &EntityLine::ReadDeparts},
    {"tell", &EntityLine::ReadTell},
    {"drop", &EntityLine::ReadDrop},
    {"literal", &EntityLine::ReadLiterals},
    {"unread", &EntityLine::ReadUnread},
    {"redeclared", &EntityLine::ReadRedeclared},
    {"link", &EntityLine::ReadLink},
    {"inverse", &EntityLine::ReadInverseLine},
    {"order", &EntityLine::ReadOrder},
    {"reads", &EntityLine::ReadReads},
    {"writes", &EntityLine::ReadWrites},
    {"custom", &EntityLine::ReadCustom},
    {"without", &EntityLine::ReadWithout},
    {"accessors", &EntityLine::ReadAccessors},
    {"ops", &EntityLine::ReadOps},
    {"plain", &EntityLine::ReadPlain},
    {"override", &EntityLine::ReadOverride},
}};

const std::array<EntityLine::Modifier, 9> EntityLine::kModifiers = {{
    {"=", &EntityLine::ReadInitial},
    {"inverse", &EntityLine::ReadInverse},
    {"memory", &EntityLine::ReadMemory},
    {"ownerless", &EntityLine::ReadOwnerless},
    {"ignored", &EntityLine::ReadIgnored},
    {"absent", &EntityLine::ReadAbsent},
    {"as", &EntityLine::ReadAs},
    {"published", &EntityLine::ReadPublished},
    {"required", &EntityLine::ReadRequired},
}};

}  // namespace

void ReadEntityLine(const Line& line, TokenReader& in, Entity& entity) {
  EntityLine(line, in, entity).Read();
}

}  // namespace schemac
