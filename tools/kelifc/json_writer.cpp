#include "tools/kelifc/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "tools/kelifc/json.h"

namespace command {
namespace {

/// How many levels of containers have a line for each entry.
constexpr std::size_t kLevelsOnLines = 2;

using IntegerText = std::array<char, 24>;  // enough for 64 bits

/// A line end and the blanks before an entry at a depth of at most kLevelsOnLines.
std::string_view LineStart(std::size_t depth) {
  constexpr std::string_view kDeepest = "\n    ";
  return kDeepest.substr(0, 1 + 2 * depth);
}

template <class Number>
std::string_view WriteInteger(Number value, IntegerText& text) {
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

bool NeedsEscape(char c) { return c < ' ' || c > '~' || c == '"' || c == '\\'; }

/// Whether JSON needs no escape for the text, which is ASCII. The count has no early end, so that
/// the compiler can test many characters at once.
bool IsPlain(std::string_view text) {
  return std::count_if(text.begin(), text.end(), NeedsEscape) == 0;
}

}  // namespace

void JsonWriter::Separate() {
  if (isEmpty.empty()) return;
  if (!isEmpty.back()) output.Write(",");
  isEmpty.back() = false;
  if (isEmpty.size() <= kLevelsOnLines) output.Write(LineStart(isEmpty.size()));
}

void JsonWriter::BeginValue() {
  if (!hasKey) Separate();
  hasKey = false;
}

void JsonWriter::Write(std::string_view value) {
  BeginValue();
  output.Write(value);
}

void JsonWriter::Begin(char bracket) {
  Write({&bracket, 1});
  isEmpty.push_back(true);
}

void JsonWriter::End(char bracket) {
  const bool wasEmpty = isEmpty.back();
  const std::size_t depth = isEmpty.size();
  isEmpty.pop_back();
  if (!wasEmpty && depth <= kLevelsOnLines) output.Write(LineStart(depth - 1));
  output.Write({&bracket, 1});
  if (isEmpty.empty()) output.Write("\n");
}

void JsonWriter::Key(std::string_view key) {
  Separate();
  WriteText(key);
  output.Write(isEmpty.size() <= kLevelsOnLines ? ": " : ":");
  hasKey = true;
}

void JsonWriter::Value(std::size_t value) {
  IntegerText text;
  Write(WriteInteger(value, text));
}

void JsonWriter::Value(long value) {
  IntegerText text;
  Write(WriteInteger(value, text));
}

void JsonWriter::Value(double value) {
  NumberBuffer buffer;
  Write(FormatNumber(value, buffer));
}

void JsonWriter::Value(std::string_view text) {
  BeginValue();
  WriteText(text);
}

void JsonWriter::WriteText(std::string_view text) {
  if (!IsPlain(text)) return output.Write(QuotedText(text));
  output.Write("\"");
  output.Write(text);
  output.Write("\"");
}

}  // namespace command
