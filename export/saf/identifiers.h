#ifndef EXPORT_SAF_IDENTIFIERS_H_
#define EXPORT_SAF_IDENTIFIERS_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace KelIFC::exporting::saf {

/// The 16 bytes of a UUID.
using Uuid = std::array<std::uint8_t, 16>;

/// The UUID of a GlobalId of 22 characters. None if the text is no GlobalId.
std::optional<Uuid> UuidOfGlobalId(std::string_view guid);

/// A UUID of version 8 that depends on the text only.
Uuid UuidOfText(std::string_view text);

/// The text of a UUID: 36 characters in lower case.
std::string TextOf(const Uuid& uuid);

/// Assigns each object a UUID that no other object has.
class IdList {
 public:
  /// The ids that are derived from a text depend on the project, too.
  explicit IdList(std::string_view project) : project(project) {}

  /// The UUID of a GlobalId. If the GlobalId is not valid or is used already, the UUID of `text`,
  /// which names the object.
  std::string Take(std::string_view guid, std::string_view text);

  /// The UUID of a text that names the object.
  std::string Take(std::string_view text);

 private:
  struct Hash {
    std::size_t operator()(const Uuid& uuid) const;
  };

  std::string project;
  std::unordered_set<Uuid, Hash> used;
};

/// Assigns each object a name that no other object has. Two names that differ in the case of
/// letters A to Z only are equal, because some programs compare names so.
class NameList {
 public:
  /// Returns the name as ObjectName makes it. `fallback` replaces a name that is empty. A name that
  /// is used gets the suffix "_2", "_3" and so on.
  std::string Take(std::string_view name, std::string_view fallback);

  /// How many names were shortened.
  std::size_t GetShortened() const { return shortened; }

 private:
  bool Insert(const std::string& name);

  std::unordered_map<std::string, std::size_t> used;  // the last suffix of each name
  std::size_t shortened = 0;
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_IDENTIFIERS_H_
