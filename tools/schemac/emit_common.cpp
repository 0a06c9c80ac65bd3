#include "tools/schemac/emit_common.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace schemac {

namespace {

constexpr std::size_t kLineLength = 100;

/// The enumerator of the value 0 where no row has it.
constexpr std::string_view kUnsetRow = "NONE";

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

std::string FamilyOf(const ReleaseModel& model, std::string_view name) {
  if (const ResolvedClass* type = model.Find(name)) return type->entity->family;
  const auto type = model.definedTypes.find(name);
  return type == model.definedTypes.end() ? std::string() : type->second->family;
}

std::string TableName(const std::string& enumeration) { return "k" + enumeration + "Table"; }

std::string Enumerator(const std::string& enumeration, const std::string& row) {
  return enumeration + "_" + (row.empty() ? std::string(kUnsetRow) : row);
}

std::string InitialEnumerator(const ReleaseModel& model, const Attribute& attribute) {
  if (!attribute.initial.empty()) return Enumerator(attribute.type, attribute.initial);
  const Enumeration& enumeration = *model.enumerations.at(attribute.type);
  const EnumTable& table =
      enumeration.isCore ? enumeration.tables.front() : *FindTable(enumeration, model.release);
  for (const auto& [text, value] : table.rows) {
    if (value == 0) return Enumerator(attribute.type, text);
  }
  return Enumerator(attribute.type, "");
}

void EmitEnumeration(TextWriter& out, const Enumeration& enumeration, const EnumTable& table) {
  if (table.rows.empty()) {
    out.Doc("", enumeration.doc + " The text is kept as it stands.");
    out.Line("using " + enumeration.name + " = ENUM;");
    out.Line();
    return;
  }
  out.Doc("", enumeration.doc + " The values are those of the table below.");
  out.Line("enum " + enumeration.name + " : std::int32_t {");
  if (!HasZero(table)) {
    out.Line("  " + Enumerator(enumeration.name, "") + " = 0,  ///< nothing that the table knows");
  }
  for (const auto& [text, value] : table.rows) {
    out.Line("  " + Enumerator(enumeration.name, text) + " = " + std::to_string(value) + ",");
  }
  out.Line("};");
  out.Line();
  out.Doc("", "The texts of " + enumeration.name + ", in the order in which they are searched.");
  out.Line("inline constexpr EnumTextRow " + TableName(enumeration.name) + "[] = {");
  for (const auto& [text, value] : table.rows) {
    out.Line("    {\"" + text + "\", " + Enumerator(enumeration.name, text) + "},");
  }
  out.Line("};");
  out.Line();
}

}  // namespace schemac
