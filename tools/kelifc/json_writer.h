#ifndef TOOLS_KELIFC_JSON_WRITER_H_
#define TOOLS_KELIFC_JSON_WRITER_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "tools/kelifc/output.h"

namespace command {

/// Writes one JSON object without holding it in memory. The text is what ToText writes: each member
/// of the object has a line, and so has each entry of a member; deeper values have no blanks.
class JsonWriter {
 public:
  explicit JsonWriter(Output& output) : output(output) {}

  void BeginObject() { Begin('{'); }
  void EndObject() { End('}'); }
  void BeginList() { Begin('['); }
  void EndList() { End(']'); }

  /// The key of the next value of an object.
  void Key(std::string_view key);

  void Null() { Write("null"); }
  void Value(bool value) { Write(value ? "true" : "false"); }
  void Value(std::size_t value);
  void Value(long value);
  void Value(int value) { Value(long{value}); }

  /// The shortest text that reads back as the same double; null for one that is not finite.
  void Value(double value);

  /// A byte that is not UTF-8 becomes U+FFFD.
  void Value(std::string_view text);
  void Value(const char* text) { Value(std::string_view(text)); }

  /// A key with its value.
  template <class Anything>
  void Member(std::string_view key, const Anything& value) {
    Key(key);
    Value(value);
  }

 private:
  void Begin(char bracket);
  void End(char bracket);
  void Write(std::string_view value);
  void BeginValue();
  void WriteText(std::string_view text);
  void Separate();

  Output& output;
  std::vector<bool> isEmpty;  // of each container that was begun and not ended
  bool hasKey = false;        // the key of the next value is written
};

}  // namespace command

#endif  // TOOLS_KELIFC_JSON_WRITER_H_
