#include "tools/kelifc/json_writer.h"

#include <string>

#include "tools/kelifc/json.h"

namespace command {
namespace {

/// How many levels of containers have a line for each entry.
constexpr std::size_t kLevelsOnLines = 2;

std::string LineStart(std::size_t depth) { return "\n" + std::string(2 * depth, ' '); }

}  // namespace

void JsonWriter::Separate() {
  if (isEmpty.empty()) return;
  if (!isEmpty.back()) output.Write(",");
  isEmpty.back() = false;
  if (isEmpty.size() <= kLevelsOnLines) output.Write(LineStart(isEmpty.size()));
}

void JsonWriter::Write(std::string_view value) {
  if (!hasKey) Separate();
  hasKey = false;
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
  output.Write(QuotedText(key));
  output.Write(isEmpty.size() <= kLevelsOnLines ? ": " : ":");
  hasKey = true;
}

void JsonWriter::Value(std::size_t value) { Write(std::to_string(value)); }

void JsonWriter::Value(double value) { Write(NumberText(value)); }

void JsonWriter::Value(std::string_view text) { Write(QuotedText(text)); }

}  // namespace command
