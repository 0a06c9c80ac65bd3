#ifndef EXPORT_GLB_JSON_TEXT_H_
#define EXPORT_GLB_JSON_TEXT_H_

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace KelIFC::exporting {

/// A JSON text that grows by one value after the other. The caller keeps the order: a key before
/// each member of an object, and an end for each begin.
class JsonText {
 public:
  /// The text so far.
  const std::string& GetText() const { return text; }

  void BeginObject() { Begin('{'); }
  void EndObject() { End('}'); }
  void BeginArray() { Begin('['); }
  void EndArray() { End(']'); }

  /// The name of the member that follows. It has no characters that JSON escapes.
  void Key(std::string_view name);

  /// A text. Bytes that are not UTF-8 become U+FFFD.
  void String(std::string_view value);

  /// A number in the shortest form that reads as the same double; null if it is not finite.
  void Number(double value);

  /// A number rounded to 9 decimals; null if it is not finite.
  void Rounded(double value);

  void Integer(std::size_t value);
  void Bool(bool value);

  /// An array of numbers, each of them rounded as by Rounded.
  void RoundedArray(std::initializer_list<double> values);

 private:
  void Begin(char bracket);
  void End(char bracket);
  void Separate();

  std::string text;
  bool needsComma = false;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_GLB_JSON_TEXT_H_
