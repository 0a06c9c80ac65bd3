#include "tools/schemac/bodies.h"

#include "tools/schemac/marks.h"

namespace schemac {

namespace {

constexpr std::string_view kCommentMark = "//";

/// Removes the first line from a text and returns it without its line end.
std::string_view TakeLine(std::string_view& text) {
  const auto end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

bool IsBlankOrComment(std::string_view line) {
  return line.find_first_not_of(' ') == std::string_view::npos ||
         line.substr(0, kCommentMark.size()) == kCommentMark;
}

/// The releases of the entity or function that a section is for.
template <class Entry>
ReleaseSet ReleasesOf(const std::vector<Entry>& entries, const std::string& name,
                      const Place& place) {
  ReleaseSet releases = ReleaseSet::None();
  for (const auto& entry : entries) {
    if (entry.name == name) releases = releases | entry.releases;
  }
  if (releases.IsEmpty()) throw DescriptionError(place, name + " is not described");
  return releases;
}

/// Reads the line that begins a section. Returns false for any other line.
bool ReadHead(const Line& line, const Description& description, Body& body) {
  TokenReader in(line);
  if (!in.Take(kCommentMark)) return false;
  const bool isEntity = in.Take("entity");
  if (!isEntity && !in.Take("function")) return false;
  const Place place = in.Here();
  body.name = in.Name("the name of an entity or function");
  const ReleaseSet whole = isEntity ? ReleasesOf(description.entities, body.name, place)
                                    : ReleasesOf(description.functions, body.name, place);
  const Place markPlace = in.Here();
  const auto mark = ReadMark(in);
  body.releases = mark ? *mark : whole;
  if (!whole.Contains(body.releases)) {
    throw DescriptionError(markPlace, "a release that the entry does not have");
  }
  if (!in.AtEnd()) in.Fail("expected the end of the line");
  return true;
}

/// The text of a section, and the line of each of its characters. The text has one blank for each
/// run of blanks and line ends, and none after an opening parenthesis.
class FlatText {
 public:
  explicit FlatText(const Body& body) {
    int line = body.place.line;
    for (const char c : "\n" + body.text) {
      if (c == '\n') ++line;
      const bool isBlank = c == ' ' || c == '\n';
      const bool isDropped = isBlank && (flat.empty() || flat.back() == ' ' || flat.back() == '(');
      if (isDropped) continue;
      flat += isBlank ? ' ' : c;
      lines.push_back(line);
    }
  }

  /// Returns the line of a definition, or 0 if the text does not contain it.
  int LineOf(const std::string& definition) const {
    const auto at = flat.find(definition);
    return at == std::string::npos ? 0 : lines[at];
  }

 private:
  std::string flat;
  std::vector<int> lines;
};

/// Finds the definitions of one class or function in its sections.
class Definitions {
 public:
  Definitions(const Description& description, std::string entry, std::size_t release)
      : entry(std::move(entry)), release(release) {
    for (const auto& body : description.bodies) {
      if (body.name != this->entry || !body.releases.Has(release)) continue;
      bodies.push_back(&body);
      texts.emplace_back(body);
    }
  }

  /// Returns the place of a definition. `described` is the place of its description.
  Place Find(const std::string& definition, const Place& described) const {
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const int line = texts[i].LineOf(definition);
      if (line != 0) return {bodies[i]->place.file, line, 1};
    }
    throw DescriptionError(described, "no section of " + entry + " defines '" + definition +
                                          "' for release " + std::string(kReleases[release].mark));
  }

  std::vector<const Body*> bodies;

 private:
  std::string entry;
  std::size_t release;
  std::vector<FlatText> texts;
};

void AttachClass(const Description& description, std::size_t release, ResolvedClass& type) {
  const std::string& name = type.entity->name;
  const std::string scope = name + "::";
  const Definitions definitions(description, name, release);
  for (auto& part : type.constructors) {
    part.bodyPlace = definitions.Find(scope + name + part.text, part.place);
  }
  if (type.customParse) {
    type.customParse->bodyPlace =
        definitions.Find(scope + "Parse(const char* cursor)", type.customParse->place);
  }
  if (type.customWrite) {
    type.customWrite->bodyPlace =
        definitions.Find(scope + "Write(std::ostream& out)", type.customWrite->place);
  }
  for (auto& operation : type.operations) {
    if (!operation.body.empty()) continue;
    operation.bodyPlace = definitions.Find(
        scope + operation.name + "(" + operation.parameters + ")", operation.place);
  }
  type.bodies = definitions.bodies;
}

}  // namespace

void ParseBodies(const std::string& file, std::string_view text, Description& description) {
  Place place{file, 0, 1};
  bool hasSection = false;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    ++place.line;
    Body body;
    body.place = place;
    if (ReadHead({place, false, std::string(line), ""}, description, body)) {
      description.bodies.push_back(std::move(body));
      hasSection = true;
    } else if (hasSection) {
      (description.bodies.back().text += line) += '\n';
    } else if (!IsBlankOrComment(line)) {
      throw DescriptionError(place, "code before the first section");
    }
  }
}

void AttachBodies(const Description& description, ReleaseModel& model) {
  for (auto& type : model.classes) AttachClass(description, model.release, type);
  for (auto& function : model.functions) {
    const Definitions definitions(description, function.function->name, model.release);
    function.bodyPlace = definitions.Find(function.function->name + function.function->parameters,
                                          function.function->place);
    function.bodies = definitions.bodies;
  }
}

}  // namespace schemac
