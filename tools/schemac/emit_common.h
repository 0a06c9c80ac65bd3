#ifndef KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_
#define KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/release_model.h"
#include "tools/schemac/text_template.h"

namespace schemac {

/// Generated files by their path below the output folder.
using Files = std::map<std::string, std::string>;

/// Text of a file under construction, line by line.
class TextWriter {
 public:
  void Line(const std::string& line = "") { text += line + "\n"; }

  /// A template with its words replaced. It ends its own lines.
  void Fill(std::string_view form, const TemplateWords& words) {
    text += schemac::Fill(form, words);
  }

  /// A doc comment, wrapped at the line length.
  void Doc(const std::string& indent, const std::string& comment);

  /// `head` and the arguments in parentheses. A long call is wrapped after the opening parenthesis
  /// or between arguments.
  void Call(const std::string& head, const std::vector<std::string>& arguments,
            const std::string& tail);

  const std::string& Text() const { return text; }

  /// Returns the number of complete lines.
  std::size_t LineCount() const;

 private:
  std::string text;
};

/// The path of a generated header or source of a family in a release.
std::string FamilyFile(std::string_view releaseFolder, std::string_view family,
                       std::string_view ending);

/// The include guard of a path.
std::string Guard(const std::string& path);

/// The first line of every generated file.
std::string GeneratedBy(std::string_view source);

/// The description file of a family, from the root of the source tree.
std::string DescriptionFile(std::string_view family);

/// A whole header: the first line, the include guard of its path, and its content, which ends with
/// an empty line.
std::string GuardedHeader(const std::string& path, std::string_view source,
                          const std::string& content);

/// The words that the templates of one release share: mark, namespace, folder, suffix, constant.
TemplateWords WordsOf(const ReleaseInfo& info);

/// The family that describes a class or defined type of the release; empty for core classes.
std::string FamilyOf(const ReleaseModel& model, std::string_view name);

/// Writes an enumeration and its table.
void EmitEnumeration(TextWriter& out, const Enumeration& enumeration, const EnumTable& table);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_EMIT_COMMON_H_
