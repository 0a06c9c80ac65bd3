#ifndef KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_
#define KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/resolver.h"

namespace schemac {

/// Generated files by their path below the output folder.
using Files = std::map<std::string, std::string>;

/// Text of a file under construction, line by line.
class TextWriter {
 public:
  void Line(const std::string& line = "") { text += line + "\n"; }

  /// A doc comment, wrapped at the line length.
  void Doc(const std::string& indent, const std::string& comment);

  /// `head` and the comma list in parentheses, wrapped behind the opening one where it is long.
  void Call(const std::string& head, const std::vector<std::string>& arguments,
            const std::string& tail);

  const std::string& Text() const { return text; }

 private:
  std::string text;
};

/// The path of a generated header or source of a family in a release.
std::string FamilyFile(std::string_view releaseFolder, std::string_view family,
                       std::string_view ending);

/// The include guard of a path.
std::string Guard(const std::string& path);

/// The line at the head of every generated file.
std::string GeneratedBy(std::string_view source);

/// The family in which the release describes a class or defined type; empty for core classes.
std::string FamilyOf(const ReleaseModel& model, std::string_view name);

/// The name of the row table of an enumeration.
std::string TableName(const std::string& enumeration);

/// The enumerator of a row; an empty row is the value 0 that no row has.
std::string Enumerator(const std::string& enumeration, const std::string& row);

/// The enumerator that an attribute starts with and that a missing text gives.
std::string InitialEnumerator(const ReleaseModel& model, const Attribute& attribute);

/// Writes an enumeration and its table.
void EmitEnumeration(TextWriter& out, const Enumeration& enumeration, const EnumTable& table);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_
