#include "tools/schemac/parser.h"

#include <charconv>

#include "tools/schemac/entity_lines.h"
#include "tools/schemac/marks.h"

namespace schemac {

namespace {

/// Reads the description of one file. It keeps the entry to which indented lines belong.
class Parser {
 public:
  explicit Parser(Description& description) : description(description) {}

  void Read(const Line& line) {
    if (line.indented) {
      ReadBody(line);
    } else {
      ReadHead(line);
    }
  }

 private:
  void ReadHead(const Line& line) {
    TokenReader in(line);
    if (in.Take("family")) {
      ReadFamily(in);
      return;
    }
    if (family.empty()) in.Fail("a description must begin with its family");
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
    if (!family.empty()) in.Fail("a file can describe only one family");
    family = in.Name("the name of the family");
    in.Expect(":");
    description.families.push_back({family, in.Rest()});
  }

  /// Begins an entry. The indented lines that follow belong to it.
  template <class Entry>
  Entry& Begin(std::vector<Entry>& entries, const Line& line) {
    Entry& entry = entries.emplace_back();
    entry.place = line.place;
    entry.family = family;
    doc = &entry.doc;
    entity = nullptr;
    enumeration = nullptr;
    return entry;
  }

  void ReadEntity(const Line& line, TokenReader& in) {
    Entity& read = Begin(description.entities, line);
    entity = &read;
    read.name = in.Name("the name of the entity");
    std::string bases;
    if (in.Take(":")) {
      do {
        bases += (bases.empty() ? "" : " ") + in.Name("a base");
      } while (in.Take(","));
    }
    read.releases = ReadReleases(in);
    read.bases.push_back({bases, read.releases});
    while (!in.AtEnd()) {
      if (in.Take("abstract")) {
        read.isAbstract = true;
      } else if (in.Take("file")) {
        read.file = read.file | ReadFlagReleases(in, read.releases);
      } else if (in.Take("new")) {
        read.made = read.made | ReadFlagReleases(in, read.releases);
      } else {
        in.Fail("expected 'abstract', 'file' or 'new'");
      }
    }
    if (!line.reason.empty()) read.departures.push_back({line.reason, read.releases});
  }

  void ReadDefinedType(const Line& line, TokenReader& in) {
    DefinedType& type = Begin(description.definedTypes, line);
    type.name = in.Name("the name of the type");
    if (in.Take(":")) type.base = in.Name("the base");
    const Place place = in.Here();
    const KindInfo* kind = FindKind(in.Name("the kind of the value"));
    if (kind == nullptr) throw DescriptionError(place, "no such kind");
    type.kind = kind->kind;
    type.releases = ReadReleases(in);
    if (in.Take("file")) type.file = ReadFlagReleases(in, type.releases);
    if (!in.AtEnd()) in.Fail("expected the end of the line");
  }

  void ReadEnumeration(const Line& line, TokenReader& in) {
    Enumeration& read = Begin(description.enumerations, line);
    enumeration = &read;
    read.name = in.Name("the name of the enumeration");
    read.isCore = in.Take("core");
    if (!in.AtEnd()) in.Fail("expected 'core' or the end of the line");
  }

  void ReadFunction(const Line& line, TokenReader& in) {
    Function& function = Begin(description.functions, line);
    function.name = in.Name("the name of the function");
    function.parameters = in.Until(": ");
    in.Expect(":");
    function.result = in.Until("[");
    const auto mark = ReadMark(in);
    function.releases = mark ? *mark : ReleaseSet::All();
  }

  void ReadBody(const Line& line) {
    TokenReader in(line);
    if (doc != nullptr && in.Take("doc")) {
      *doc = in.Rest();
    } else if (entity != nullptr) {
      ReadEntityLine(line, in, *entity);
    } else if (enumeration != nullptr) {
      ReadEnumerationLine(in, *enumeration);
    } else {
      in.Fail("this line does not belong to an entry");
    }
  }

  static void ReadEnumerationLine(TokenReader& in, Enumeration& target) {
    EnumTable table{{}, ReadReleases(in)};
    while (!in.AtEnd()) {
      const std::string text = in.Name("a row");
      const Place place = in.Here();
      const std::string number = in.Word("the value of the row");
      std::int32_t value = 0;
      const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
      if (read.ec != std::errc() || read.ptr != number.data() + number.size()) {
        throw DescriptionError(place, "'" + number + "' is not a whole number");
      }
      table.rows.emplace_back(text, value);
    }
    target.tables.push_back(std::move(table));
  }

  Description& description;
  std::string family;
  // The parts of the last entry that its body can change. A pointer is null if the entry does not
  // have the part.
  std::string* doc = nullptr;
  Entity* entity = nullptr;
  Enumeration* enumeration = nullptr;
};

}  // namespace

void ParseDescription(const std::string& file, std::string_view text, Description& description) {
  Parser parser(description);
  for (const Line& line : ReadLines(file, text)) parser.Read(line);
}

}  // namespace schemac
