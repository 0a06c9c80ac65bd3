#include <algorithm>
#include <array>

#include "tools/schemac/attribute_text.h"
#include "tools/schemac/emitters.h"

namespace schemac {

namespace {

/// The releases that pass a test, such as "2x, 2x2, 2x3".
template <class Has>
std::string Releases(Has has) {
  std::string text;
  for (std::size_t release = 0; release < kReleaseCount; ++release) {
    if (!has(release)) continue;
    text += (text.empty() ? "" : ", ") + std::string(kReleases[release].title);
  }
  return text.empty() ? "none" : text;
}

std::string Releases(ReleaseSet set) {
  return Releases([&](std::size_t release) { return set.Has(release); });
}

/// A text that appears in some releases.
struct Appearance {
  std::string text;
  std::string doc;
  std::array<bool, kReleaseCount> in = {};
};

void Note(std::vector<Appearance>& all, const std::string& text, const std::string& doc,
          std::size_t release) {
  auto at =
      std::find_if(all.begin(), all.end(), [&](const Appearance& one) { return one.text == text; });
  if (at == all.end()) at = all.insert(all.end(), {text, doc});
  at->in[release] = true;
}

std::string Joined(const std::vector<std::string>& pieces) {
  std::string text;
  for (const auto& piece : pieces) text += (text.empty() ? "" : ", ") + piece;
  return text;
}

/// Escapes `|`, which would end a cell of a table.
std::string Cell(std::string text) {
  for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 2)) {
    text.insert(at, "\\");
  }
  return text;
}

/// Writes the page of one family: the attributes, the record and the operations of each class in
/// all releases.
class PageWriter {
 public:
  PageWriter(const Description& description, const std::vector<ReleaseModel>& models)
      : description(description), models(models) {}

  std::string Run(const Family& family) {
    out.Line("# " + family.title);
    out.Line();
    out.Line("Generated from `kelifc/schema/" + family.name + ".schema`.");
    for (const auto& enumeration : description.enumerations) {
      if (enumeration.family == family.name) AddEnumeration(enumeration);
    }
    for (const auto& type : description.definedTypes) {
      if (type.family == family.name) AddDefinedType(type);
    }
    for (const auto& entity : description.entities) {
      if (entity.family == family.name) AddEntity(entity);
    }
    for (const auto& function : description.functions) {
      if (function.family == family.name) AddFunction(function);
    }
    return out.Text();
  }

 private:
  void AddEnumeration(const Enumeration& enumeration) {
    out.Line();
    out.Line("## " + enumeration.name);
    out.Line();
    out.Line(enumeration.doc);
    for (const auto& table : enumeration.tables) {
      out.Line();
      std::string line = "Release " + Releases(table.releases) + ": ";
      for (std::size_t i = 0; i < table.rows.size(); ++i) {
        line += (i == 0 ? "`" : ", `") + table.rows[i].first + "` " +
                std::to_string(table.rows[i].second);
      }
      if (table.rows.empty()) line += "the text is kept unchanged";
      out.Line(line + ".");
    }
  }

  void AddDefinedType(const DefinedType& type) {
    out.Line();
    out.Line("## " + type.name);
    out.Line();
    const std::string bases = type.base.empty() ? " A `" : " A `" + type.base + "` and a `";
    out.Line(type.doc + bases + std::string(InfoOf(type.kind).type) + "`. Releases: " +
             Releases(type.releases) + "; a file can contain it in: " + Releases(type.file) + ".");
  }

  void AddEntity(const Entity& entity) {
    out.Line();
    out.Line("## " + entity.name);
    out.Line();
    out.Line(entity.doc);
    out.Line();
    std::vector<Appearance> bases;
    std::vector<Appearance> operations;
    std::vector<Appearance> departures;
    std::vector<Appearance> writes;
    for (const auto& model : models) {
      const ResolvedClass* type = model.Find(entity.name);
      if (type == nullptr) continue;
      Note(bases, Joined(type->bases), "", model.release);
      Note(writes, Record(model, *type), "", model.release);
      for (const auto& text : type->departures) Note(departures, text, "", model.release);
      for (const auto& operation : type->operations) {
        Note(operations, Signature(operation), operation.doc, model.release);
      }
    }
    AddFacts(entity, bases, writes);
    AddAttributes(entity);
    AddOperations(entity, operations);
    for (const auto& departure : departures) {
      out.Line();
      out.Line("Departure from the regular form" + In(entity, departure) + ": " + departure.text +
               ".");
    }
  }

  void AddFacts(const Entity& entity, const std::vector<Appearance>& bases,
                const std::vector<Appearance>& writes) {
    out.Line("- Releases: " + Releases(entity.releases) + "; a file can contain it in: " +
             Releases(entity.file) + "; a host can create it in: " + Releases(entity.made) + ".");
    for (const auto& base : bases) {
      if (!base.text.empty()) out.Line("- Bases" + In(entity, base) + ": `" + base.text + "`.");
    }
    for (const auto& record : writes) {
      if (!record.text.empty()) {
        out.Line("- Writes" + In(entity, record) + ": `" + record.text + "`.");
      }
    }
  }

