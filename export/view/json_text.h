#ifndef EXPORT_VIEW_JSON_TEXT_H_
#define EXPORT_VIEW_JSON_TEXT_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace KelIFC::exporting {

/// Builds a JSON text without blanks. It adds the commas. The caller begins and ends objects and
/// lists in the right order, and writes a key for each member of an object.
class JsonText {
 public:
  void BeginObject() { Begin('{'); }
  void EndObject() { text += '}'; }
  void BeginList() { Begin('['); }
  void EndList() { text += ']'; }

  /// Appends the key of the next value.
  void Key(std::string_view key);

  /// Appends a text. Control characters are escaped, and bytes that are not UTF-8 become U+FFFD.
  void Value(std::string_view value);

  /// Appends the shortest number that reads as the same double; null if it is not finite.
  void Value(double value);
  void Value(std::size_t value);
  void Null();

  /// Appends true or false.
  void Flag(bool value);

  /// Appends a number rounded to 9 decimals; null if it is not finite.
  void Rounded(double value);

  /// Appends the value, or null if there is none.
  template <class Number>
  void Value(const std::optional<Number>& value) {
    value ? Value(*value) : Null();
  }

  /// Appends a key with its value.
  template <class Anything>
  void Member(std::string_view key, const Anything& value) {
    Key(key);
    Value(value);
  }

  /// Appends a key with a list. `write` appends one entry.
  template <class List, class Write>
  void ListMember(std::string_view key, const List& list, Write write) {
    Key(key);
    BeginList();
    for (const auto& entry : list) write(*this, entry);
    EndList();
  }

  /// The text so far. It is complete when each object and list has ended.
  std::string& GetText() { return text; }

 private:
  void Begin(char bracket);
  void Separate();

  std::string text;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_JSON_TEXT_H_
