#ifndef TOOLS_KELIFC_JSON_H_
#define TOOLS_KELIFC_JSON_H_

#include <array>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace command {

/// JSON. An object keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

/// Writes an object as UTF-8 text, member by member, so that a large list never exists as a tree of
/// values. Each member has a line. If a member is a list or an object, each of its entries has a
/// line. A number reads back as the same double, and a number that is not finite becomes null. A
/// byte that is not UTF-8 becomes U+FFFD.
class JsonText {
 public:
  void Add(std::string_view key, const Json& value);

  /// Adds a list with `toJson(item)` for each item.
  template <class Items, class ToJson>
  void AddList(std::string_view key, const Items& items, ToJson toJson) {
    BeginMember(key);
    text += '[';
    bool isFirst = true;
    for (const auto& item : items) {
      AddEntry(isFirst, toJson(item));
      isFirst = false;
    }
    text += isFirst ? "]" : "\n  ]";
  }

  /// Ends the object and returns its text. The writer is empty afterwards.
  std::string Finish();

 private:
  void BeginMember(std::string_view key);
  void AddEntry(bool isFirst, const Json& entry);

  std::string text;
};

/// Writes an object as JsonText does.
std::string ToText(const Json& object);

/// A text as JSON, with its quotes.
std::string QuotedText(std::string_view text);

using NumberBuffer = std::array<char, 64>;

/// A number as JSON: the shortest text that reads back as the same double; null for a number that
/// is not finite. The text is in `buffer` or constant.
std::string_view FormatNumber(double value, NumberBuffer& buffer);
std::string NumberText(double value);

}  // namespace command

#endif  // TOOLS_KELIFC_JSON_H_