  /// Returns the record that a class writes, with the positions of its bases.
  static std::string Record(const ReleaseModel& model, const ResolvedClass& type) {
    if (!type.isUnknown || type.entity->isAbstract) return {};
    if (type.customWrite) return "by hand, see the source";
    std::string record = type.entity->name + "(";
    const std::size_t head = record.size();
    AppendRecord(model, type.hasWrite ? type.entity->name : type.writeBase, record, head);
    return record + ")";
  }

  static void AppendRecord(const ReleaseModel& model, const std::string& name, std::string& record,
                           std::size_t head) {
    const ResolvedClass* type = model.Find(name);
    if (type == nullptr) return;
    AppendRecord(model, type->writeBase, record, head);
    if (type->customWrite) {
      record += (record.size() > head ? ", ..." : "...");
      return;
    }
    for (const auto& step : type->writes) {
      std::string item = step.act == Step::Act::kStar ? "*" : step.literal;
      if (step.act == Step::Act::kAttribute) {
        const Attribute& attribute = *model.FindAttribute(*type, step.name);
        item = attribute.writtenAs.empty() ? step.name : attribute.writtenAs;
      }
      record += (record.size() > head ? ", " : "") + item;
    }
  }

  void AddAttributes(const Entity& entity) {
    if (entity.attributes.empty()) return;
    out.Line();
    out.Line("| attribute | type | releases | remark |");
    out.Line("|---|---|---|---|");
    for (const auto& attribute : entity.attributes) {
      out.Line("| " + attribute.name + " | " + HeldAs(entity, attribute) + " | " +
               Releases(attribute.releases) + " | " + Cell(Remark(attribute)) + " |");
    }
  }

  static std::string HeldAs(const Entity& entity, const Attribute& attribute) {
    std::size_t newest = 0;
    for (std::size_t release = 0; release < kReleaseCount; ++release) {
      if (attribute.releases.Has(release) && entity.releases.Has(release)) newest = release;
    }
    std::string held = "`" + StoredType(attribute, newest) + "`";
    const bool isNarrowed = !attribute.type.empty() && !InfoOf(attribute.kind).holdsNamedType;
    return isNarrowed ? held + " to `" + attribute.type + "`" : held;
  }

  static std::string Remark(const Attribute& attribute) {
    std::vector<std::string> remarks;
    if (attribute.isInverse) remarks.emplace_back("inverse, not in the file");
    if (!attribute.inFile && !attribute.isInverse) remarks.emplace_back("not in the file");
    if (!attribute.initial.empty()) remarks.push_back("initially `" + attribute.initial + "`");
    if (!attribute.absent.empty())
      remarks.push_back("reads as " + attribute.absent + " while unset");
    if (!attribute.writtenAs.empty()) remarks.push_back("written as `" + attribute.writtenAs + "`");
    if (!attribute.reason.empty()) remarks.push_back(attribute.reason);
    return Joined(remarks);
  }

  static std::string Signature(const ResolvedOperation& operation) {
    return operation.result + " " + operation.name + "(" + operation.parameters + ")" +
           (operation.isConst ? " const" : "") + (operation.isVirtual ? "" : " [not virtual]") +
           (operation.isProtected ? " [protected]" : "");
  }

  void AddOperations(const Entity& entity, const std::vector<Appearance>& operations) {
    if (operations.empty()) return;
    out.Line();
    out.Line("Operations, in the order of their slots:");
    out.Line();
    for (const auto& operation : operations) {
      out.Line("- `" + operation.text + "`" + In(entity, operation) +
               (operation.doc.empty() ? "" : " -- " + operation.doc));
    }
  }

  void AddFunction(const Function& function) {
    out.Line();
    out.Line("## " + function.name);
    out.Line();
    out.Line("`" + function.result + " " + function.name + function.parameters + "`, releases " +
             Releases(function.releases) + ". " + function.doc);
  }

  /// Returns text such as " (2x)" unless the fact applies to all releases of the entity.
  static std::string In(const Entity& entity, const Appearance& appearance) {
    bool everywhere = true;
    for (std::size_t release = 0; release < kReleaseCount; ++release) {
      everywhere = everywhere && appearance.in[release] == entity.releases.Has(release);
    }
    if (everywhere) return {};
    return " (" + Releases([&](std::size_t release) { return appearance.in[release]; }) + ")";
  }

  const Description& description;
  const std::vector<ReleaseModel>& models;
  TextWriter out;
};

}  // namespace

void EmitReference(const Description& description, const std::vector<ReleaseModel>& models,
                   Files& files) {
  TextWriter index;
  index.Line("# The entity classes");
  index.Line();
  index.Line("One page for each family, generated from the descriptions in `kelifc/schema`.");
  index.Line();
  for (const auto& family : description.families) {
    files["docs/reference/" + family.name + ".md"] = PageWriter(description, models).Run(family);
    index.Line("- [" + family.title + "](" + family.name + ".md)");
  }
  files["docs/reference/README.md"] = index.Text();
}

}  // namespace schemac
