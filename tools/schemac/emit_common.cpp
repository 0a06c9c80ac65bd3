#include "tools/schemac/emit_common.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "tools/schemac/attribute_text.h"

namespace schemac {

namespace {

constexpr std::size_t kLineLength = 100;

bool HasZero(const EnumTable& table) {
  return std::any_of(table.rows.begin(), table.rows.end(),
                     [](const auto& row) { return row.second == 0; });
}

}  // namespace

void TextWriter::Doc(const std::string& indent, const std::string& comment) {
  std::istringstream words(comment);
  std::string line = indent + "///";
  for (std::string word; words >> word;) {
    if (line.size() + 1 + word.size() > kLineLength) {
      Line(line);
      line = indent + "///";
    }
    line += " " + word;
  }
  Line(line);
}

void TextWriter::Call(const std::string& head, const std::vector<std::string>& arguments,
                      const std::string& tail) {
  const std::string indent(head.find_first_not_of(' ') + 4, ' ');
  std::string line = head + "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string piece = arguments[i] + (i + 1 < arguments.size() ? "," : ")" + tail);
    const bool isFirst = line.back() == '(';
    if (line.size() + piece.size() + 1 > kLineLength && line != indent) {
      Line(line);
      line = indent + piece;
    } else {
      line += (isFirst ? "" : " ") + piece;
    }
  }
  if (arguments.empty()) line += ")" + tail;
  Line(line);
}

std::size_t TextWriter::LineCount() const {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::string FamilyFile(std::string_view releaseFolder, std::string_view family,
                       std::string_view ending) {
  return "kelifc/schema/" + std::string(releaseFolder) + "/" + std::string(family) +
         std::string(ending);
}

std::string Guard(const std::string& path) {
  std::string guard;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    guard += std::isalnum(byte) ? static_cast<char>(std::toupper(byte)) : '_';
  }
  return guard + "_";
}

std::string GeneratedBy(std::string_view source) {
  return "// Made by schemac from " + std::string(source) + "; change the description instead.";
}

std::string DescriptionFile(std::string_view family) {
  return "kelifc/schema/" + std::string(family) + ".schema";
}

std::string GuardedHeader(const std::string& path, std::string_view source,
                          const std::string& content) {
  constexpr std::string_view kForm = R"(@generated@
#ifndef @guard@
#define @guard@

@content@#endif  // @guard@
)";
  return Fill(kForm,
              {{"generated", GeneratedBy(source)}, {"guard", Guard(path)}, {"content", content}});
}

TemplateWords WordsOf(const ReleaseInfo& info) {
  return {{"release", std::string(info.title)},
          {"namespace", std::string(info.nameSpace)},
          {"folder", std::string(info.folder)},
          {"suffix", std::string(info.suffix)},
          {"constant", std::string(info.constant)}};
}

std::string FamilyOf(const ReleaseModel& model, std::string_view name) {
  if (const ResolvedClass* type = model.Find(name)) return type->entity->family;
  const auto type = model.definedTypes.find(name);
  return type == model.definedTypes.end() ? std::string() : type->second->family;
}

void EmitEnumeration(TextWriter& out, const Enumeration& enumeration, const EnumTable& table) {
  if (table.rows.empty()) {
    out.Doc("", enumeration.doc + " The text is kept as it stands.");
    out.Fill("using @name@ = ENUM;\n\n", {{"name", enumeration.name}});
    return;
  }
  TemplateWords words = {{"name", enumeration.name},
                         {"table", TableName(enumeration.name)},
                         {"none", Enumerator(enumeration.name, "")}};
  out.Doc("", enumeration.doc + " The values are those of the table below.");
  out.Fill("enum @name@ : std::int32_t {\n", words);
  if (!HasZero(table)) out.Fill("  @none@ = 0,  ///< nothing that the table knows\n", words);
  for (const auto& [text, value] : table.rows) {
    out.Line("  " + Enumerator(enumeration.name, text) + " = " + std::to_string(value) + ",");
  }
  out.Line("};");
  out.Line();
  out.Doc("", Fill("The texts of @name@, in the order in which they are searched.", words));
  out.Fill("inline constexpr EnumTextRow @table@[] = {\n", words);
  for (const auto& [text, value] : table.rows) {
    out.Line("    {\"" + text + "\", " + Enumerator(enumeration.name, text) + "},");
  }
  out.Line("};");
  out.Line();
}

}  // namespace schemac
